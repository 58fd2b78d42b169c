// SPDX-License-Identifier: MIT
#include "platform/x11/server/X11Check.h"

#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/XConnection.h"

namespace x11 {

Result<> checkX11Access(const std::string& display) {
    const Result<XConnection> connection = XConnection::open(display);
    if (!connection) return connection.error();
    return Extensions(connection.value()).use({Extension::input, Extension::keyboard, Extension::test});
}

}  // namespace x11
