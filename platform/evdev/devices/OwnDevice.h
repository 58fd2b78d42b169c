// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// The keyboard that Keyrill makes to press keys with (uinput): those who watch keyboards leave it out.
namespace evdev::own_device {

inline constexpr std::string_view name = "Keyrill keyboard";
/// Its place, which no other device has.
inline constexpr std::string_view place = "keyrill/typing";

}  // namespace evdev::own_device
