// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "platform/Result.h"

/// What the keys of the user's keyboard are called and type, under the current layout and group.
class KeyboardLayout {
  public:
    virtual ~KeyboardLayout() = default;

    /// A short readable name, UTF-8, never empty: what the unshifted level types, in upper case (a dead key
    /// by its spacing form; with chooser bits what that level types), or a symbol or name for keys that type
    /// nothing ("↩", "F1", "Space", "Pad 7").
    virtual std::string keyName(std::uint32_t keyCode) const = 0;

    /// What the key types with Shift or Option held, capitalised, UTF-8. Fails where the layout cannot be
    /// read or the key types nothing.
    virtual Result<std::string> character(std::uint32_t keyCode, bool shift, bool option) const = 0;

    /// What a press of the key types by itself or with Shift, as it stands, UTF-8; empty where that is no
    /// character that can be seen and no blank, and where the layout cannot be read.
    virtual std::string typed(std::uint32_t keyCode, bool shift) const = 0;
};
