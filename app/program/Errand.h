// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <variant>

#include "app/library/PlayRequests.h"
#include "platform/PlayOptions.h"
#include "platform/Result.h"

struct ActionRow;

/// Plays a macro.
struct PlayErrand {
    enum class Of {
        current,  ///< what Play plays
        macro,    ///< one of the library, by its name
        file,     ///< by its absolute path
    };
    Of of = Of::current;
    std::string name = {};
    PlayWish wish = {};
};

/// Shows the window of the macros.
struct ShowErrand {
    /// Which one is chosen in it, by its name; empty for the one that is.
    std::string macro = {};
};

/// What somebody asks of the running program over the session bus.
using Errand = std::variant<const ActionRow*, PlayErrand, ShowErrand>;

/// Carries it out, or begins to.
using RunErrand = std::function<Result<void, Refusal>(const Errand& errand)>;

/// Whether it speaks of a macro of the library, which has to be read first.
inline bool needsLibrary(const Errand& errand) {
    const auto* const play = std::get_if<PlayErrand>(&errand);
    const auto* const show = std::get_if<ShowErrand>(&errand);
    return (play != nullptr && play->of == PlayErrand::Of::macro) ||
           (show != nullptr && !show->macro.empty());
}
