// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "library/steps/Steps.h"
#include "platform/script/source/ScriptError.h"

namespace steps {

/// What a script would do, found out by running it where it presses nothing, waits for nothing, and each
/// question is answered by its default button.
struct Foreseen {
    /// Their `first` and `count` mean nothing.
    std::vector<Step> steps;
    /// Why it does not compile, or where its run failed.
    std::optional<script::ScriptError> error;
    /// Whether it would go on.
    bool isCut = false;
};

/// How long a script is followed.
struct Patience {
    std::size_t mostSteps = 10'000;
    /// Asked again and again while it runs; empty for never.
    std::function<bool()> isOver = {};
};

Foreseen foreseen(const std::string& source, const Patience& patience);

}  // namespace steps
