// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <initializer_list>
#include <string_view>

#include "platform/Result.h"

namespace x11 {

enum class Extension {
    input,     ///< XInput 2.2: the keys of all keyboards, whoever gets them
    keyboard,  ///< XKB 1.0: the keymap, its state, locks and groups
    test,      ///< XTEST: presses keys
};

/// The server's extensions, as one connection uses them. Refers to the connection only.
class Extensions {
  public:
    explicit Extensions(xcb_connection_t* connection) : m_connection(connection) {}

    /// Checks that the server has them, each in the version that is needed, and announces that this
    /// connection speaks it; before that a connection gets no events and answers of theirs. Done before
    /// anything is asked of them. The error names the first that is missing.
    Result<> use(std::initializer_list<Extension> needed) const;

    /// By which XInput's events are known (Event::generic).
    std::uint8_t inputOpcode() const;
    /// By which XKB's events are known (Event::keyboard).
    std::uint8_t firstKeyboardEvent() const;

    /// Whether there is one, in any version. What is asked by its handle is not asked again at its first use.
    bool has(xcb_extension_t& extension) const;
    bool has(std::string_view name) const;

  private:
    Result<> use(Extension extension) const;
    Result<> useInput() const;
    Result<> useKeyboard() const;
    Result<> useTest() const;

    xcb_connection_t* m_connection;
};

}  // namespace x11
