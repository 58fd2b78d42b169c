// SPDX-License-Identifier: MIT
#include "library/RecordingHistory.h"

#include <algorithm>
#include <utility>

#include "core/MacroManager.h"

RecordingHistory::RecordingHistory(RecordingStore& store, HistoryListener& listener)
    : m_store(store), m_listener(listener) {}

void RecordingHistory::setKept(bool isKept) {
    if (std::exchange(m_isKept, isKept) == isKept) return;
    if (!isKept) {
        for (HistoryEntry& entry : m_entries) entry.name.clear();
        return tell(m_store.forgetAll());
    }
    const std::size_t here = m_entries.size();
    load();
    // The latest last, so that it is none of those that go.
    for (std::size_t i = here; i-- > 0;) store(m_entries[i]);
}

void RecordingHistory::load() {
    for (StoredRecording& stored : m_store.all()) {
        const boost::shared_ptr<Macro> macro = MacroManager::createMacro();
        macro->setScript(stored.script);
        m_entries.push_back({macro->macroId(), std::move(stored.title), stored.recordedAt, stored.name});
        m_listener.recordingAppeared(m_entries.size() - 1);
    }
}

void RecordingHistory::store(HistoryEntry& entry) {
    auto name = m_store.keep({.recordedAt = entry.recordedAt,
                              .title = entry.title,
                              .script = MacroManager::macro(entry.macroId)->script()});
    if (!name) return m_listener.historyFailed(name.error());
    entry.name = std::move(name).value();
}

void RecordingHistory::add(const Macro& macro) {
    const auto now = std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    m_entries.insert(m_entries.begin(),
                     {.macroId = macro.macroId(), .title = macro.displayText(), .recordedAt = now});
    m_listener.recordingAppeared(0);
    if (m_isKept) store(m_entries.front());
}

void RecordingHistory::remove(std::size_t index) {
    const int macroId = m_entries[index].macroId;
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(index));
    m_listener.recordingGone(macroId);
}

void RecordingHistory::forget(int macroId) {
    const auto isIt = [macroId](const HistoryEntry& entry) { return entry.macroId == macroId; };
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(), isIt);
    if (entry == m_entries.end()) return;
    if (!entry->name.empty()) {
        const Result<> forgotten = m_store.forget(entry->name);
        // Who sees it no longer would think it gone.
        if (!forgotten) return m_listener.historyFailed(forgotten.error());
    }
    remove(static_cast<std::size_t>(entry - m_entries.begin()));
}

void RecordingHistory::forgetAll() {
    if (m_isKept) {
        const Result<> forgotten = m_store.forgetAll();
        if (!forgotten) return m_listener.historyFailed(forgotten.error());
    }
    while (!m_entries.empty()) remove(m_entries.size() - 1);
}

void RecordingHistory::tell(const Result<>& done) {
    if (!done) m_listener.historyFailed(done.error());
}
