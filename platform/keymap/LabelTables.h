// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

#include <cstdint>

/// The words and symbols on keys that type nothing. All functions give null where there is none.
namespace labels {

/// The spacing form of a dead key ("´").
const char* deadKey(xkb_keysym_t symbol);
/// A symbol or name by what the key means ("↩", "Volume Up").
const char* symbol(xkb_keysym_t symbol);
/// Function keys, by key code: their labels hold whatever the layout makes of them.
const char* fixedPosition(std::uint32_t keyCode);
/// A name by key code for keys without a meaning in the layout.
const char* position(std::uint32_t keyCode);

}  // namespace labels
