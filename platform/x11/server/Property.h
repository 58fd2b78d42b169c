// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/x11/server/XReply.h"

namespace x11 {

/// A property of a window, read and written. Numbers are properties of format 32, texts of format 8; one of
/// another format or type reads as one that is not there, and so does every property of a window that has
/// gone. Refers to the connection only.
class Property {
  public:
    /// What a property held that has been taken; XCB_ATOM_NONE is the type of none.
    struct Content {
        xcb_atom_t type = XCB_ATOM_NONE;
        std::string bytes = {};
    };

    Property(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t name)
        : m_connection(connection), m_window(window), m_name(name) {}

    bool exists() const;
    /// The first `most` numbers.
    std::vector<std::uint32_t> numbers(xcb_atom_t type, std::uint32_t most) const;
    /// The first number; 0 without one.
    std::uint32_t number(xcb_atom_t type) const;
    /// The first `most` bytes, a multiple of 4; may hold zeros.
    std::string text(xcb_atom_t type, std::uint32_t most) const;
    /// Reads it whatever its format and type, the format's numbers as they lie in memory, and removes it
    /// unless it is longer than `most` bytes, a multiple of 4.
    Content take(std::uint32_t most) const;

    // Queued, not awaited; fail without a word where the window has gone.

    void write(xcb_atom_t type, std::span<const std::uint32_t> numbers) const;
    void write(xcb_atom_t type, std::string_view text) const;
    void append(xcb_atom_t type, std::span<const std::uint32_t> numbers) const;
    void remove() const;

  private:
    XReply<xcb_get_property_reply_t> read(bool isTaken, xcb_atom_t type, std::uint32_t units) const;

    xcb_connection_t* m_connection;
    xcb_window_t m_window;
    xcb_atom_t m_name;
};

}  // namespace x11
