// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/LoginItems.h"
#include "platform/fake/Journal.h"
#include "platform/fake/NextError.h"

/// The desktop's list of programs to start, with at most one entry of this program.
class FakeLoginItems : public LoginItems {
  public:
    struct Entry {
        std::string path;
        bool hidden = false;

        friend bool operator==(const Entry&, const Entry&) = default;
    };

    /// Where this program lies.
    static constexpr const char* programPath = "/opt/keyrill/bin/keyrill";

    explicit FakeLoginItems(Journal& journal) : m_journal(journal) {}

    State state() const override;
    Result<> install(bool enable) override;
    Result<> reveal() override;

    /// The next install() fails and changes nothing.
    void failNextCall(const Error& error) { m_nextError.set(error); }
    /// In the desktop's own settings; the entry has to be there.
    void userHidesEntry() { m_entry.value().hidden = true; }
    /// What another version of the program, or this one before it was moved, left behind.
    void put(const Entry& entry) { m_entry = entry; }
    const std::optional<Entry>& entry() const { return m_entry; }
    /// Calls of install() that came to an end.
    int installs() const { return m_installs; }

  private:
    Journal& m_journal;
    std::optional<Entry> m_entry;
    NextError m_nextError;
    int m_installs = 0;
};
