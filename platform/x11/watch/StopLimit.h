// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <set>
#include <thread>

#include "platform/x11/server/XConnection.h"

namespace x11 {

/// A key with certain modifiers, as grabs name it.
struct KeyPlace {
    std::uint8_t keycode = 0;
    std::uint16_t modifiers = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): what the compiler compares with is no pointer.
    friend auto operator<=>(const KeyPlace&, const KeyPlace&) = default;
};

/// Sets the keyboard going again that a press has stopped, if the program does not within a second.
///
/// Why: such a press waits for its answer with all keys after it, so that a program that hangs would keep the
/// whole keyboard. This answers from a thread of its own, which exists from the first place on and sleeps
/// while there is none. It cannot help where the whole process is stopped (SIGSTOP).
class StopLimit {
  public:
    /// What is unread at two looks in turn is not being read.
    static constexpr std::chrono::milliseconds betweenLooks{500};

    /// The connection holds the grabs, and outlives this.
    explicit StopLimit(const XConnection& connection) : m_connection(connection) {}
    ~StopLimit();
    StopLimit(const StopLimit&) = delete;
    StopLimit& operator=(const StopLimit&) = delete;

    /// A press there stops the keyboard from now on, or does no longer.
    void add(const KeyPlace& place);
    void remove(const KeyPlace& place);
    /// The program reads what has come: it does not hang.
    void note() { ++m_reads; }

  private:
    void watch();
    bool isUnread() const;
    void setGoing();

    const XConnection& m_connection;
    std::atomic<unsigned> m_reads{0};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    /// Those below belong to the mutex.
    std::set<KeyPlace> m_places;
    bool m_ends = false;
    std::thread m_thread;
};

}  // namespace x11
