// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/RecordingStore.h"

class Macro;

/// A recording in the history: a macro of the MacroManager.
struct HistoryEntry {
    int macroId = 0;
    /// For a menu: Macro::displayText() as it was when the recording ended.
    std::string title = {};
    RecordedAt recordedAt = {};
    /// In the store; empty while it is not stored.
    std::string name = {};
};

/// Who is told when the history changes, once it is so.
class HistoryListener {
  public:
    virtual ~HistoryListener() = default;

    /// There is one more, at that place of entries().
    virtual void recordingAppeared(std::size_t index) = 0;
    virtual void recordingGone(int macroId) = 0;
    /// A recording could not be stored, or some are still in the store although they are kept no longer.
    virtual void historyFailed(const Error& why) = 0;
};

/// The recordings of this run and, while the history is kept, those of earlier ones. At first it is not kept.
class RecordingHistory {
  public:
    /// Both outlive the history.
    RecordingHistory(RecordingStore& store, HistoryListener& listener);
    RecordingHistory(const RecordingHistory&) = delete;
    RecordingHistory& operator=(const RecordingHistory&) = delete;

    /// The latest first.
    const std::vector<HistoryEntry>& entries() const { return m_entries; }

    /// Kept from now on: what is stored comes in, and what is there is stored. Kept no longer: nothing is
    /// left in the store, and what is there stays for this run.
    void setKept(bool isKept);
    bool isKept() const { return m_isKept; }

    /// A recording has ended.
    void add(const Macro& macro);
    /// It leaves the history, and the store. Its macro stays for whoever has it. The error tells why it is
    /// still in both.
    Result<> forget(int macroId);
    /// The same for all of them, and for all that is in the store, whether it is kept or not.
    Result<> forgetAll();

  private:
    void takeIn(StoredRecording stored);
    void store(HistoryEntry& entry);
    void remove(std::size_t index);

    RecordingStore& m_store;
    HistoryListener& m_listener;
    std::vector<HistoryEntry> m_entries;
    bool m_isKept = false;
};
