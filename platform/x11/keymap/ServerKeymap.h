// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <optional>

#include "platform/Result.h"
#include "platform/keymap/Keymap.h"
#include "platform/keymap/XkbComponents.h"

namespace x11 {

class XConnection;

/// The core keyboard's keymap as the server has it now. Fails with a hint where it cannot be read. The
/// connection must have started the XKB extension.
Result<std::unique_ptr<Keymap>> keymapOfServer(const XConnection& connection);
/// The failure of that.
Error unreadableKeymap();

/// The core keyboard's state as the server has it now; empty if the connection is lost.
std::optional<XkbComponents> stateOfServer(xcb_connection_t* connection);

/// The state that a reply or an event of the XKB extension tells.
template <typename Message>
XkbComponents componentsOf(const Message& message) {
    return {.depressed = message.baseMods,
            .latched = message.latchedMods,
            .locked = message.lockedMods,
            .baseLayout = static_cast<xkb_layout_index_t>(message.baseGroup),
            .latchedLayout = static_cast<xkb_layout_index_t>(message.latchedGroup),
            .lockedLayout = message.lockedGroup};
}

}  // namespace x11
