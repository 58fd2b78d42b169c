// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>

#include "platform/Result.h"
#include "platform/SettingsStore.h"
#include "platform/linux/ConfigFolders.h"

/// Settings in key files, keyrill/keyrill.conf in each of the configuration folders: the user's own first,
/// then the system's in their order. The first file that has a key gives its value.
///
/// Format: that of the desktop entry standard, group [Settings]; integers in decimal, booleans "true"
/// and "false". Read once, by the constructor; a file that is not there is no problem.
class KeyFileSettings : public SettingsStore {
  public:
    explicit KeyFileSettings(const ConfigFolders& folders);

    /// Also 0 for an integer beyond 64 bits.
    std::optional<std::int64_t> integer(const std::string& key) const override;
    void setInteger(const std::string& key, std::int64_t value) override { m_values[key] = value; }
    void setBool(const std::string& key, bool value) override { m_values[key] = value ? 1 : 0; }
    Result<> synchronize() override { return Error{"This build cannot store settings yet.", ""}; }
    std::optional<Error> takeFault() override { return std::exchange(m_problem, std::nullopt); }

    /// The first file, in order of reading, that is there and could not be read, and why. What it holds
    /// counts as absent; the other files count.
    const std::optional<Error>& problem() const { return m_problem; }

  private:
    /// Adds what the folder's file has and no earlier one had.
    Result<> addDomain(const std::string& folder);

    std::map<std::string, std::int64_t> m_values;
    std::optional<Error> m_problem;
};
