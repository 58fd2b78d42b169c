// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/x11/server/XConnection.h"

/// An application as simple as can be: a window that has the focus and gets core key events.
class CoreClient {
  public:
    struct KeyEvent {
        bool press;
        std::uint8_t keycode;
        std::uint16_t state;
        std::uint32_t time;
    };

    /// Returns with the focus on its window.
    explicit CoreClient(const std::string& display);

    /// All key events so far, oldest first. A repeat is a release and a press at one time.
    const std::vector<KeyEvent>& events();
    /// How often the key was pressed on its own so far: presses that follow a release of the same time.
    int repeats(std::uint8_t keycode);
    int presses(std::uint8_t keycode);

    /// How often the server has told of a changed keymap so far.
    int mappingChanges();

    /// The combination for this client alone; false if somebody has it.
    bool grabKey(std::uint8_t keycode, std::uint16_t modifiers) const;
    void grabKeyboard() const;
    void ungrabKeyboard() const;
    /// For the life of the client.
    void grabPointer() const;
    /// A window as menus are, which no window manager knows; for the life of the client.
    void showMenu() const { showUnmanaged({0, 0, 100, 200}); }
    /// The same in a place of the screen.
    void showUnmanaged(const xcb_rectangle_t& place) const;
    /// Says of its window that it answers _NET_WM_PING, which it never does.
    void claimToAnswerPings() const;

    xcb_window_t window() const { return m_window; }

  private:
    x11::XConnection m_connection;
    xcb_window_t m_window = 0;
    std::vector<KeyEvent> m_events;
    int m_mappingChanges = 0;
};
