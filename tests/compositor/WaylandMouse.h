// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

/// The mouse of a person at a compositor with one screen; it is there for as long as the object.
class WaylandMouse {
  public:
    /// `socket` is the compositor's.
    explicit WaylandMouse(const std::string& socket);
    ~WaylandMouse();
    WaylandMouse(const WaylandMouse&) = delete;
    WaylandMouse& operator=(const WaylandMouse&) = delete;

    /// Clicks with the main button at that place on a screen of that size, in any unit.
    void click(unsigned x, unsigned y, unsigned width, unsigned height);

  private:
    struct Parts;

    std::unique_ptr<Parts> m_parts;
};
