// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>

#include "platform/Result.h"
#include "platform/Sentence.h"

/// The keyboard layouts of a desktop's user, the groups of the seat's keymap in their order.
class Layouts {
  public:
    virtual ~Layouts() = default;

    /// The one in force, from 0; asked for now.
    virtual std::uint32_t group() const = 0;
    /// Whether programs may put another one in force.
    virtual bool canSwitch() const = 0;
    /// Puts that one in force, and waits for it. Fails where there is none of that number, and where that is
    /// the user's alone.
    virtual Result<void> setGroup(std::uint32_t group) = 0;
    /// Who is told, if the desktop itself tells of it here, that another one may be in force; at most one.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): who hears of changes keeps it.
    virtual void observe(std::function<void()> /*changed*/) {}
};

/// Where the desktop tells nothing of them: the first.
class UnknownLayouts final : public Layouts {
  public:
    std::uint32_t group() const override { return 0; }
    bool canSwitch() const override { return false; }
    Result<void> setGroup(std::uint32_t /*group*/) override {
        return Error{sentence("Layouts", "This desktop lets no program switch the keyboard layout."), ""};
    }
};
