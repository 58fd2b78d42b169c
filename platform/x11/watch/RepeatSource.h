// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Wiping.h"
#include "platform/monitor/MonitorEvents.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

/// A key of the core keyboard goes down again without having gone up.
struct KeyRepeat {
    std::uint8_t keycode = 0;
    ServerTime time = 0;

    friend bool operator==(const KeyRepeat&, const KeyRepeat&) = default;
};

/// The keyboard's core events in their order. The repeats among them are taken; a first press or a release is
/// kept only as the mark of the place of its raw event.
class RepeatQueue {
  public:
    using Condition = std::function<bool(const KeyRepeat&)>;

    void add(std::uint8_t keycode, bool press, ServerTime time);

    /// No key counts as down: what happened to them was not seen.
    void forgetKeysDown() { m_down.reset(); }

    bool hasAny(const Condition& condition) const;
    /// Takes the repeats that came before this raw event.
    std::vector<KeyRepeat> takeBefore(const RawKey& key);
    /// Takes those among the first events, as many as count() has once told.
    std::vector<KeyRepeat> takeUpTo(std::uint64_t count);
    /// How many events there have ever been.
    std::uint64_t count() const { return m_taken + m_entries.size(); }

  private:
    struct Entry {
        KeyRepeat what;
        bool press = false;
        bool isRepeat = false;
    };

    std::vector<KeyRepeat> takeFirst(std::size_t count);

    WipedQueue<Entry> m_entries;
    std::uint64_t m_taken = 0;
    std::bitset<256> m_down;
};

/// Listens to the core keyboard events by way of the RECORD extension, for auto-repeats alone: raw events
/// have none.
///
/// The server keeps what it recorded until it has something to send to any client, so a round trip on any
/// connection brings it out. Two are needed: the reply of the first may be written before the records are.
class RepeatSource {
  public:
    /// Fails where the server has no RECORD.
    static Result<std::unique_ptr<RepeatSource>> open(const std::string& display);
    ~RepeatSource();
    RepeatSource(const RepeatSource&) = delete;
    RepeatSource& operator=(const RepeatSource&) = delete;

    RepeatQueue& queue() { return m_queue; }
    const XConnection& control() const { return m_control; }
    const XConnection& data() const { return m_data; }

    /// Takes over what has come, without waiting.
    void read();
    /// Waits until all that the server has recorded so far is in the queue.
    void catchUp();
    /// False once the server has ended the recording.
    bool isRecording() const { return m_recording || m_paused; }

    /// Between the two nothing is recorded. Why: where a client dies while the server has many records to
    /// send, the server (X.Org 21.1) writes them in the middle of a walk along its list of clients with
    /// output, changes the list and walks for ever. What it has recorded so far is in the queue afterwards.
    void pause();
    void resume();

  private:
    RepeatSource(XConnection control, XConnection data);

    Result<void> start();
    void enable();
    /// Adds the events of a record and wipes it.
    void take(std::uint8_t* data, std::size_t length);

    XConnection m_control;
    XConnection m_data;
    std::uint32_t m_context = 0;
    unsigned m_sequence = 0;
    bool m_recording = false;
    bool m_paused = false;
    RepeatQueue m_queue;
};

}  // namespace x11
