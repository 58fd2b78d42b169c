// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/KeyInjector.h"
#include "platform/script/commands/Command.h"

/// What the keyboard commands share.
namespace script {

/// The mask of modifiers that `using` gives; 0 where it was left out.
std::variant<std::uint32_t, Failure> modifierMask(CommandStage& stage, const Value* given);

/// A key code within the range that the language has. The power key is never pressed.
std::variant<std::uint32_t, Failure> keyCodeOf(const Value& value);

/// Whether there is such a key; if not, that is told.
bool isPlayable(CommandStage& stage, std::uint32_t code);

/// Presses or releases keys, each named by a modifier, a code or a text.
Fallible<Value> hold(CommandStage& stage, const Value& keys, bool down);

/// The value nothing, or why a step failed.
Fallible<Value> outcomeOf(std::optional<Failure> failure);

/// -10000 with what the desktop says.
Failure desktopFailure(const Error& error);

}  // namespace script
