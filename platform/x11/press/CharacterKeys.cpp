// SPDX-License-Identifier: MIT
#include "platform/x11/press/CharacterKeys.h"

#include <algorithm>
#include <utility>

#include "platform/Sentence.h"
#include "platform/run/TextPlan.h"

namespace x11 {

namespace {

/// So long a program may take to look a key up.
constexpr std::chrono::milliseconds slowestReader{500};

}  // namespace

std::optional<Stroke> CharacterKeys::find(char32_t character, xkb_layout_index_t group) const {
    if (auto stroke = m_keymap.characters().find(character, group)) return stroke;
    return m_binder.find(character);
}

void CharacterKeys::noteTyped(char32_t character, xkb_layout_index_t group, const Stroke& stroke) {
    m_binder.markUsed(character);
    m_typed.push_back({character, group, stroke, m_clock.now()});
}

void CharacterKeys::forgetOld() {
    const Clock::Time oldest = m_clock.now() - slowestReader;
    while (!m_typed.empty() && m_typed.front().time < oldest) m_typed.pop_front();
}

Result<CharacterKeys::Change> CharacterKeys::follow(bool thorough) {
    forgetOld();
    const auto isRead = m_keymap.refresh(thorough);
    if (!isRead) return isRead.error();
    const bool isNew = std::exchange(m_changes, m_keymap.changes()) != m_keymap.changes();
    if (!isRead.value() && !isNew) return Change{};
    m_binder.recheck();
    Change change{.isNew = isNew, .spoilt = spoilt()};
    if (!change.spoilt.empty() && !m_binder.areKeyboardsEqual()) change.spoilt.clear();
    if (!change.spoilt.empty()) m_typed.clear();
    return change;
}

std::vector<char32_t> CharacterKeys::spoilt() const {
    const auto isSpoilt = [this](const Typed& typed) {
        return find(typed.character, typed.group) != typed.stroke;
    };
    std::vector<char32_t> characters;
    for (auto typed = std::find_if(m_typed.begin(), m_typed.end(), isSpoilt); typed != m_typed.end();
         ++typed) {
        characters.push_back(typed->character);
    }
    return characters;
}

Error spoiltText(const std::vector<char32_t>& characters) {
    return Error{sentence("Keys",
                          "The keyboard layout was changed while text was typed, which may have arrived as "
                          "something else: %1.")
                     .arg(beginningOf(characters)),
                 sentence("Keys", "Play it again when the layout stays as it is.")};
}

}  // namespace x11
