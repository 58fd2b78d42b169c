// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "desktop/Desktop.h"
#include "x11/Hands.h"

/// X key codes of a keyboard with evdev codes.
namespace key {
inline constexpr std::uint8_t a = 38;
inline constexpr std::uint8_t b = 56;
inline constexpr std::uint8_t escape = 9;
inline constexpr std::uint8_t period = 60;
inline constexpr std::uint8_t shift = 50;
inline constexpr std::uint8_t control = 37;
inline constexpr std::uint8_t super = 133;
inline constexpr std::uint8_t r = 27;
inline constexpr std::uint8_t s = 39;
inline constexpr std::uint8_t p = 33;
inline constexpr std::uint8_t m = 58;
}  // namespace key

/// A desktop with a window manager and a terminal that is typed into.
class DesktopTest : public testing::Test {
  protected:
    DesktopTest() { desktop.startWindowManager(); }

    void press(const std::string& combination) const { desktop.run({"xdotool", "key", combination}); }
    void record() const { press("ctrl+super+r"); }
    void stop() const { press("ctrl+super+s"); }
    void play() const { press("ctrl+super+p"); }

    /// Whether that lock's light is on.
    bool isLocked(const std::string& lock) const {
        return desktop.run({"xset", "q"}).find(lock + ":   on") != std::string::npos ||
               desktop.run({"xset", "q"}).find(lock + ":    on") != std::string::npos;
    }

    Desktop desktop;
};
