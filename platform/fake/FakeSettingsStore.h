// SPDX-License-Identifier: MIT
#pragma once

#include <map>

#include "platform/SettingsStore.h"

/// Settings in memory.
class FakeSettingsStore : public SettingsStore {
  public:
    std::optional<std::int64_t> integer(const std::string& key) const override;

    /// What the user's settings file says.
    void put(const std::string& key, std::int64_t value) { m_values[key] = value; }

  private:
    std::map<std::string, std::int64_t> m_values;
};
