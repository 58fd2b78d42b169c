// SPDX-License-Identifier: MIT
#include "platform/fake/FakeRecordStore.h"

#include <utility>

void FakeRecordStore::set(const std::string& name, const Record& record) {
    m_isDue = true;
    if (record.empty()) {
        m_records.erase(name);
    } else {
        m_records[name] = record;
    }
}

Result<> FakeRecordStore::synchronize() {
    m_isDue = false;
    if (auto error = m_nextError.take()) return *std::move(error);
    m_stored = m_records;
    return {};
}

std::optional<Error> FakeRecordStore::takeFault() {
    if (m_faults.empty()) return std::nullopt;
    Error fault = std::move(m_faults.front());
    m_faults.pop_front();
    return fault;
}

void FakeRecordStore::endTurn() {
    if (!m_isDue) return;
    const Result<> stored = FakeRecordStore::synchronize();
    if (!stored) m_faults.push_back(stored.error());
}
