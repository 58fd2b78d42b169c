// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class KeyboardLayout;

/// Turns key codes into the names of keys.
class KeyCodeTransformer {
  public:
    /// Asked anew at each call, because the layout may be another by then.
    using LayoutSource = const KeyboardLayout& (*)();

    explicit KeyCodeTransformer(LayoutSource layout) : m_layout(layout) {}

    /// The name of a key, UTF-8, never empty, letters in upper case. The 16 bits of `keyCode` are taken
    /// without a sign (platform/KeyCodes.h).
    std::string transformedValue(short keyCode) const;

  private:
    LayoutSource m_layout;
};
