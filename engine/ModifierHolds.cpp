// SPDX-License-Identifier: MIT
#include "engine/ModifierHolds.h"

#include <algorithm>

namespace {

constexpr std::uint32_t longestTap = 500;

}  // namespace

bool ModifierHold::isTapUntil(std::uint32_t released) const {
    return isAlone && released - time <= longestTap;
}

void ModifierHolds::press(const KeyEvent& event) {
    addOther();
    m_holds.push_back({.keyCode = event.keyCode,
                       .modifiers = event.modifiers,
                       .time = event.time,
                       .isAlone = m_holds.empty()});
}

std::optional<ModifierHold> ModifierHolds::release(const KeyEvent& event) {
    const auto found = std::find_if(m_holds.begin(), m_holds.end(),
                                    [&](const ModifierHold& hold) { return hold.keyCode == event.keyCode; });
    if (found == m_holds.end()) return std::nullopt;
    const ModifierHold hold = *found;
    m_holds.erase(found);
    return hold;
}

void ModifierHolds::addKey(std::size_t place, std::uint32_t modifiers) {
    addOther();
    for (ModifierHold& hold : m_holds) {
        if (hold.keys++ == 0) hold.firstKey = place;
        if ((modifiers & hold.modifiers) != hold.modifiers) hold.isThroughout = false;
    }
}

void ModifierHolds::addOther() {
    for (ModifierHold& hold : m_holds) hold.isAlone = false;
}

void ModifierHolds::insertedAt(std::size_t place) {
    for (ModifierHold& hold : m_holds) {
        if (hold.keys > 0 && hold.firstKey > place) ++hold.firstKey;
    }
}
