// SPDX-License-Identifier: MIT
#include "platform/x11/server/X11Check.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>
#include <xkbcommon/xkbcommon-x11.h>

#include "platform/x11/server/XConnection.h"

namespace x11 {

namespace {

const char* const hint = "Use a newer X server, or switch the extension on in its settings.";

bool has(const XConnection& connection, xcb_extension_t& extension) {
    const xcb_query_extension_reply_t* reply = xcb_get_extension_data(connection, &extension);
    return reply != nullptr && reply->present != 0;
}

}  // namespace

Result<void> checkXInput(const XConnection& connection) {
    const std::string needed = "The X server must have XInput 2.2 or newer";
    if (!has(connection, xcb_input_id)) return Error{needed + ", but has no XInput.", hint};
    const XReply<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
    if (!version) return Error{needed + ", but does not answer.", hint};
    if (version->major_version > 2 || (version->major_version == 2 && version->minor_version >= 2)) return {};
    return Error{needed + ", but has " + std::to_string(version->major_version) + "." +
                     std::to_string(version->minor_version) + ".",
                 hint};
}

Result<void> checkXkb(const XConnection& connection) {
    const int done =
        xkb_x11_setup_xkb_extension(connection, XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
                                    XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr);
    if (done == 1) return {};
    return Error{"The X server must have the XKB extension, but it cannot be used.", hint};
}

Result<void> checkXTest(const XConnection& connection) {
    if (has(connection, xcb_test_id)) return {};
    return Error{"The X server must have the XTEST extension, but it has not.", hint};
}

Result<void> checkKeyEventAccess(const XConnection& connection) {
    Result<void> input = checkXInput(connection);
    return input ? checkXkb(connection) : input;
}

Result<void> checkX11Access(const std::string& display) {
    const Result<XConnection> connection = XConnection::open(display);
    if (!connection) return connection.error();
    Result<void> events = checkKeyEventAccess(connection.value());
    return events ? checkXTest(connection.value()) : events;
}

}  // namespace x11
