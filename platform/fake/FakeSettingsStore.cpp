// SPDX-License-Identifier: MIT
#include "platform/fake/FakeSettingsStore.h"

std::optional<std::int64_t> FakeSettingsStore::integer(const std::string& key) const {
    const auto value = m_values.find(key);
    if (value == m_values.end()) return std::nullopt;
    return value->second;
}
