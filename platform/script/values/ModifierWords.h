// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>

#include "platform/Modifiers.h"
#include "platform/script/source/Word.h"

namespace script {

/// A modifier, and the word for it.
struct ModifierWord {
    Word word;
    std::uint32_t modifier;  ///< bit of platform/Modifiers.h
};

/// In the order in which they are printed.
inline constexpr auto modifierWords = std::to_array<ModifierWord>({
    {Word::command, modifier::command},
    {Word::control, modifier::control},
    {Word::option, modifier::option},
    {Word::shift, modifier::shift},
});

}  // namespace script
