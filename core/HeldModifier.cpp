// SPDX-License-Identifier: MIT
#include "core/HeldModifier.h"

#include <algorithm>

#include "core/ModifierNames.h"
#include "core/createShared.h"

namespace actionpack {
namespace {

const ModifierName& nameOf(std::uint32_t modifier) {
    return *std::find_if(modifierNames.begin(), modifierNames.end() - 1,
                         [modifier](const ModifierName& name) { return name.modifier == modifier; });
}

}  // namespace

std::string HeldModifier::scriptLine() const {
    return std::string(m_move == Move::down ? "\tkey down " : "\tkey up ") + nameOf(m_modifier).word + "\n";
}

std::string HeldModifier::displayText() const {
    return std::string("<") + nameOf(m_modifier).symbol + (m_move == Move::down ? "▼>" : "▲>");
}

}  // namespace actionpack

boost::shared_ptr<actionpack::HeldModifier> createHeldModifier(std::uint32_t modifier,
                                                               actionpack::HeldModifier::Move move) {
    return createShared<actionpack::HeldModifier>(modifier, move);
}
