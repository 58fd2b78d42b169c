// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/PlayOptions.h"
#include "platform/Result.h"

// How plays are spoken of by those who ask for them: in words, on the command line and on the bus.

/// What was written for the times and the speed; the error tells what can be.
Result<PlayWish> playWish(const std::optional<std::string>& times, const std::optional<std::string>& speed);

/// An empty name, as a script has whose variable is not set: nothing is played for it.
Error noName();
