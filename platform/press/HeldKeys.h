// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/press/StrokeSender.h"

/// What a run holds down from `key down` to `key up`.
///
/// The hot keys of a key that is held are lifted until it is up: the server repeats a key that is down, and a
/// repeat with the modifiers of a hot key would take the keyboard for it.
class HeldKeys {
  public:
    HeldKeys(KeyOutput& output, RunWatch& watch, StrokeSender& sender)
        : m_output(output), m_watch(watch), m_sender(sender) {}

    bool empty() const { return m_held.empty(); }
    /// All keys that are held, the modifiers that others needed included.
    KeycodeSet keycodes() const;

    /// Queues the presses of a stroke whose key is not held yet.
    void press(const ModifierKeys& keys, const Stroke& stroke);
    /// Releases the key, and what went down with it. Nothing if it is none of those that are held; fails when
    /// the connection is lost.
    Result<void> letGo(std::uint8_t keycode);

    /// Releases all, for a while or for good. They are still said to be held.
    void rest();
    /// Presses all again, in the order in which they were pressed.
    void pressAgain();
    /// These are up already, and not to be released.
    void forget(const KeycodeSet& keycodes);

  private:
    struct Held {
        std::uint8_t keycode = 0;
        /// The key, after the modifiers that it needed.
        std::vector<std::uint8_t> pressed;
        bool isLifted = false;
    };

    void release(const Held& held);

    KeyOutput& m_output;
    RunWatch& m_watch;
    StrokeSender& m_sender;
    std::vector<Held> m_held;
};
