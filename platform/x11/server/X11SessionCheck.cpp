// SPDX-License-Identifier: MIT
#include "platform/x11/server/X11SessionCheck.h"

#include <cstdlib>

#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

namespace {

std::string environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

}  // namespace

X11SessionCheck::Session X11SessionCheck::sessionOfProcess() {
    return {environment("DISPLAY"), environment("WAYLAND_DISPLAY")};
}

Result<> X11SessionCheck::version() const {
    if (m_worksAlready) return {};
    if (m_session.display.empty()) {
        return Error{m_session.waylandDisplay.empty()
                         ? "An X11 session is needed, and this is no desktop session."
                         : "An X11 session is needed, and this is a Wayland session without an X server.",
                     "Choose an X11 session when you log in."};
    }
    const Result<XConnection> connection = XConnection::open(m_session.display);
    if (!connection) return connection.error();
    return Extensions(connection.value()).use({Extension::input});
}

Result<> X11SessionCheck::access() const {
    if (m_worksAlready) return {};
    const Result<XConnection> connection = XConnection::open(m_session.display);
    if (!connection) return connection.error();
    return Extensions(connection.value()).use({Extension::keyboard, Extension::test});
}

bool X11SessionCheck::seesOnlySomeWindows() const {
    if (!m_session.waylandDisplay.empty()) return true;
    const Result<XConnection> connection = XConnection::open(m_session.display);
    return connection && Extensions(connection.value()).has("XWAYLAND");
}

}  // namespace x11
