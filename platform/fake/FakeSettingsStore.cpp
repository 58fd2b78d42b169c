// SPDX-License-Identifier: MIT
#include "platform/fake/FakeSettingsStore.h"

std::optional<std::int64_t> FakeSettingsStore::integer(const std::string& key) const {
    m_journal.note("read", key);
    const auto value = m_values.find(key);
    if (value == m_values.end()) return std::nullopt;
    return value->second;
}

void FakeSettingsStore::setInteger(const std::string& key, std::int64_t value) {
    m_journal.note("write", key, value);
    set(key, value);
}

void FakeSettingsStore::setBool(const std::string& key, bool value) {
    m_journal.note("write", key, value);
    set(key, value ? 1 : 0);
}

void FakeSettingsStore::set(const std::string& key, std::int64_t value) {
    m_keysSet.push_back(key);
    m_values[key] = value;
    m_isStored = false;
}

Result<> FakeSettingsStore::synchronize() {
    m_journal.note("synchronize");
    return store();
}

Result<> FakeSettingsStore::store() {
    if (m_isStored) return {};
    m_isStored = true;
    if (m_values == m_stored) return {};
    if (const auto error = m_nextError.take()) return *error;
    m_stored = m_values;
    ++m_writes;
    return {};
}

std::optional<Error> FakeSettingsStore::takeFault() {
    if (m_faults.empty()) return std::nullopt;
    Error fault = m_faults.front();
    m_faults.pop_front();
    return fault;
}

void FakeSettingsStore::endTurn() {
    const Result<> stored = store();
    if (!stored) m_faults.push_back(stored.error());
}
