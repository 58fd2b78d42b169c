// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/script/values/Value.h"

/// The words of warnings and hints, which the compiler and the run share.
namespace script {

/// What there is to say about a key code: only this program plays it, no key has it, or none can. Empty for
/// all others.
std::string codeAdvice(std::int64_t code);

/// "Key code N has no key; nothing is pressed."
std::string noKeyAdvice(std::uint32_t code);

/// Of a text, or what else is no number, in the place of a key code.
std::string noCodeAdvice();

/// Of a key's name in the place of a modifier that is down.
std::string modifierAdvice(const Modifier& modifier);

/// Of a text in the place of a modifier; empty where it names none.
std::string quotedModifierAdvice(std::string_view text);

/// Of modifiers that are calculated with.
std::string joinedModifiersAdvice();

/// Of texts with a plus between them.
std::string joinedTextsAdvice();

/// Of a comparison whose answer nobody takes. The name is empty where none is compared.
std::string comparisonAdvice(std::string_view name);

/// "The variable NAME is never set. "
std::string neverSet(std::string_view name);

/// Of a text that is typed as it stands and names a key or a shortcut as other programs do: "{ENTER}",
/// "ctrl+c". Empty for all others.
std::string typedNameAdvice(std::string_view text);

/// Of the name of a modifier in quotes, or by itself, where a text or key is meant.
std::string heldModifierAdvice();

/// Of a call for which the script has no handler.
std::string noHandlerAdvice(std::string_view name);

/// What words of other languages are here; empty for words of none.
std::string foreignWordAdvice(std::string_view name);

/// What a name was meant to be that is never set, where a value of that role belongs.
enum class NameRole : std::uint8_t { value, text, keyCode, application };
std::string meantBy(std::string_view name, NameRole role);

/// Of a variable without a value, where a script reads it.
std::string undefinedHint(std::string_view name);

}  // namespace script
