// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyboardLayout.h"

namespace x11 {

class X11EventManager;

/// Names and characters of the keys as the X server's current keymap and group have them.
class X11KeyboardLayout final : public KeyboardLayout {
  public:
    /// `manager` follows the keymap and outlives this.
    explicit X11KeyboardLayout(const X11EventManager& manager) : m_manager(manager) {}

    std::string keyName(std::uint32_t keyCode) const override;
    Result<std::string> character(std::uint32_t keyCode, bool shift, bool option) const override;
    std::string typed(std::uint32_t keyCode, bool shift) const override;

  private:
    const X11EventManager& m_manager;
};

}  // namespace x11
