// SPDX-License-Identifier: MIT
#include "platform/x11/keymap/ServerKeymap.h"

#include <xkbcommon/xkbcommon-x11.h>

#include "platform/Sentence.h"
#include "platform/x11/server/XConnection.h"
#include "platform/x11/server/XcbXkb.h"

namespace x11 {

Result<std::unique_ptr<Keymap>> keymapOfServer(const XConnection& connection) {
    const XkbContextPointer context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
    if (!context) return unreadableKeymap();
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
    const std::int32_t device = xkb_x11_get_core_keyboard_device_id(connection);
    if (device < 0) return unreadableKeymap();
    XkbKeymapPointer keymap(
        xkb_x11_keymap_new_from_device(context.get(), connection, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap) return unreadableKeymap();
    return std::make_unique<Keymap>(std::move(keymap));
}

Error unreadableKeymap() {
    return Error{sentence("Layouts", "The keymap of the X server cannot be read."),
                 sentence("Layouts", "Set a keyboard layout, or log in again.")};
}

std::optional<XkbComponents> stateOfServer(xcb_connection_t* connection) {
    const auto state =
        replyTo(connection, xcb_xkb_get_state(connection, XCB_XKB_ID_USE_CORE_KBD), xcb_xkb_get_state_reply);
    if (!state) return std::nullopt;
    return componentsOf(*state);
}

}  // namespace x11
