// SPDX-License-Identifier: MIT
#include "platform/wayland/TextTyper.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "platform/Sentence.h"
#include "platform/keymap/Bindable.h"
#include "platform/run/TextPlan.h"

namespace wayland {

namespace {

/// Characters between two looks at what the user wishes.
constexpr std::size_t partSize = 32;

}  // namespace

Step<> TextTyper::plugIn() {
    m_tools.seat.ownKeyboardComes();
    const auto pluggedIn = m_tools.keyboard.plugIn(keymapToBeginWith(), m_tools.seat.group());
    if (!pluggedIn) return pluggedIn.error();
    m_strangersKeymaps = m_tools.seat.strangersKeymaps();
    return {};
}

Step<> TextTyper::restore() {
    if (const auto told = m_tools.connection.roundTrip(); !told) return told.error();
    const unsigned keymaps = m_tools.seat.strangersKeymaps();
    if (std::exchange(m_strangersKeymaps, keymaps) != keymaps) {
        const auto set = m_tools.keyboard.setKeymap(m_keymap->with(m_slots.bindings()));
        if (!set) return set.error();
    }
    m_tools.keyboard.lockGroup(m_tools.keyboard.components().lockedLayout);
    return {};
}

void TextTyper::unplug() {
    m_tools.keyboard.unplug();
    // A compositor that has gone tells nothing either.
    [[maybe_unused]] const auto told = m_tools.connection.roundTrip();
    m_tools.seat.ownKeyboardHasGone();
}

std::string TextTyper::keymapToBeginWith() {
    if (std::exchange(m_seatText, m_tools.seat.text()) != m_tools.seat.text() || !m_keymap) {
        m_keymap.emplace(m_seatText, m_tools.seat.keymap());
        m_slots.reset(m_keymap->spareKeys(), TypingKeymap::groups);
    }
    return m_keymap->with(m_slots.bindings());
}

std::optional<Stroke> TextTyper::find(char32_t character) const {
    const xkb_layout_index_t group = m_tools.keyboard.components().lockedLayout;
    if (auto stroke = m_tools.seat.characters().find(character, group)) return stroke;
    const auto slot = m_slots.find(character);
    if (!slot) return std::nullopt;
    return Stroke{.keycode = slot->keycode, .group = static_cast<std::int8_t>(slot->level)};
}

Result<void> TextTyper::refuseUntypable(std::span<const char32_t> characters) const {
    const auto untypable = std::find_if(characters.begin(), characters.end(), [this](char32_t character) {
        return !find(character) && (!isBindable(character) || m_slots.capacity() == 0);
    });
    if (untypable == characters.end()) return {};
    return Error{sentence("Keys", "The character %1 cannot be typed with this keyboard layout.")
                     .arg(nameOf(*untypable)),
                 sentence("Keys", "Take it out of the text, or set a layout that has it.")};
}

/// How many characters from the front can be typed without binding a key twice, and which of them are on no
/// layout.
std::size_t TextTyper::fittingPart(std::span<const char32_t> characters,
                                   std::vector<char32_t>& unbound) const {
    const xkb_layout_index_t group = m_tools.keyboard.components().lockedLayout;
    std::unordered_set<char32_t> seen;
    for (std::size_t at = 0; at < characters.size(); ++at) {
        const char32_t character = characters[at];
        if (seen.contains(character) || m_tools.seat.characters().find(character, group)) continue;
        if (unbound.size() == m_slots.capacity()) return at;
        seen.insert(character);
        unbound.push_back(character);
    }
    return characters.size();
}

Step<> TextTyper::bind(const std::vector<char32_t>& wanted) {
    const SpareSlots::Plan plan = m_slots.plan(wanted);
    if (plan.bindings.empty()) return {};
    if (plan.notBefore) {
        if (auto waited = m_wait.waitUntil(*plan.notBefore); !waited) return waited;
    }
    m_slots.apply(plan);
    if (const auto set = m_tools.keyboard.setKeymap(m_keymap->with(m_slots.bindings())); !set) {
        return set.error();
    }
    return {};
}

Step<> TextTyper::prepare(std::span<const char32_t> characters) {
    const xkb_layout_index_t group = m_tools.keyboard.components().lockedLayout;
    std::vector<char32_t> typable;
    std::copy_if(characters.begin(), characters.end(), std::back_inserter(typable), [&](char32_t character) {
        return isBindable(character) || m_tools.seat.characters().find(character, group);
    });
    std::vector<char32_t> wanted;
    fittingPart(typable, wanted);
    return bind(wanted);
}

Step<Stroke> TextTyper::strokeFor(char32_t character) {
    if (const auto typable = refuseUntypable(std::span(&character, 1)); !typable) return typable.error();
    if (!find(character)) {
        if (auto bound = bind({character}); !bound) return bound.error();
    }
    m_slots.markUsed(character, m_tools.clock.now());
    return find(character).value_or(Stroke{});
}

Step<> TextTyper::type(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held) {
    if (const auto typable = refuseUntypable(characters); !typable) return typable.error();
    if (auto restored = restore(); !restored) return restored;
    while (!characters.empty()) {
        std::vector<char32_t> wanted;
        const std::size_t size = fittingPart(characters, wanted);
        if (auto bound = bind(wanted); !bound) return bound;
        for (std::size_t at = 0; at < size; at += partSize) {
            const auto part = characters.subspan(at, std::min(partSize, size - at));
            if (auto paced = m_pace.keep(part.size()); !paced) return paced;
            if (auto typed = typePart(part, around, held); !typed) return typed;
        }
        characters = characters.subspan(size);
    }
    return {};
}

Step<> TextTyper::typePart(std::span<const char32_t> characters, const Stroke& around,
                           const KeycodeSet& held) {
    m_sender.meet(m_tools.keyboard.components());
    for (const char32_t character : characters) {
        Stroke stroke = find(character).value_or(Stroke{});
        stroke.modifiers |= around.modifiers;
        stroke.lockMask = around.lockMask;
        stroke.lockValues = around.lockValues;
        const auto sent = m_sender.send(m_tools.seat.keymap(), stroke, held);
        if (!sent) return sent.error();
        m_slots.markUsed(character, m_tools.clock.now());
    }
    m_sender.home();
    const auto passed = m_tools.keyboard.synchronise();
    if (!passed) return passed.error();
    return {};
}

}  // namespace wayland
