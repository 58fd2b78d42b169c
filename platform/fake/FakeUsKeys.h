// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

/// What a US keyboard types and what its keys are called.
namespace fakeus {

/// The modifier of a modifier or lock key, 0 for all other keys.
std::uint32_t modifierOf(std::uint32_t keyCode);

/// The ASCII character of a key, 0 if none.
char character(std::uint32_t keyCode, bool shift);

/// True for the keys that Caps Lock inverts.
bool isLetter(std::uint32_t keyCode);

/// Never empty.
std::string keyName(std::uint32_t keyCode);

/// As this desktop writes it: "Ctrl+Alt+Shift+Super+P".
std::string combinationName(std::uint32_t keyCode, std::uint32_t modifiers);

}  // namespace fakeus
