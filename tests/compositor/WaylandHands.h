// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>

/// The hands of a person at a compositor: a keyboard that is there for as long as the object, with a layout
/// of xkb-data's. Each press and release has reached the compositor when its function returns.
///
/// Keys are X key codes (support/Keys.h).
class WaylandHands {
  public:
    /// `socket` is the compositor's; a list of layouts is separated by commas.
    explicit WaylandHands(const std::string& socket, const std::string& layouts = "us");
    ~WaylandHands();
    WaylandHands(const WaylandHands&) = delete;
    WaylandHands& operator=(const WaylandHands&) = delete;

    void press(std::uint8_t keycode);
    void release(std::uint8_t keycode);
    /// Presses all in order, and releases them in the opposite one.
    void stroke(std::initializer_list<std::uint8_t> keycodes);
    /// The layout of that place in the list, from 0, is in force from now on.
    void switchTo(std::uint32_t layout);

  private:
    struct Parts;

    void send(std::uint8_t keycode, bool press);
    void tellState();

    std::unique_ptr<Parts> m_parts;
};
