// SPDX-License-Identifier: MIT
#include "platform/x11/press/X11InjectionSession.h"

#include <algorithm>

#include "platform/keymap/StrokePlan.h"
#include "platform/run/TextPlan.h"

namespace x11 {

namespace {

/// What applications need to take in that the user's keys are up.
constexpr std::chrono::milliseconds settleTime{10};

template <typename... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};
template <typename... Cases>
Overloaded(Cases...) -> Overloaded<Cases...>;

bool isGoing(const Result<RunState>& result) { return result && result.value() == RunState::going; }

}  // namespace

X11InjectionSession::X11InjectionSession(const InjectionTools& tools, InjectionPlan plan,
                                         std::function<void()> ended)
    : m_tools(tools),
      m_plan(std::move(plan)),
      m_whenEnded(std::move(ended)),
      m_waiter(tools.clock, tools.watch, tools.interrupt, xcb_get_file_descriptor(tools.connection.get())),
      m_pacer(tools.clock, m_waiter),
      m_hands(tools.connection, tools.guard, tools.watch),
      m_sender(tools.connection, tools.watch),
      m_typer(tools.connection, tools.keymap, tools.binder, m_sender, m_waiter) {}

X11InjectionSession::~X11InjectionSession() {
    if (m_hasBegun) {
        rest();
        m_tools.watch.runEnds();
    }
    m_whenEnded();
}

void X11InjectionSession::rest() {
    if (!m_hasBegun || m_rests) return;
    m_rests = true;
    std::for_each(m_held.rbegin(), m_held.rend(), [this](const Held& held) { releaseKeysOf(held); });
    m_tools.connection.flush();
    m_hands.giveBack();
    // A guard that has gone in the meantime has nothing left to do.
    [[maybe_unused]] const auto told = m_tools.guard.tell({});
    m_tools.mark.clear();
}

Result<RunState> X11InjectionSession::step(const Step& body) {
    if (m_end) return *m_end;
    auto result = body();
    if (!isGoing(result)) m_end = result;
    return result;
}

Result<void> X11InjectionSession::followKeymap() {
    const auto isRead = m_tools.keymap.refresh(!m_hasBegun);
    if (!isRead) return isRead.error();
    if (isRead.value()) m_tools.binder.recheck();
    return {};
}

Result<RunState> X11InjectionSession::begin() {
    const auto told = m_tools.guard.tell({});
    if (!told) return told.error();
    m_tools.mark.set();
    if (!m_hasBegun) m_tools.watch.runStarts();
    m_hasBegun = true;
    m_rests = false;
    m_tools.watch.endHotKeyGrab();
    auto isFree = m_tools.grab.untilFree(m_waiter);
    if (!isGoing(isFree)) return isFree;
    return settle();
}

Result<RunState> X11InjectionSession::settle() {
    const auto isReleased = m_hands.takeOver(m_tools.keymap);
    if (!isReleased) return isReleased.error();
    if (isReleased.value() && m_waiter.waitUntil(m_tools.clock.now() + settleTime) == RunState::cancelled) {
        return RunState::cancelled;
    }
    m_pacer.begin();
    return RunState::going;
}

/// Its keys go down again in the order in which they were pressed.
Result<RunState> X11InjectionSession::resume() {
    auto begun = begin();
    if (!isGoing(begun)) return begun;
    for (const Held& held : m_held) {
        for (const std::uint8_t keycode : held.pressed) m_tools.connection.press(keycode);
    }
    m_tools.connection.flush();
    return begun;
}

Result<XkbComponents> X11InjectionSession::check() {
    auto state = m_hands.check(m_tools.keymap, heldKeys());
    if (state) m_state = state.value();
    return state;
}

Result<RunState> X11InjectionSession::ready() {
    if (!m_hasBegun || m_rests) {
        auto begun = resume();
        if (!isGoing(begun)) return begun;
    }
    if (m_waiter.look() == RunState::cancelled) return RunState::cancelled;
    const auto state = check();
    if (!state) return state.error();
    m_sender.meet(state.value());
    return RunState::going;
}

Result<RunState> X11InjectionSession::stroke(std::uint32_t keyCode, std::uint32_t modifiers) {
    return step([&]() -> Result<RunState> {
        const auto followed = followKeymap();
        if (!followed) return followed.error();
        const auto stroke = planStroke(m_tools.keymap.keymap(), keyCode, modifiers);
        if (!stroke) return stroke.error();
        return stroke.value().keycode == 0 ? m_waiter.look() : play(stroke.value());
    });
}

Result<RunState> X11InjectionSession::play(const Stroke& stroke) {
    auto isReady = ready();
    if (!isGoing(isReady)) return isReady;
    const ModifierKeys& keys = m_tools.keymap.keymap().keys();
    const auto sent = m_sender.send(keys, stroke, heldKeys());
    if (!sent) return sent.error();
    m_tools.connection.flush();
    if (!keys.isLock(stroke.keycode)) return RunState::going;
    const auto adopted = m_hands.adopt();
    return adopted ? Result<RunState>(RunState::going) : adopted.error();
}

Result<RunState> X11InjectionSession::text(std::string_view text, std::uint32_t modifiers) {
    return step([&] { return type(text, modifiers); });
}

Result<RunState> X11InjectionSession::type(std::string_view text, std::uint32_t modifiers) {
    const auto characters = charactersOf(text);
    if (!characters) return characters.error();
    if (characters.value().empty()) return m_waiter.look();
    const auto followed = followKeymap();
    if (!followed) return followed.error();
    const auto around = planModifiers(m_tools.keymap.keymap(), modifiers);
    if (!around) return around.error();
    auto isReady = ready();
    if (!isGoing(isReady)) return isReady;
    auto prepared = prepareTexts();
    if (!isGoing(prepared)) return prepared;
    return m_typer.type(characters.value(), around.value(), heldKeys(), [this] { return check(); });
}

/// What the plan tells of texts that are still to come; what in it cannot be typed is an error only there.
Result<RunState> X11InjectionSession::prepareTexts() {
    if (m_isPrepared) return RunState::going;
    m_isPrepared = true;
    std::vector<char32_t> all;
    for (const std::string& text : m_plan.texts) {
        const auto characters = charactersOf(text);
        if (characters) all.insert(all.end(), characters.value().begin(), characters.value().end());
    }
    return m_typer.prepare(all, m_state.lockedLayout);
}

Result<std::vector<Stroke>> X11InjectionSession::strokesOf(const HeldKey& key) {
    const Keymap& map = m_tools.keymap.keymap();
    using Strokes = Result<std::vector<Stroke>>;
    const auto single = [](const Result<Stroke>& stroke) -> Strokes {
        return stroke ? Strokes(std::vector{stroke.value()}) : stroke.error();
    };
    const auto ofModifier = [&](const HeldModifier& held) -> Strokes {
        const auto bits = map.real(held.modifier);
        if (!bits) return bits.error();
        return std::vector{Stroke{.keycode = map.keys().keyFor(bits.value())}};
    };
    const auto ofText = [&](const HeldText& held) -> Strokes {
        const auto characters = charactersOf(held.text);
        if (!characters) return characters.error();
        std::vector<Stroke> strokes;
        for (const char32_t character : characters.value()) {
            const auto stroke = m_typer.strokeFor(character, m_state.lockedLayout);
            if (!stroke) return stroke.error();
            strokes.push_back(stroke.value());
        }
        return strokes;
    };
    return std::visit(
        Overloaded{ofModifier, [&](const HeldCode& held) { return single(planStroke(map, held.keyCode, 0)); },
                   ofText},
        key);
}

Result<RunState> X11InjectionSession::keyDown(const HeldKey& key) {
    return step([&]() -> Result<RunState> {
        const auto followed = followKeymap();
        if (!followed) return followed.error();
        auto isReady = ready();
        if (!isGoing(isReady)) return isReady;
        const auto strokes = strokesOf(key);
        if (!strokes) return strokes.error();
        for (const Stroke& stroke : strokes.value()) {
            auto held = hold(stroke);
            if (!isGoing(held)) return held;
        }
        return RunState::going;
    });
}

Result<RunState> X11InjectionSession::hold(const Stroke& stroke) {
    const KeycodeSet held = heldKeys();
    if (stroke.keycode == 0 || held[stroke.keycode]) return RunState::going;
    auto isReady = ready();
    if (!isGoing(isReady)) return isReady;
    const ModifierKeys& keys = m_tools.keymap.keymap().keys();
    m_held.push_back({stroke.keycode, m_sender.hold(keys, stroke, held)});
    m_sender.home();
    m_tools.connection.flush();
    if (!keys.isLock(stroke.keycode)) return RunState::going;
    const auto adopted = m_hands.adopt();
    return adopted ? Result<RunState>(RunState::going) : adopted.error();
}

Result<RunState> X11InjectionSession::keyUp(const HeldKey& key) {
    return step([&]() -> Result<RunState> {
        // What the run does not hold is not released: it may be the user's own.
        if (m_held.empty()) return m_waiter.look();
        auto isReady = ready();
        if (!isGoing(isReady)) return isReady;
        const auto strokes = strokesOf(key);
        if (!strokes) return strokes.error();
        for (auto stroke = strokes.value().rbegin(); stroke != strokes.value().rend(); ++stroke) {
            letGo(stroke->keycode);
        }
        return RunState::going;
    });
}

void X11InjectionSession::letGo(std::uint8_t keycode) {
    const auto held =
        std::find_if(m_held.begin(), m_held.end(), [&](const Held& one) { return one.keycode == keycode; });
    if (held == m_held.end()) return;
    releaseKeysOf(*held);
    m_held.erase(held);
    m_tools.connection.flush();
}

void X11InjectionSession::releaseKeysOf(const Held& held) {
    std::for_each(held.pressed.rbegin(), held.pressed.rend(),
                  [this](std::uint8_t keycode) { m_tools.connection.release(keycode); });
}

KeycodeSet X11InjectionSession::heldKeys() const {
    KeycodeSet keys;
    for (const Held& held : m_held) {
        for (const std::uint8_t keycode : held.pressed) keys.set(keycode);
    }
    return keys;
}

Result<RunState> X11InjectionSession::pause(double seconds) {
    return step([&]() -> Result<RunState> { return m_pacer.pause(seconds); });
}

}  // namespace x11
