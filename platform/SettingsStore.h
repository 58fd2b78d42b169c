// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The program's settings: the user's own values over those that an administrator or the package presets.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// The integer under a key; booleans read as 1 and 0, text that is no integer as 0. Empty when no domain
    /// has the key.
    virtual std::optional<std::int64_t> integer(const std::string& key) const = 0;
};
