// SPDX-License-Identifier: MIT
#include "platform/wayland/PortalPressing.h"

#include <algorithm>
#include <utility>

#include "platform/Sentence.h"
#include "platform/XkbCodes.h"
#include "platform/keymap/StateComponents.h"
#include "platform/run/TextPlan.h"
#include "platform/wayland/TypingPace.h"

namespace wayland {

namespace {

/// Characters between two looks at what the user wishes.
constexpr std::size_t partSize = 32;

/// Types what the user's layouts have by their keys.
class PortalTyper final : public RunKeyboard {
  public:
    struct Tools {
        PortalLink& link;
        PortalKeyboard& keyboard;
        const Layouts& layouts;
        const SeatKeymap& seat;
        const Clock& clock;
    };
    PortalTyper(const Tools& tools, StrokeSender& sender, RunWait& wait)
        : m_tools(tools), m_sender(sender), m_wait(wait), m_pace(tools.clock, wait) {}

    Step<> plugIn() override {
        if (auto opened = m_tools.link.open(m_wait); !opened) return opened;
        m_tools.keyboard.plugIn();
        return {};
    }
    void unplug() override {
        m_tools.keyboard.unplug();
        m_tools.link.rest();
    }
    XkbComponents components() const override { return m_tools.keyboard.components(); }

    Step<> type(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held) override;
    Step<> prepare(std::span<const char32_t> /*characters*/) override { return {}; }
    Step<Stroke> strokeFor(char32_t character) override;

  private:
    std::optional<Stroke> find(char32_t character) const;
    Error cannotType(char32_t character) const;
    Step<> typePart(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held);

    Tools m_tools;
    StrokeSender& m_sender;
    RunWait& m_wait;
    TypingPace m_pace;
};

std::optional<Stroke> PortalTyper::find(char32_t character) const {
    const xkb_layout_index_t layout = components().lockedLayout;
    const auto stroke = m_tools.seat.characters().find(character, layout);
    const bool isHere = stroke && static_cast<xkb_layout_index_t>(stroke->group) == layout;
    return isHere || m_tools.layouts.canSwitch() ? stroke : std::nullopt;
}

Error PortalTyper::cannotType(char32_t character) const {
    if (!m_tools.layouts.canSwitch()) {
        return {
            sentence("Keys", "The character %1 cannot be typed with the keyboard layout that is in force.")
                .arg(nameOf(character)),
            sentence("Keys", "Take it out of the text, or switch to a layout that has it before you play.")};
    }
    return {sentence("Keys", "The character %1 cannot be typed with your keyboard layouts.")
                .arg(nameOf(character)),
            sentence("Keys", "Take it out of the text, or add a layout that has it.")};
}

Step<Stroke> PortalTyper::strokeFor(char32_t character) {
    const auto stroke = find(character);
    if (!stroke) return cannotType(character);
    return *stroke;
}

Step<> PortalTyper::type(std::span<const char32_t> characters, const Stroke& around, const KeycodeSet& held) {
    const auto untypable = std::find_if(characters.begin(), characters.end(),
                                        [this](char32_t character) { return !find(character); });
    if (untypable != characters.end()) return cannotType(*untypable);
    for (std::size_t at = 0; at < characters.size(); at += partSize) {
        const auto part = characters.subspan(at, std::min(partSize, characters.size() - at));
        if (auto paced = m_pace.keep(part.size()); !paced) return paced;
        if (auto typed = typePart(part, around, held); !typed) return typed;
    }
    return {};
}

/// In the layout of the character before, where that has the next one too: a change of the layout takes time.
Step<> PortalTyper::typePart(std::span<const char32_t> characters, const Stroke& around,
                             const KeycodeSet& held) {
    m_sender.meet(components());
    for (const char32_t character : characters) {
        Stroke stroke = find(character).value_or(Stroke{});
        stroke.modifiers |= around.modifiers;
        stroke.lockMask = around.lockMask;
        stroke.lockValues = around.lockValues;
        const auto sent = m_sender.send(m_tools.seat.keymap(), stroke, held);
        if (!sent) return sent.error();
    }
    m_sender.home();
    const auto passed = m_tools.keyboard.synchronise();
    if (!passed) return passed.error();
    return {};
}

}  // namespace

void PortalKeyboard::plugIn() {
    m_state.reset(xkb_state_new(m_seat.keymap().get()));
    m_down.reset();
    m_problem.reset();
    m_homeLayout.reset();
    xkb_state_update_mask(m_state.get(), 0, 0, m_locks.locked(m_seat.keymap().masks()), 0, 0, m_seat.group());
}

XkbComponents PortalKeyboard::components() const {
    return m_state ? componentsOf(m_state.get()) : XkbComponents{};
}

void PortalKeyboard::send(std::uint8_t keycode, bool press) {
    if (!m_state || m_down[keycode] == press) return;
    // What is pressed in another layout than is meant is not pressed at all.
    if (press && m_problem) return;
    m_link.key(static_cast<std::uint16_t>(xkbcode::toEvdev(keycode)), press);
    m_down[keycode] = press;
    xkb_state_update_key(m_state.get(), keycode, press ? XKB_KEY_DOWN : XKB_KEY_UP);
}

void PortalKeyboard::lockModifiers(xkb_mod_mask_t mask, xkb_mod_mask_t values) {
    const ModifierKeys& keys = m_seat.keymap().keys();
    xkb_mod_mask_t change = (components().locked ^ values) & mask;
    for (std::size_t i = xkbcode::first; change != 0 && i <= xkbcode::last; ++i) {
        const auto keycode = static_cast<std::uint8_t>(i);
        const xkb_mod_mask_t set = keys.setBy(keycode, components().lockedLayout);
        if (!keys.isLock(keycode) || set == 0 || (set & ~change) != 0) continue;
        press(keycode);
        release(keycode);
        change = (components().locked ^ values) & mask;
    }
}

void PortalKeyboard::lockGroup(xkb_layout_index_t group) {
    if (!m_state || components().lockedLayout == group) return;
    // What was pressed before is typed in the layout that was in force.
    if (!passKeys()) return;
    if (const auto set = setLayout(group); !set) {
        m_problem = set.error();
        return;
    }
    const XkbComponents now = components();
    xkb_state_update_mask(m_state.get(), now.depressed, now.latched, now.locked, now.baseLayout,
                          now.latchedLayout, group);
}

/// However this process ends, the user's layout is in force again.
Result<void> PortalKeyboard::setLayout(xkb_layout_index_t group) {
    if (!m_layouts.canSwitch()) return m_layouts.setGroup(group);
    if (!m_homeLayout) {
        m_homeLayout = components().lockedLayout;
        m_link.leaveLayout(*m_homeLayout);
    }
    auto set = m_layouts.setGroup(group);
    if (set && group == *m_homeLayout) {
        m_homeLayout.reset();
        m_link.layoutIsHome();
    }
    return set;
}

Result<XkbComponents> PortalKeyboard::synchronise() {
    if (!m_state) return components();
    if (auto passed = passKeys(); !passed) return passed.error();
    if (m_problem) return *std::exchange(m_problem, std::nullopt);
    return components();
}

Result<void> PortalKeyboard::passKeys() {
    const auto done = m_link.synchronise();
    if (!done) return done.error();
    // The desktop has sent them to its compositor, which takes them before it answers us.
    const auto taken = m_connection.roundTrip();
    if (!taken) return taken.error();
    return {};
}

std::unique_ptr<RunKeyboard> PortalPressing::keyboard(StrokeSender& sender, RunWait& wait) {
    return std::make_unique<PortalTyper>(
        PortalTyper::Tools{
            .link = m_link, .keyboard = m_keyboard, .layouts = m_layouts, .seat = m_seat, .clock = m_clock},
        sender, wait);
}

}  // namespace wayland
