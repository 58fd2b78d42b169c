// SPDX-License-Identifier: MIT
#include "platform/x11/press/TextTyper.h"

#include <unordered_set>

#include "platform/keymap/Bindable.h"
#include "platform/run/TextPlan.h"

namespace x11 {

std::optional<Stroke> TextTyper::find(char32_t character, xkb_layout_index_t group) const {
    if (auto stroke = m_keymap.characters().find(character, group)) return stroke;
    return m_binder.find(character);
}

Result<void> TextTyper::refuseUntypable(std::span<const char32_t> characters, xkb_layout_index_t group) {
    std::unordered_set<char32_t> passed;
    for (const char32_t character : characters) {
        if (!passed.insert(character).second || find(character, group)) continue;
        if (isBindable(character) && m_binder.capacity() > 0) continue;
        return Error{"The character " + nameOf(character) + " cannot be typed with this keyboard layout.",
                     "Take it out of the text, or set a layout that has it."};
    }
    return {};
}

/// How many characters from the front can be typed without binding a key twice, and which of them are on no
/// layout.
std::size_t TextTyper::fittingPart(std::span<const char32_t> characters, xkb_layout_index_t group,
                                   std::vector<char32_t>& unbound) {
    std::unordered_set<char32_t> seen;
    for (std::size_t at = 0; at < characters.size(); ++at) {
        const char32_t character = characters[at];
        if (seen.contains(character) || m_keymap.characters().find(character, group)) continue;
        if (unbound.size() == m_binder.capacity()) return at;
        seen.insert(character);
        unbound.push_back(character);
    }
    return characters.size();
}

Step<> TextTyper::bind(const std::vector<char32_t>& wanted, std::span<const char32_t> left) {
    const auto plan = m_binder.plan(wanted);
    const auto isRead = m_binder.awaitReaders(plan, m_waiter);
    if (!isRead) return isRead.error();
    if (!isRead.value()) {
        return Error{"The program that is typed into reads nothing; not typed: " + beginningOf(left) + ".",
                     "Play it again when the program reads its keys."};
    }
    if (const auto bound = m_binder.bind(plan); !bound) return bound.error();
    return {};
}

Step<> TextTyper::prepare(std::span<const char32_t> characters, xkb_layout_index_t group) {
    std::vector<char32_t> bindable;
    for (const char32_t character : characters) {
        if (isBindable(character) || m_keymap.characters().find(character, group)) {
            bindable.push_back(character);
        }
    }
    std::vector<char32_t> wanted;
    fittingPart(bindable, group, wanted);
    return wanted.empty() ? Step<>() : bind(wanted, characters);
}

Step<Stroke> TextTyper::strokeFor(char32_t character, xkb_layout_index_t group) {
    if (const auto typable = refuseUntypable(std::span(&character, 1), group); !typable) {
        return typable.error();
    }
    if (!find(character, group)) {
        if (const auto bound = bind({character}, std::span(&character, 1)); !bound) return bound.error();
    }
    m_binder.noteReader();
    m_binder.markUsed(character);
    return find(character, group).value_or(Stroke{});
}

Step<> TextTyper::type(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held,
                       const Check& check) {
    const auto state = check();
    if (!state) return state.error();
    const xkb_layout_index_t group = state.value().lockedLayout;
    if (const auto typable = refuseUntypable(characters, group); !typable) return typable.error();
    while (!characters.empty()) {
        std::vector<char32_t> wanted;
        const std::size_t size = fittingPart(characters, group, wanted);
        if (!wanted.empty()) {
            if (auto bound = bind(wanted, characters); !bound) return bound;
        }
        if (auto typed = typePart(characters.first(size), around, held, check); !typed) return typed;
        characters = characters.subspan(size);
    }
    return {};
}

Step<> TextTyper::typePart(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held,
                           const Check& check) {
    const ModifierKeys& keys = m_keymap.keymap().keys();
    std::size_t at = 0;
    while (at < characters.size()) {
        if (auto heeded = m_waiter.heedUser(); !heeded) return heeded;
        const auto state = check();
        if (!state) return state.error();
        m_sender.meet(state.value());
        m_binder.noteReader();
        for (; at < characters.size(); ++at) {
            Stroke stroke = find(characters[at], state.value().lockedLayout).value_or(Stroke{});
            stroke.modifiers |= around.modifiers;
            stroke.lockMask = around.lockMask;
            stroke.lockValues = around.lockValues;
            if (!m_connection.hasRoomFor(StrokeSender::sizeOf(stroke))) break;
            if (const auto sent = m_sender.send(keys, stroke, held); !sent) return sent.error();
            m_binder.markUsed(characters[at]);
        }
        m_sender.home();
        m_connection.flush();
    }
    return {};
}

}  // namespace x11
