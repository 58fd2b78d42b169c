// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

#include "platform/KeyboardLayout.h"

/// The layout where the desktop does not tell it: keys are called by their codes.
class NoKeyboardLayout final : public KeyboardLayout {
  public:
    explicit NoKeyboardLayout(Error why) : m_why(std::move(why)) {}

    std::string keyName(std::uint32_t keyCode) const override { return std::to_string(keyCode); }
    Result<std::string> character(std::uint32_t /*keyCode*/, bool /*shift*/, bool /*option*/) const override {
        return m_why;
    }
    std::string typed(std::uint32_t /*keyCode*/, bool /*shift*/) const override { return {}; }

  private:
    Error m_why;
};
