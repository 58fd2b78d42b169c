// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/x11/server/XConnection.h"

/// A window that can be seen, as far as others do not cover it.
struct ScreenWindow {
    std::uint32_t number = 0;
    std::string title;
    /// Both words of its class, in lower case: "keyrill-demonstration keyrill".
    std::string windowClass;
    // On the screen, in the server's pixels.
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    int middleX() const { return x + width / 2; }
    int middleY() const { return y + height / 2; }
};

/// What an X client of its own sees of the other clients' windows.
class Screen {
  public:
    explicit Screen(const std::string& display);

    /// Also those inside others, as icons in a tray are; the lowest first.
    std::vector<ScreenWindow> windows() const;
    /// The first with that word in its class, that title, and more than a few pixels in both directions.
    std::optional<ScreenWindow> find(const std::string& windowClass, const std::string& title) const;

    /// "#RRGGBB" of a point; "" outside of the screen.
    std::string colourAt(int x, int y) const;
    /// Of all points in the window's place, from 0 to 255.
    struct Brightness {
        int least = 255;
        int most = 0;
    };
    Brightness brightness(const ScreenWindow& window) const;
    /// How many colours are to be seen in the window's place.
    std::size_t colours(const ScreenWindow& window) const;

    /// Who gets the keys.
    std::uint32_t focus() const;
    /// Which window the window manager takes for the active one; 0 if none.
    std::uint32_t activeWindow() const;
    /// Whether a client has all keys for itself, as open menus have. Nobody notices the question.
    bool isKeyboardGrabbed() const;
    /// Whether a client has all keys or the mouse for itself.
    bool isAnythingGrabbed() const;
    /// Whether a selection has an owner; trays and compositors are found by theirs.
    bool isOwned(const std::string& selection) const;

  private:
    std::vector<std::uint32_t> pixels(int x, int y, int width, int height) const;
    void collect(xcb_window_t window, int x, int y, std::vector<ScreenWindow>& found) const;
    std::string text(xcb_window_t window, xcb_atom_t property) const;

    x11::XConnection m_connection;
    xcb_atom_t m_name;
    xcb_atom_t m_active;
    xcb_window_t m_unmapped;
};
