// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desktops/SwayConnection.h"

/// What sway tells of its windows and keyboards, asked for each time. A sway that has gone knows nothing.
class SwayDesktop {
  public:
    explicit SwayDesktop(SwayConnection connection) : m_connection(std::move(connection)) {}

    /// The group in force on the keyboard with the most of them, from 0; the virtual ones do not count where
    /// there is another.
    std::uint32_t group();

    /// A window, by the number that sway's commands know it under.
    struct Window {
        std::int64_t number = 0;
        /// The program's name: a native window's app_id, an X11 window's class.
        std::string program;
        /// An X11 window's number, 0 for a native one.
        std::uint32_t xWindow = 0;
    };
    /// The one that keys go to.
    std::optional<Window> focused();
    /// One of that program, in any case; the one that keys go to before others.
    std::optional<Window> windowOf(std::string_view program);
    /// The names of all programs that have a window, each once, the one that keys go to first.
    std::vector<std::string> programs();
    Result<void> focus(const Window& window);
    /// Fails while sway shows no such window.
    Result<void> focusXWindow(std::uint32_t xWindow);

  private:
    SwayConnection m_connection;
};
