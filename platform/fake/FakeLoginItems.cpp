// SPDX-License-Identifier: MIT
#include "platform/fake/FakeLoginItems.h"

LoginItems::State FakeLoginItems::state() const {
    if (!m_entry) return State::off;
    if (m_entry->hidden) return State::hiddenByUser;
    return m_entry->path == programPath ? State::on : State::off;
}

Result<> FakeLoginItems::install(bool enable) {
    m_journal.note("installLoginItem", enable);
    if (const auto error = m_nextError.take()) return *error;
    ++m_installs;
    if (state() == State::hiddenByUser) return {};
    if (enable) {
        m_entry = Entry{programPath};
    } else if (state() == State::on) {
        m_entry.reset();
    }
    return {};
}

Result<> FakeLoginItems::reveal() {
    m_journal.note("revealLoginItem");
    if (const auto error = m_nextError.take()) return *error;
    m_entry = Entry{programPath};
    return {};
}
