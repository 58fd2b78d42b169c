// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandInjectionSession.h"

#include <utility>
#include <variant>

#include "platform/KeyCodes.h"
#include "platform/keymap/StrokePlan.h"
#include "platform/run/TextPlan.h"

namespace wayland {

namespace {

/// The watch tells of each key.
constexpr std::chrono::milliseconds betweenLooks{50};
/// What applications need to take in that the user's keys are up.
constexpr std::chrono::milliseconds settleTime{10};

}  // namespace

WaylandInjectionSession::WaylandInjectionSession(const InjectionTools& tools, InjectionPlan plan,
                                                 std::function<void()> ended)
    : m_tools(tools),
      m_plan(std::move(plan)),
      m_whenEnded(std::move(ended)),
      m_waiter(tools.clock, tools.watch, tools.interrupt, tools.pressing.companion(),
               tools.connection.fileDescriptor()),
      m_tail(tools.pressing.output(), tools.clock),
      m_tailWait(m_tail, tools.pressing.output(), m_waiter, tools.clock, [] { return KeycodeSet(); }),
      m_pacer(tools.clock, m_tailWait),
      m_sender(tools.pressing.output(), tools.watch, m_tail),
      m_held(tools.pressing.output(), tools.watch, m_sender),
      m_keyboard(tools.pressing.keyboard(m_sender, m_waiter)) {
    m_waiter.whenSuspended([this] { return stopProcess(); });
}

WaylandInjectionSession::~WaylandInjectionSession() {
    if (m_hasBegun) {
        rest();
        m_tools.watch.runEnds();
    }
    m_whenEnded();
}

Step<> WaylandInjectionSession::begin() {
    // What the user has done meanwhile: another layout may be in force.
    if (const auto told = m_tools.connection.roundTrip(); !told) return told.error();
    m_tools.interrupt.setHolding(true);
    if (!m_hasBegun) m_tools.watch.runStarts();
    m_hasBegun = true;
    m_rests = false;
    if (auto pluggedIn = m_keyboard->plugIn(); !pluggedIn) return pluggedIn;
    m_held.pressAgain();
    m_pacer.begin();
    return {};
}

void WaylandInjectionSession::rest() {
    if (!m_hasBegun || m_rests) return;
    m_rests = true;
    m_tailWait.rest();
    m_held.rest();
    m_keyboard->unplug();
    m_tools.interrupt.setHolding(false);
}

/// As if the run had rested: others have the keyboard meanwhile.
Step<> WaylandInjectionSession::stopProcess() {
    const bool hadBegun = m_hasBegun && !m_rests;
    rest();
    m_tools.interrupt.stopProcess();
    m_pacer.restart();
    return hadBegun ? begin() : Step<>();
}

void WaylandInjectionSession::settle() {
    // A halt comes again with the next step.
    [[maybe_unused]] const auto ended = m_tailWait.endTail();
}

Step<> WaylandInjectionSession::take(const std::function<Step<>()>& step) {
    if (m_halt) return *m_halt;
    auto taken = step();
    if (!taken) m_halt = taken.error();
    return taken;
}

Step<> WaylandInjectionSession::prepareStroke(xkb_mod_mask_t commands) {
    if (auto heeded = m_waiter.heedUser(); !heeded) return heeded;
    if (!m_hasBegun || m_rests) {
        if (auto begun = begin(); !begun) return begun;
    }
    if (!m_tail.isContinuedBy(commands)) {
        if (auto ended = m_tailWait.endTail(); !ended) return ended;
    }
    if (auto up = awaitHands(); !up) return up;
    m_sender.meet(m_keyboard->components());
    return {};
}

bool WaylandInjectionSession::handsHoldModifiers() const {
    if (!m_tools.watch.handsHoldKeys()) return false;
    const ModifierKeys& keys = m_tools.seat.keymap().keys();
    for (std::size_t i = xkbcode::first; i <= xkbcode::last; ++i) {
        const auto keycode = static_cast<std::uint8_t>(i);
        if (keys.heldBy(keycode) != 0 && m_tools.watch.handsHold(keycode)) return true;
    }
    return false;
}

Step<> WaylandInjectionSession::awaitHands() {
    if (!handsHoldModifiers()) return {};
    do {
        m_waiter.awaitNews(m_tools.clock.now() + betweenLooks);
        if (auto heeded = m_waiter.heedUser(); !heeded) return heeded;
    } while (handsHoldModifiers());
    m_pacer.restart();
    return m_waiter.waitUntil(m_tools.clock.now() + settleTime);
}

Step<> WaylandInjectionSession::stroke(std::uint32_t keyCode, std::uint32_t modifiers) {
    return take([&]() -> Step<> {
        const auto stroke = plan(keyCode, modifiers);
        if (!stroke) return stroke.error();
        return stroke.value().keycode == 0 ? m_waiter.heedUser() : play(stroke.value());
    });
}

Result<Stroke> WaylandInjectionSession::plan(std::uint32_t keyCode, std::uint32_t modifiers) const {
    const xkb_layout_index_t layout =
        m_hasBegun && !m_rests ? m_keyboard->components().lockedLayout : m_tools.seat.group();
    return planStroke(m_tools.seat.keymap(), keyCode, modifiers, layout);
}

Step<> WaylandInjectionSession::play(const Stroke& stroke) {
    const Keymap& keymap = m_tools.seat.keymap();
    if (auto prepared = prepareStroke(stroke.modifiers & keymap.masks().commands()); !prepared) {
        return prepared;
    }
    const auto sent = m_sender.send(keymap, stroke, m_held.keycodes());
    if (!sent) return sent.error();
    m_sender.home();
    return beginTail();
}

Step<> WaylandInjectionSession::beginTail() {
    if (const auto passed = m_tools.pressing.output().synchronise(); !passed) return passed.error();
    if (m_tail.isDown()) m_tail.begin();
    return {};
}

Step<> WaylandInjectionSession::text(std::string_view text, std::uint32_t modifiers) {
    return take([&] { return type(text, modifiers); });
}

Step<> WaylandInjectionSession::type(std::string_view text, std::uint32_t modifiers) {
    const auto characters = charactersOf(text);
    if (!characters) return characters.error();
    if (characters.value().empty()) return m_waiter.heedUser();
    const Keymap& keymap = m_tools.seat.keymap();
    const auto around = planModifiers(keymap, modifiers);
    if (!around) return around.error();
    if (auto prepared = prepareStroke(around.value().modifiers & keymap.masks().commands()); !prepared) {
        return prepared;
    }
    if (auto prepared = prepareTexts(); !prepared) return prepared;
    const auto typed = m_keyboard->type(characters.value(), around.value(), m_held.keycodes());
    return typed ? beginTail() : typed;
}

/// What the plan tells of texts that are still to come; what in it cannot be typed is an error only there.
Step<> WaylandInjectionSession::prepareTexts() {
    if (std::exchange(m_isPrepared, true)) return {};
    return m_keyboard->prepare(charactersOfAll(m_plan.texts));
}

WaylandInjectionSession::Strokes WaylandInjectionSession::strokesOf(const HeldKey& key) {
    const Keymap& keymap = m_tools.seat.keymap();
    if (const auto* held = std::get_if<HeldModifier>(&key)) {
        const auto bits = keymap.real(held->modifier);
        if (!bits) return bits.error();
        return std::vector{Stroke{.keycode = keymap.keys().keyFor(bits.value())}};
    }
    if (const auto* held = std::get_if<HeldCode>(&key)) {
        const auto stroke = plan(held->keyCode, 0);
        if (!stroke) return stroke.error();
        return std::vector{stroke.value()};
    }
    return strokesOfText(std::get<HeldText>(key).text);
}

WaylandInjectionSession::Strokes WaylandInjectionSession::strokesOfText(std::string_view text) {
    const auto characters = charactersOf(text);
    if (!characters) return characters.error();
    std::vector<Stroke> strokes;
    for (const char32_t character : characters.value()) {
        const auto stroke = m_keyboard->strokeFor(character);
        if (!stroke) return stroke.error();
        strokes.push_back(stroke.value());
        strokes.back().lockMask = locksOfText(m_tools.seat.keymap());
    }
    return strokes;
}

Step<> WaylandInjectionSession::keyDown(const HeldKey& key) {
    return take([&]() -> Step<> {
        if (auto prepared = prepareStroke(); !prepared) return prepared;
        const auto strokes = strokesOf(key);
        if (!strokes) return strokes.error();
        for (const Stroke& stroke : strokes.value()) {
            if (auto held = hold(stroke); !held) return held;
        }
        return {};
    });
}

Step<> WaylandInjectionSession::hold(const Stroke& stroke) {
    if (stroke.keycode == 0 || m_held.keycodes()[stroke.keycode]) return {};
    if (auto prepared = prepareStroke(); !prepared) return prepared;
    m_held.press(m_tools.seat.keymap().keys(), stroke);
    m_sender.home();
    if (const auto passed = m_tools.pressing.output().synchronise(); !passed) return passed.error();
    return {};
}

Step<> WaylandInjectionSession::keyUp(const HeldKey& key) {
    return take([&]() -> Step<> {
        if (m_held.empty()) return m_waiter.heedUser();
        if (auto prepared = prepareStroke(); !prepared) return prepared;
        const auto strokes = strokesOf(key);
        if (!strokes) return strokes.error();
        for (auto stroke = strokes.value().rbegin(); stroke != strokes.value().rend(); ++stroke) {
            if (const auto gone = m_held.letGo(stroke->keycode); !gone) return gone.error();
        }
        return {};
    });
}

Step<> WaylandInjectionSession::pause(double seconds) {
    return take([&] { return m_pacer.pause(seconds); });
}

}  // namespace wayland
