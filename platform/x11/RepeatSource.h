// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "platform/x11/MonitorEvents.h"
#include "platform/x11/XConnection.h"

/// What the keyboard's core events say: which presses are auto-repeats. A first press or a release is kept
/// only as the mark of its place between the repeats.
class RepeatQueue {
  public:
    void add(std::uint8_t keycode, bool press, ServerTime time);

    bool hasRepeats() const;
    /// Takes the key codes of the repeats that came before this raw event.
    std::vector<std::uint8_t> takeBefore(const RawKey& key);
    /// Takes those of the first entries, as many as count() has once told, and forgets their marks.
    std::vector<std::uint8_t> takeUpTo(std::uint64_t count);
    /// How many entries there have ever been.
    std::uint64_t count() const { return m_taken + m_entries.size(); }

  private:
    struct Entry {
        std::uint8_t keycode;
        bool press;
        bool repeat;
        ServerTime time;
    };

    std::vector<std::uint8_t> takeFirst(std::size_t count);

    std::deque<Entry> m_entries;
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
    bool isRecording() const { return m_recording; }

  private:
    RepeatSource(XConnection control, XConnection data);

    Result<void> start();

    XConnection m_control;
    XConnection m_data;
    std::uint32_t m_context = 0;
    unsigned m_sequence = 0;
    bool m_recording = false;
    RepeatQueue m_queue;
};
