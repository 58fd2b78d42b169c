// SPDX-License-Identifier: MIT
#pragma once

/// What the menu, the prompt and the overlay depend on.
struct MenuFacts {
    bool recording = false;
    /// Whether a recording has been stopped since the program started, also one without actions.
    bool hasStopped = false;
    /// From the start of a recording until its end, but not in one that was cancelled at its start.
    bool overlayShown = false;
    /// Whether there is a current macro to play.
    bool hasMacro = false;
    bool hasHistory = false;
    /// Whether a question of the program's own is open or the screen is locked.
    bool gateShut = false;
    bool screenLocked = false;
    /// Whether the prompt asks how often to play.
    bool promptShown = false;
    /// Whether hot keys are off, since they are being chosen.
    bool hotKeysOff = false;

    friend bool operator==(const MenuFacts&, const MenuFacts&) = default;
};
