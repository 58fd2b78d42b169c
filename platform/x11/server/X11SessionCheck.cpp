// SPDX-License-Identifier: MIT
#include "platform/x11/server/X11SessionCheck.h"

#include <string_view>

#include "platform/x11/server/X11Check.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

namespace {

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool isWithinWayland(const XConnection& connection) {
    constexpr std::string_view name = "XWAYLAND";
    const XReply<xcb_query_extension_reply_t> reply(xcb_query_extension_reply(
        connection, xcb_query_extension(connection, name.size(), name.data()), nullptr));
    return reply && reply->present != 0;
}

}  // namespace

X11SessionCheck::Session X11SessionCheck::sessionOfProcess() {
    return {environment("DISPLAY"), environment("WAYLAND_DISPLAY")};
}

Result<> X11SessionCheck::version() const {
    if (m_session.display.empty()) {
        return Error{m_session.waylandDisplay.empty()
                         ? "An X11 session is needed, and this is no desktop session."
                         : "An X11 session is needed, and this is a Wayland session without an X server.",
                     "Choose an X11 session when you log in."};
    }
    const Result<XConnection> connection = XConnection::open(m_session.display);
    if (!connection) return connection.error();
    return checkXInput(connection.value());
}

Result<> X11SessionCheck::access() const {
    const Result<XConnection> connection = XConnection::open(m_session.display);
    if (!connection) return connection.error();
    Result<> keys = checkXkb(connection.value());
    return keys ? checkXTest(connection.value()) : keys;
}

bool X11SessionCheck::seesOnlySomeWindows() const {
    if (!m_session.waylandDisplay.empty()) return true;
    const Result<XConnection> connection = XConnection::open(m_session.display);
    return connection && isWithinWayland(connection.value());
}

}  // namespace x11
