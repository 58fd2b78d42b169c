// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/KeyInjector.h"
#include "platform/script/commands/Command.h"

/// What the keyboard commands share.
namespace script {

/// The mask of modifiers that `using` gives; 0 where it was left out.
Fallible<std::uint32_t> modifierMask(CommandStage& stage, const Value* given);

/// A key code within the range that the language has. The power key is never pressed.
Fallible<std::uint32_t> keyCodeOf(const Value& value);

/// Whether there is such a key; warns if not.
bool acceptCode(CommandStage& stage, std::uint32_t code);

/// Presses or releases keys, each named by a modifier, a code or a text.
Fallible<Value> hold(CommandStage& stage, const Value& keys, bool down);

/// The value nothing, or why a step failed.
Fallible<Value> outcomeOf(Fallible<> step);

}  // namespace script
