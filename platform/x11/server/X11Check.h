// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Result.h"

namespace x11 {

/// Whether the X server of `display` ($DISPLAY if empty) lets this program see and press keys: XInput 2.2,
/// XKB and XTEST. The error names what is missing.
Result<> checkX11Access(const std::string& display = {});

}  // namespace x11
