// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/Result.h"
#include "platform/keymap/Keymap.h"

namespace x11 {

class XConnection;

/// The core keyboard's keymap as the server has it now. Fails with a hint where it cannot be read.
Result<std::unique_ptr<Keymap>> keymapOfServer(const XConnection& connection);

}  // namespace x11
