// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>

/// Some of a keymap's keys, by their XKB key codes.
using KeycodeSet = std::bitset<256>;
