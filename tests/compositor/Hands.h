// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

/// The hands of a person at a compositor. Each press and release has reached it when its function returns.
///
/// Keys are X key codes (support/Keys.h).
class Hands {
  public:
    virtual ~Hands() = default;

    void press(std::uint8_t keycode) { send(keycode, true); }
    void release(std::uint8_t keycode) { send(keycode, false); }
    /// Presses all in order, and releases them in the opposite one, at the pace of a person.
    void stroke(std::initializer_list<std::uint8_t> keycodes);
    /// Small letters, capitals, digits, blanks and full stops of a US keyboard.
    void type(const std::string& text);

  protected:
    Hands() = default;
    Hands(const Hands&) = default;
    Hands& operator=(const Hands&) = default;

  private:
    virtual void send(std::uint8_t keycode, bool press) = 0;
};
