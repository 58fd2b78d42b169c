// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyboardLayout.h"

namespace wayland {

class SeatKeymap;

/// Names and characters of the keys as the seat's current keymap and group have them.
class WaylandKeyboardLayout final : public KeyboardLayout {
  public:
    /// `seat` outlives this.
    explicit WaylandKeyboardLayout(const SeatKeymap& seat) : m_seat(seat) {}

    std::string keyName(std::uint32_t keyCode) const override;
    Result<std::string> character(std::uint32_t keyCode, bool shift, bool option) const override;
    std::string typed(std::uint32_t keyCode, bool shift) const override;

  private:
    const SeatKeymap& m_seat;
};

}  // namespace wayland
