// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "compositor/GnomeShell.h"
#include "compositor/Hands.h"

/// Hands at a GNOME, by the service that its remote desktops press keys with: to the shell and its programs
/// keys of a keyboard like all others. The shell shows in its panel that there is such a session.
class GnomeHands final : public Hands {
  public:
    /// Returns once keys arrive.
    explicit GnomeHands(const GnomeShell& shell);
    ~GnomeHands() override;
    GnomeHands(const GnomeHands&) = delete;
    GnomeHands& operator=(const GnomeHands&) = delete;

  private:
    struct Parts;

    void send(std::uint8_t keycode, bool press) override;

    std::unique_ptr<Parts> m_parts;
};
