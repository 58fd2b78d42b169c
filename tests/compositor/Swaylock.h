// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>

class Sway;

/// A user who locks the screen of his sway with swaylock, as it is installed.
class Swaylock {
  public:
    /// The screen is locked, and the locker has the keyboard, when this returns; one that does not lock fails
    /// the test by an exception.
    explicit Swaylock(const Sway& sway);

    /// Its own, all over the screen until keys are pressed.
    static constexpr std::array<std::uint8_t, 3> colour{0x20, 0x30, 0x40};

    /// As the user's password does; a window has the keyboard again when it returns.
    void open();

  private:
    const Sway& m_sway;
    std::string m_file;
};
