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
    /// A recording could not be stored, or is still in the store although it was to be forgotten.
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

    /// Kept from now on: what is stored comes in behind what is there, and what is there is stored. No longer
    /// kept: nothing is left in the store, and what is there stays for this run.
    void setKept(bool isKept);
    bool isKept() const { return m_isKept; }

    /// A recording has ended.
    void add(const Macro& macro);
    /// It leaves the history, and the store. Its macro stays for whoever has it.
    void forget(int macroId);
    void forgetAll();

  private:
    void load();
    void store(HistoryEntry& entry);
    void tell(const Result<>& done);
    void remove(std::size_t index);

    RecordingStore& m_store;
    HistoryListener& m_listener;
    std::vector<HistoryEntry> m_entries;
    bool m_isKept = false;
};
