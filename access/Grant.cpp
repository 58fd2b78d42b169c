// SPDX-License-Identifier: MIT
#include "access/Grant.h"

#include <set>

namespace keyaccess {

Grant::~Grant() {
    closeKeyboards();
    closeTyping();
}

std::vector<std::pair<std::string, int>> Grant::openKeyboards() {
    m_mayRead = true;
    std::erase_if(m_keyboards,
                  [this](const auto& entry) { return !m_devices.isPresent(entry.second.number()); });
    std::set<std::string> held;
    for (const auto& [name, descriptor] : m_keyboards) held.insert(name);
    std::vector<std::pair<std::string, int>> opened;
    for (OpenKeyboard& keyboard : m_devices.openKeyboards(held)) {
        opened.emplace_back(keyboard.name, keyboard.descriptor.number());
        m_keyboards.insert_or_assign(keyboard.name, std::move(keyboard.descriptor));
    }
    return opened;
}

void Grant::closeKeyboards() {
    for (const auto& [name, descriptor] : m_keyboards) m_devices.revoke(descriptor.number());
    m_keyboards.clear();
    m_mayRead = false;
}

bool Grant::openTyping() {
    if (!m_typing) m_typing = m_devices.makeKeyboard();
    return mayType();
}

bool Grant::type(const std::vector<Stroke>& strokes) {
    for (const Stroke& stroke : strokes) {
        if (!m_down.mayFollow(stroke) || !m_devices.type(m_typing.number(), stroke.code, stroke.press))
            return false;
        m_down.follow(stroke);
    }
    return true;
}

/// The kernel lets go of what is down.
void Grant::closeTyping() {
    m_typing.reset();
    m_down = {};
}

}  // namespace keyaccess
