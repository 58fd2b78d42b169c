// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <bitset>
#include <vector>

#include "platform/x11/keymap/BoundKeysRecord.h"
#include "platform/x11/keymap/DeviceMap.h"
#include "platform/x11/server/SlaveKeyboards.h"

namespace x11 {

/// The maps of the keyboards, as they have to be written: that of the core keyboard, which all below it
/// follow, or where theirs differ each of its own, since the core keyboard's would overwrite theirs.
///
/// As small as its use by keyrill-guard asks.
class KeyboardMaps {
  public:
    struct Target {
        std::uint16_t device = 0;
        DeviceMap map;
    };

    /// `core` is the core keyboard's map. The connection must have announced XInput 2 and started XKB.
    KeyboardMaps(xcb_connection_t* connection, const std::vector<SlaveKeyboard>& keyboards,
                 const DeviceMap& core);

    std::vector<Target>& targets() { return m_targets; }
    const std::vector<Target>& targets() const { return m_targets; }

    /// Whether the core keyboard's map is that of all.
    bool areEqual() const;

    /// Empties those keys that type what `keys` say, and nothing else; tells which.
    std::bitset<256> empty(const std::vector<BoundKey>& keys);

    /// One request for each, over the range that holds all these keys. False if the server refuses.
    bool write(xcb_connection_t* connection, const std::bitset<256>& keys) const;

  private:
    std::vector<Target> m_targets;
};

}  // namespace x11
