// SPDX-License-Identifier: MIT
#include "platform/x11/keymap/ServerKeymap.h"

#include <xkbcommon/xkbcommon-x11.h>

#include "platform/x11/server/XConnection.h"

namespace x11 {

Result<std::unique_ptr<Keymap>> keymapOfServer(const XConnection& connection) {
    const XkbContextPointer context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
    const Error unreadable{"The keymap of the X server cannot be read.",
                           "Log in again, or restart the X server."};
    if (!context) return unreadable;
    xkb_context_set_log_level(context.get(), XKB_LOG_LEVEL_CRITICAL);
    const std::int32_t device = xkb_x11_get_core_keyboard_device_id(connection);
    if (device < 0) return unreadable;
    XkbKeymapPointer keymap(
        xkb_x11_keymap_new_from_device(context.get(), connection, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap) return unreadable;
    return std::make_unique<Keymap>(std::move(keymap));
}

}  // namespace x11
