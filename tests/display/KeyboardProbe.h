// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/x11/server/XConnection.h"

/// A client that asks the server about the keyboard, and does nothing else.
class KeyboardProbe {
  public:
    explicit KeyboardProbe(const std::string& display);

    /// The key codes that are down, of the core keyboard and of each keyboard below it, and the modifiers in
    /// force, in words: "keys: 37 50, modifiers: 0x5, locked: 0x2, group: 0". Two round trips and more, so
    /// that what others did before is in it.
    std::string words() const;
    /// The same without locks and group.
    std::string held() const;
    /// Waits until this is held, or a while without: what another client has sent may still be on its way.
    std::string awaitHeld(const std::string& expected) const;
    std::uint8_t locked() const;
    std::uint8_t group() const;

    /// A property of the root window is there.
    bool hasProperty(const std::string& name) const;

    const x11::XConnection& connection() const { return m_connection; }

  private:
    x11::XConnection m_connection;
};
