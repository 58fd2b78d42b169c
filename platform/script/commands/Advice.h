// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "platform/script/values/Value.h"

/// The words of warnings, which the compiler and the run share.
namespace script {

/// What there is to say about a key code: only this program plays it, or no key has it. Empty for all others.
std::string codeAdvice(std::uint32_t code);

/// "Key code N has no key; nothing is pressed."
std::string noKeyAdvice(std::uint32_t code);

/// Of a key's name in the place of a modifier that is down.
std::string modifierAdvice(const Modifier& modifier);

}  // namespace script
