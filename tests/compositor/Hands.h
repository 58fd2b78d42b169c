// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>

/// The hands of a person at a compositor. Each press and release has reached it when its function returns.
///
/// Keys are X key codes (support/Keys.h).
class Hands {
  public:
    virtual ~Hands() = default;

    void press(std::uint8_t keycode) { send(keycode, true); }
    void release(std::uint8_t keycode) { send(keycode, false); }
    /// Presses all in order, and releases them in the opposite one.
    void stroke(std::initializer_list<std::uint8_t> keycodes) {
        for (const std::uint8_t keycode : keycodes) press(keycode);
        for (const auto* keycode = keycodes.end(); keycode != keycodes.begin();) release(*--keycode);
    }

  protected:
    Hands() = default;
    Hands(const Hands&) = default;
    Hands& operator=(const Hands&) = default;

  private:
    virtual void send(std::uint8_t keycode, bool press) = 0;
};
