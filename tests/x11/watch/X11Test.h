// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "x11/watch/X11World.h"

/// X key codes of a keyboard with evdev codes.
namespace xkey {
inline constexpr std::uint8_t escape = 9;
inline constexpr std::uint8_t one = 10;
inline constexpr std::uint8_t two = 11;
inline constexpr std::uint8_t seven = 16;
inline constexpr std::uint8_t q = 24;
inline constexpr std::uint8_t p = 33;
inline constexpr std::uint8_t returnKey = 36;
inline constexpr std::uint8_t control = 37;
inline constexpr std::uint8_t a = 38;
inline constexpr std::uint8_t s = 39;
inline constexpr std::uint8_t semicolon = 47;
inline constexpr std::uint8_t shift = 50;
inline constexpr std::uint8_t b = 56;
inline constexpr std::uint8_t m = 58;
inline constexpr std::uint8_t rightShift = 62;
inline constexpr std::uint8_t alt = 64;
inline constexpr std::uint8_t space = 65;
inline constexpr std::uint8_t capsLock = 66;
inline constexpr std::uint8_t f5 = 71;
inline constexpr std::uint8_t numLock = 77;
inline constexpr std::uint8_t scrollLock = 78;
inline constexpr std::uint8_t keypadOne = 87;
inline constexpr std::uint8_t keypadEnter = 104;
inline constexpr std::uint8_t altGr = 108;
inline constexpr std::uint8_t super = 133;
}  // namespace xkey

/// Modifier bits of such a keyboard.
namespace xmask {
inline constexpr std::uint8_t shift = 0x01;
inline constexpr std::uint8_t capsLock = 0x02;
inline constexpr std::uint8_t control = 0x04;
inline constexpr std::uint8_t numLock = 0x10;
inline constexpr std::uint8_t super = 0x40;
}  // namespace xmask

/// A world, and all that its manager delivers, in words: "down 0 a 0x200" with the mask in force, "repeat 0 a
/// 0x0", "up 0", "mask 0x200", "pressed 2", "released 2".
class X11Test : public testing::Test {
  protected:
    using Log = std::vector<std::string>;

    X11Test();

    X11World& world() { return m_world; }
    const Hands& hands() const { return m_world.hands(); }

    /// Everything since the last call, all that was done by now included.
    Log delivered();
    /// The same, only lines that begin so.
    Log delivered(const std::string& beginning);
    /// The event loop turns until the condition holds; false at the deadline.
    bool loopUntil(const std::function<bool()>& condition);
    const Log& log() const { return m_log; }
    int count(const std::string& line) const;

    /// Ctrl+Super+key under an id.
    HotKeyState request(HotKeyId id, const std::string& name, std::uint32_t keyCode);

    /// Called with each line as it is delivered.
    std::function<void(const std::string&)> onLine;

  private:
    void note(const std::string& line);

    X11World m_world;
    Log m_log;
};

/// A key event in the words above.
std::string wordsFor(const KeyEvent& event);
