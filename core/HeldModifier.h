// SPDX-License-Identifier: MIT
#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstdint>
#include <string>

#include "core/Action.h"

namespace actionpack {

/// A modifier that goes down, to be held over the actions that follow, or comes up again. The mask of
/// Action means nothing.
class HeldModifier : public Action {
  public:
    enum class Move { down, up };

    /// One of command, shift, option and control (platform/Modifiers.h).
    HeldModifier(std::uint32_t modifier, Move move) : m_modifier(modifier), m_move(move) {}

    /// "\tkey down option\n", "\tkey up option\n".
    std::string scriptLine() const override;

    /// "<⌥▼>", "<⌥▲>".
    std::string displayText() const override;

  private:
    std::uint32_t m_modifier;
    Move m_move;
};

}  // namespace actionpack

/// In a shared pointer. Throws as createShared does.
boost::shared_ptr<actionpack::HeldModifier> createHeldModifier(std::uint32_t modifier,
                                                               actionpack::HeldModifier::Move move);
