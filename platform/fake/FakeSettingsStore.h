// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <map>
#include <vector>

#include "platform/SettingsStore.h"
#include "platform/fake/Journal.h"
#include "platform/fake/NextError.h"

/// Settings in memory: what the program has set, and what of it is stored.
class FakeSettingsStore : public SettingsStore {
  public:
    explicit FakeSettingsStore(Journal& journal) : m_journal(journal) {}

    std::optional<std::int64_t> integer(const std::string& key) const override;
    void setInteger(const std::string& key, std::int64_t value) override;
    void setBool(const std::string& key, bool value) override;
    Result<> synchronize() override;
    std::optional<Error> takeFault() override;

    /// What the user's settings file says.
    void put(const std::string& key, std::int64_t value) { m_values[key] = m_stored[key] = value; }
    /// What the file holds now.
    const std::map<std::string, std::int64_t>& stored() const { return m_stored; }
    /// All keys that were set, in order.
    const std::vector<std::string>& keysSet() const { return m_keysSet; }
    /// How often the file was written.
    int writes() const { return m_writes; }
    /// The next write fails; the file stays as it was.
    void failNextCall(const Error& error) { m_nextError.set(error); }
    /// The loop's turn ends: what was set is stored; a failure is a fault.
    void endTurn();
    /// As if the file could not be read at the start.
    void addFault(const Error& fault) { m_faults.push_back(fault); }

  private:
    void set(const std::string& key, std::int64_t value);
    Result<> store();

    Journal& m_journal;
    std::map<std::string, std::int64_t> m_values;
    std::map<std::string, std::int64_t> m_stored;
    std::vector<std::string> m_keysSet;
    std::deque<Error> m_faults;
    NextError m_nextError;
    int m_writes = 0;
    bool m_isStored = true;
};
