// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "compositor/Hands.h"

/// Hands on a virtual keyboard that is there for as long as the object, with a layout of xkb-data's.
class WaylandHands final : public Hands {
  public:
    /// `socket` is the compositor's; a list of layouts is separated by commas.
    explicit WaylandHands(const std::string& socket, const std::string& layouts = "us");
    ~WaylandHands() override;
    WaylandHands(const WaylandHands&) = delete;
    WaylandHands& operator=(const WaylandHands&) = delete;

    /// The layout of that place in the list, from 0, is in force from now on.
    void switchTo(std::uint32_t layout);

  private:
    struct Parts;

    void send(std::uint8_t keycode, bool press) override;
    void tellState();

    std::unique_ptr<Parts> m_parts;
};
