// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Result.h"

/// Whether the X server of `display` ($DISPLAY if empty) lets this program see and press keys: XInput 2.2,
/// XTEST and XKB. The error names what is missing.
Result<void> checkX11Access(const std::string& display = {});
