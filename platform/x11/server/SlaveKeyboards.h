// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <bitset>
#include <cstdint>
#include <vector>

namespace x11 {

/// One keyboard below a master keyboard: a real one, or the one through which XTEST speaks.
struct SlaveKeyboard {
    std::uint16_t device = 0;
    std::uint16_t master = 0;
    bool isXtest = false;
};

/// All slave keyboards of the server. The connection must have announced XInput 2.
std::vector<SlaveKeyboard> slaveKeyboards(xcb_connection_t* connection);

/// The key codes that are down on this one device. A question to the core keyboard would not do: it forgets
/// the keys of one device when another one speaks.
std::bitset<256> keysDownOn(xcb_connection_t* connection, const SlaveKeyboard& keyboard);

/// Releases what the XTEST keyboards hold down, and nothing else, and waits until it is done. The number of
/// keys released.
int releaseXtestKeys(xcb_connection_t* connection);

}  // namespace x11
