// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>

#include "platform/RecordStore.h"
#include "platform/fake/NextError.h"

/// Records in memory, and in what stands for their file.
class FakeRecordStore : public RecordStore {
  public:
    const std::map<std::string, Record>& records() override { return m_records; }
    void set(const std::string& name, const Record& record) override;
    Result<> synchronize() override;
    std::optional<Error> takeFault() override;

    void endTurn();

    /// As the next start would read them.
    const std::map<std::string, Record>& stored() const { return m_stored; }
    /// What an earlier run of the program has stored.
    void put(const std::string& name, const Record& record) { m_records[name] = m_stored[name] = record; }
    /// The next write fails.
    void failNextCall(const Error& error) { m_nextError.set(error); }
    void addFault(const Error& fault) { m_faults.push_back(fault); }

  private:
    std::map<std::string, Record> m_records;
    std::map<std::string, Record> m_stored;
    bool m_isDue = false;
    NextError m_nextError;
    std::deque<Error> m_faults;
};
