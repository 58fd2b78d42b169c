// SPDX-License-Identifier: MIT
#include "platform/x11/press/TextTyper.h"

#include <algorithm>
#include <unordered_set>

#include "platform/Sentence.h"
#include "platform/keymap/Bindable.h"
#include "platform/run/TextPlan.h"

namespace x11 {

namespace {

/// A keymap that has not changed for so long is whole.
constexpr std::chrono::milliseconds settleTime{20};
/// A modifier that a hand presses now joins what is on its way to the server, and shortcuts come of that.
constexpr std::size_t mostInFlight = 32;

}  // namespace

Step<> TextTyper::followKeymap(bool thorough) {
    for (;;) {
        const auto change = m_tools.characters.follow(thorough);
        if (!change) return change.error();
        if (!change.value().spoilt.empty()) return spoiltText(change.value().spoilt);
        if (!change.value().isNew) return {};
        // Some set it in several steps.
        if (auto waited = m_waiter.waitUntil(m_tools.clock.now() + settleTime); !waited) return waited;
        thorough = true;
    }
}

Result<void> TextTyper::refuseUntypable(std::span<const char32_t> characters, xkb_layout_index_t group) {
    std::unordered_set<char32_t> passed;
    for (const char32_t character : characters) {
        if (!passed.insert(character).second || m_tools.characters.find(character, group)) continue;
        if (isBindable(character) && m_tools.binder.capacity() > 0) continue;
        return Error{sentence("Keys", "The character %1 cannot be typed with this keyboard layout.")
                         .arg(nameOf(character)),
                     sentence("Keys", "Take it out of the text, or set a layout that has it.")};
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
        if (seen.contains(character) || m_tools.keymap.characters().find(character, group)) continue;
        if (unbound.size() == m_tools.binder.capacity()) return at;
        seen.insert(character);
        unbound.push_back(character);
    }
    return characters.size();
}

Step<> TextTyper::bind(const std::vector<char32_t>& wanted, std::span<const char32_t> left) {
    const auto plan = m_tools.binder.plan(wanted);
    const auto isRead = m_tools.binder.awaitReaders(plan, m_waiter);
    if (!isRead) return isRead.error();
    if (!isRead.value()) {
        return Error{sentence("Keys", "The program that is typed into reads nothing; not typed: %1.")
                         .arg(beginningOf(left)),
                     sentence("Keys", "Play it again when the program reads its keys.")};
    }
    if (plan.notBefore) m_tools.characters.forgetTyped();
    if (const auto bound = m_tools.binder.bind(plan); !bound) return bound.error();
    return {};
}

Step<> TextTyper::prepare(std::span<const char32_t> characters, xkb_layout_index_t group) {
    std::vector<char32_t> bindable;
    for (const char32_t character : characters) {
        if (isBindable(character) || m_tools.keymap.characters().find(character, group)) {
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
    if (!m_tools.characters.find(character, group)) {
        if (const auto bound = bind({character}, std::span(&character, 1)); !bound) return bound.error();
    }
    m_tools.binder.noteReader();
    const Stroke stroke = m_tools.characters.find(character, group).value_or(Stroke{});
    m_tools.characters.noteTyped(character, group, stroke);
    return stroke;
}

Step<> TextTyper::type(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held,
                       const Check& check) {
    const auto state = check();
    if (!state) return state.error();
    const xkb_layout_index_t group = state.value().lockedLayout;
    while (!characters.empty()) {
        if (const auto typable = refuseUntypable(characters, group); !typable) return typable.error();
        std::vector<char32_t> wanted;
        const std::size_t size = fittingPart(characters, group, wanted);
        if (!wanted.empty()) {
            if (auto bound = bind(wanted, characters); !bound) return bound;
        }
        const auto typed = typePart(characters.first(size), around, held, check);
        if (!typed) return typed.error();
        characters = characters.subspan(typed.value());
        if (auto followed = followKeymap(true); !followed) return followed;
    }
    return {};
}

Step<std::size_t> TextTyper::typePart(std::span<const char32_t> characters, const Stroke& around,
                                      const KeycodeSet& held, const Check& check) {
    std::size_t at = 0;
    bool isWhole = true;
    while (at < characters.size() && isWhole) {
        if (auto heeded = m_waiter.heedUser(); !heeded) return heeded.error();
        const auto state = check();
        if (!state) return state.error();
        m_sender.meet(state.value());
        m_tools.binder.noteReader();
        const std::size_t end = std::min(at + mostInFlight, characters.size());
        for (; at < end; ++at) {
            const xkb_layout_index_t group = state.value().lockedLayout;
            const auto typing = m_tools.characters.find(characters[at], group);
            isWhole = typing.has_value();
            if (!isWhole) break;
            Stroke stroke = *typing;
            stroke.modifiers |= around.modifiers;
            stroke.lockMask = around.lockMask;
            stroke.lockValues = around.lockValues;
            if (!m_tools.connection.hasRoomFor(InjectionConnection::sizeOf(stroke))) break;
            if (const auto sent = m_sender.send(m_tools.keymap.keymap(), stroke, held); !sent)
                return sent.error();
            m_tools.characters.noteTyped(characters[at], group, *typing);
        }
        m_sender.home();
        m_tools.connection.flush();
    }
    return at;
}

}  // namespace x11
