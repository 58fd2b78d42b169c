// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Result.h"

/// The program's settings: the user's own values over those that an administrator or the package presets.
///
/// What is set is stored at the end of the event loop's turn at the latest, all of it in one write; until
/// then it is read back from memory.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    /// The integer under a key; booleans read as 1 and 0, text that is no integer as 0. Empty when no domain
    /// has the key.
    virtual std::optional<std::int64_t> integer(const std::string& key) const = 0;

    /// Sets one of the user's own values. Keys are words of ASCII letters and digits.
    virtual void setInteger(const std::string& key, std::int64_t value) = 0;
    /// The same, written as a boolean; reads back as 1 or 0.
    virtual void setBool(const std::string& key, bool value) = 0;

    /// Stores now what was set and is not stored yet; nothing is written when every value was there before.
    /// The error tells why the file could not be written; the earlier file is whole then, the values stay in
    /// memory and are tried again after the next set.
    virtual Result<> synchronize() = 0;

    /// What went wrong and that nobody was told yet: a file that could not be read at the start, a write at
    /// the end of a turn that failed. Each fault is given once, in the order in which they came; empty if
    /// there is none.
    virtual std::optional<Error> takeFault() = 0;
};
