// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <span>

#include "platform/press/KeyOutput.h"
#include "platform/press/StrokeSender.h"
#include "platform/run/RunCompanion.h"
#include "platform/run/RunWait.h"

namespace wayland {

/// The keyboard of a run, and how that types on it. It comes when the run begins, and goes while that rests.
class RunKeyboard {
  public:
    virtual ~RunKeyboard() = default;

    /// Comes, with nothing down and the layout that is in force then. May wait.
    virtual Step<> plugIn() = 0;
    /// Goes; what is pressed from then on goes nowhere.
    virtual void unplug() = 0;
    /// What is down, locked and in force.
    virtual XkbComponents components() const = 0;

    /// Types the characters with further modifiers and locks held over each. Fails before the first one if
    /// one of them cannot be typed; the message names it.
    virtual Step<> type(std::span<const char32_t> characters, const Stroke& around,
                        const KeycodeSet& held) = 0;
    /// Those characters are going to be typed.
    virtual Step<> prepare(std::span<const char32_t> characters) = 0;
    /// The stroke of a character.
    virtual Step<Stroke> strokeFor(char32_t character) = 0;
};

/// A way to press keys in the windows of a Wayland session.
class Pressing {
  public:
    virtual ~Pressing() = default;

    /// Whether keys can be pressed here; looks if that has not been done. Asks nobody.
    virtual Result<void> start() = 0;
    /// Where keys are pressed; all go nowhere while no run has its keyboard.
    virtual KeyOutput& output() = 0;
    /// Another process that it relies on.
    virtual RunCompanion& companion() = 0;
    /// For one run, which outlives it with what it is given.
    virtual std::unique_ptr<RunKeyboard> keyboard(StrokeSender& sender, RunWait& wait) = 0;
};

}  // namespace wayland
