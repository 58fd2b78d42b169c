// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

namespace wayland {

/// The keymap in a file of the compositor's, `size` bytes with the zero at the end; empty if it is too large
/// or cannot be read.
std::string keymapText(int file, std::uint32_t size);

}  // namespace wayland
