// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class Sway;

/// A user who locks the screen of his sway with swaylock, as it is installed.
class Swaylock {
  public:
    /// The screen is locked, and the locker has the keyboard, when this returns; one that does not lock fails
    /// the test by an exception.
    explicit Swaylock(const Sway& sway);

    /// As the user's password does; a window has the keyboard again when it returns.
    void open();

  private:
    bool hasKeyboard() const;

    const Sway& m_sway;
    std::string m_file;
};
