// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "library/steps/RecordedScript.h"

/// The script of a recording of these lines (keyLines() and its like), which has to be one.
inline std::string recordingOf(const std::string& lines) {
    return std::string(steps::firstLine) + lines + std::string(steps::lastLine);
}

inline steps::RecordedScript recorded(const std::string& script) {
    return steps::RecordedScript::parse(script).value();
}
