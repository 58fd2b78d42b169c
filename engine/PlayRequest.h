// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/PlayOptions.h"

/// A script that is to be played whatever the current macro is, which stays.
struct PlayRequest {
    std::string script;
    PlayOptions options = {};
    /// Called when the play begins; may be empty.
    std::function<void()> begins = {};
};
