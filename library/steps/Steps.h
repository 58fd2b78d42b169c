// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "library/steps/RecordedScript.h"

class KeyboardLayout;

namespace steps {

enum class StepKind : std::uint8_t {
    typing,        ///< keys that type `text` under the layout in force
    key,           ///< one key or combination
    pause,         ///< of `seconds`
    text,          ///< `text` typed as a text, the same under each layout
    keyDown,       ///< a key, modifier or text that stays down ...
    keyUp,         ///< ... until it goes up
    question,      ///< `text` that the user is asked
    notification,  ///< `text` that he is told
};

/// What a person reads as one thing that a macro does.
struct Step {
    StepKind kind = StepKind::key;
    /// The lines of the recording that it stands for.
    std::size_t first = 0;
    std::size_t count = 1;
    /// How often in a row, 1 or more.
    std::size_t repeats = 1;
    /// Of a key, also of one that is held: platform/KeyCodes.h, platform/Modifiers.h. A modifier that is held
    /// alone has the code keycode::none.
    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;
    double seconds = 0;
    /// UTF-8.
    std::string text = {};

    friend bool operator==(const Step&, const Step&) = default;
};

/// The most characters that one step of typing has: longer ones are parted, so that each fits a line.
inline constexpr std::size_t longestTyping = 60;

/// A recording's steps, in order: keys that type are runs of text, the same key several times in a row is one
/// step, and so is the same pause. One below a comment begins anew.
std::vector<Step> stepsOf(const RecordedScript& recording, const KeyboardLayout& layout);

/// Adds a step, or counts the last one up where it does the same.
void append(std::vector<Step>& steps, const Step& step);

}  // namespace steps
