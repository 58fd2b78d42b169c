// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Result.h"

namespace x11 {

class XConnection;

/// Whether the X server of `display` ($DISPLAY if empty) lets this program see and press keys: XInput 2.2,
/// XKB and XTEST. The error names what is missing.
Result<void> checkX11Access(const std::string& display = {});

/// The part of it that seeing keys needs. Also announces to the server that this connection speaks XInput 2.2
/// and XKB, without which it gets no such events.
Result<void> checkKeyEventAccess(const XConnection& connection);

/// Whether there is XInput 2.2; announces it, too.
Result<void> checkXInput(const XConnection& connection);
/// Whether there is XKB; announces it, too.
Result<void> checkXkb(const XConnection& connection);
/// Whether there is XTEST.
Result<void> checkXTest(const XConnection& connection);

}  // namespace x11
