// SPDX-License-Identifier: MIT
#include "library/RecordingHistory.h"

#include <algorithm>
#include <set>
#include <utility>

#include "core/MacroManager.h"

RecordingHistory::RecordingHistory(RecordingStore& store, HistoryListener& listener)
    : m_store(store), m_listener(listener) {}

void RecordingHistory::setKept(bool isKept) {
    if (std::exchange(m_isKept, isKept) == isKept) return;
    if (!isKept) {
        const Result<> forgotten = m_store.forgetAll();
        // They keep their names in the store, of which some are still there.
        if (!forgotten) return m_listener.historyFailed(forgotten.error());
        for (HistoryEntry& entry : m_entries) entry.name.clear();
        return;
    }
    std::vector<StoredRecording> stored = m_store.all();
    std::set<std::string> names;
    for (const StoredRecording& recording : stored) names.insert(recording.name);
    // Not those that would go at once; the earliest first, for those of the same moment.
    for (std::size_t i = std::min(m_entries.size(), RecordingStore::most); i-- > 0;) {
        if (names.erase(m_entries[i].name) == 0) store(m_entries[i]);
    }
    for (StoredRecording& recording : stored) {
        if (names.contains(recording.name)) takeIn(std::move(recording));
    }
}

void RecordingHistory::takeIn(StoredRecording stored) {
    const boost::shared_ptr<Macro> macro = MacroManager::createMacro();
    macro->setScript(stored.script);
    const auto isEarlier = [&stored](const HistoryEntry& entry) {
        return entry.recordedAt < stored.recordedAt;
    };
    const auto place = std::find_if(m_entries.begin(), m_entries.end(), isEarlier);
    const std::size_t index = static_cast<std::size_t>(place - m_entries.begin());
    m_entries.insert(place, {macro->macroId(), std::move(stored.title), stored.recordedAt, stored.name});
    m_listener.recordingAppeared(index);
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

Result<> RecordingHistory::forget(int macroId) {
    const auto isIt = [macroId](const HistoryEntry& entry) { return entry.macroId == macroId; };
    const auto entry = std::find_if(m_entries.begin(), m_entries.end(), isIt);
    if (entry == m_entries.end()) return {};
    if (!entry->name.empty()) {
        // Who sees it no longer would think it gone.
        if (auto forgotten = m_store.forget(entry->name); !forgotten) return forgotten;
    }
    remove(static_cast<std::size_t>(entry - m_entries.begin()));
    return {};
}

Result<> RecordingHistory::forgetAll() {
    if (auto forgotten = m_store.forgetAll(); !forgotten) return forgotten;
    while (!m_entries.empty()) remove(m_entries.size() - 1);
    return {};
}
