// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "platform/x11/server/XConnection.h"

/// Another program at the same X server that presses keys by XTEST and changes locks and groups. Key codes
/// are X key codes.
class Hands {
  public:
    explicit Hands(const std::string& display);

    /// Queued; sent by flush() or finish().
    void press(std::uint8_t keycode) const { fake(keycode, true); }
    void release(std::uint8_t keycode) const { fake(keycode, false); }
    void tap(std::uint8_t keycode) const;
    /// The first keys are held around the last one.
    void stroke(std::initializer_list<std::uint8_t> keycodes) const;
    /// A button of the mouse, where that is.
    void click(std::uint8_t button) const;
    void flush() const { xcb_flush(m_connection); }
    /// Waits until the server has done all of it and has told everybody.
    void finish() const;

    /// Sets real modifiers as locked, or takes the lock away.
    void lock(std::uint8_t modifiers, bool on) const;
    void lockGroup(std::uint8_t group) const;

    const x11::XConnection& connection() const { return m_connection; }

  private:
    void fake(std::uint8_t keycode, bool down) const;

    x11::XConnection m_connection;
};
