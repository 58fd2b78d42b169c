// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/script/source/ScriptError.h"

/// What a script would do.
struct Traced {
    enum class Phase { none, compile, run };

    /// One JSON array a line.
    std::string events;
    /// The value of the last statement, as a script would spell it; empty if it has none.
    std::string value;
    /// Where it failed, if it did.
    Phase phase = Phase::none;
    script::ScriptError error;
    /// "line:column message", those of the compiler first.
    std::vector<std::string> warnings;
};

Traced traced(const std::string& source);

/// The events of lines inside `tell application "System Events"`, and behind them the number and message of
/// the error if there is one.
std::string told(const std::string& lines);
