// SPDX-License-Identifier: MIT
#include "platform/script/code/Scope.h"

namespace script {

std::uint32_t ScriptVariables::slotOf(NameId name) {
    const auto [place, isNew] = m_slots.emplace(name, static_cast<std::uint32_t>(m_names.size()));
    if (isNew) {
        m_names.push_back(name);
        m_uses.emplace_back();
    }
    return place->second;
}

std::uint32_t Scope::addHidden() {
    m_variables.push_back(0);
    m_uses.emplace_back();
    return static_cast<std::uint32_t>(m_variables.size() - 1);
}

bool Scope::declareGlobal(NameId name) {
    if (m_declaredLocal.contains(name)) return false;
    m_globals.insert(name);
    return true;
}

bool Scope::declareLocal(NameId name) {
    if (m_globals.contains(name)) return false;
    m_declaredLocal.insert(name);
    ownSlot(name);
    return true;
}

Place Scope::placeOf(NameId name) {
    const auto own = m_own.find(name);
    if (own != m_own.end()) return {false, own->second};
    if (m_globals.contains(name) || m_script.isVisible(name)) return {true, m_script.slotOf(name)};
    return {false, ownSlot(name)};
}

bool Scope::knows(NameId name) const {
    return m_own.contains(name) || m_globals.contains(name) || m_script.isVisible(name);
}

std::uint32_t Scope::ownSlot(NameId name) {
    const auto [place, isNew] = m_own.emplace(name, static_cast<std::uint32_t>(m_variables.size()));
    if (isNew) {
        m_variables.push_back(name);
        m_uses.emplace_back();
    }
    return place->second;
}

void Scope::noteSet(Place place, Held held) {
    VariableUse& use = useOf(place);
    use.held = use.isSet && use.held != held ? Held::other : held;
    use.isSet = true;
}

void Scope::noteText(NameId name, std::uint32_t offset, bool isTyped) {
    const auto own = m_own.find(name);
    if (own != m_own.end()) m_textUses.push_back({own->second, offset, isTyped});
}

void Scope::noteRead(Place place, std::uint32_t offset, NameRole role) {
    VariableUse& use = useOf(place);
    if (use.isRead) return;
    use.isRead = true;
    use.offset = offset;
    use.role = role;
}

}  // namespace script
