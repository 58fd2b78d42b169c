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

/// What marks the devices through which XTEST speaks; XCB_ATOM_NONE if the server has none.
xcb_atom_t xtestMark(xcb_connection_t* connection);
/// Whether a device, a number of XInput's, has the mark.
bool isXtest(xcb_connection_t* connection, std::uint16_t device, xcb_atom_t mark);

/// All slave keyboards of the server. The connection must have announced XInput 2.
std::vector<SlaveKeyboard> slaveKeyboards(xcb_connection_t* connection);

/// The key codes that are down on this one device. A question to the core keyboard would not do: it forgets
/// the keys of one device when another one speaks.
std::bitset<256> keysDownOn(xcb_connection_t* connection, const SlaveKeyboard& keyboard);

/// Releases what the XTEST keyboards hold down, and nothing else, and waits until it is done. The number of
/// keys released.
int releaseXtestKeys(xcb_connection_t* connection);

}  // namespace x11
