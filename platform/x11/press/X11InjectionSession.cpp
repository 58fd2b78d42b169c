// SPDX-License-Identifier: MIT
#include "platform/x11/press/X11InjectionSession.h"

#include <utility>

#include "platform/KeyCodes.h"
#include "platform/keymap/StrokePlan.h"
#include "platform/run/TextPlan.h"

namespace x11 {

namespace {

/// At who has the keyboard.
constexpr std::chrono::milliseconds betweenLooks{10};
/// A guard that runs answers within a millisecond; to start takes it ten.
constexpr std::chrono::milliseconds patienceForManager{100};
constexpr std::chrono::milliseconds guardPatience{1000};
constexpr std::chrono::milliseconds guardStart{3000};

}  // namespace

X11InjectionSession::X11InjectionSession(const InjectionTools& tools, InjectionPlan plan,
                                         std::function<void()> ended)
    : m_tools(tools),
      m_plan(std::move(plan)),
      m_whenEnded(std::move(ended)),
      m_waiter(tools.clock, tools.watch, tools.interrupt, tools.guard,
               xcb_get_file_descriptor(tools.connection.get())),
      m_tail(tools.connection, tools.clock),
      m_tailWait(m_tail, tools.connection, m_waiter, tools.clock,
                 [this] { return m_hands.modifiersOfHands(ownKeys()); }),
      m_pacer(tools.clock, m_tailWait),
      m_hands({tools.connection, tools.keymap, tools.watch, tools.clock}, m_waiter, m_pacer),
      m_locks(tools.connection, tools.guard),
      m_sender(tools.connection, tools.watch, m_tail),
      m_held(tools.connection, tools.watch, m_sender),
      m_typer({tools.connection, tools.keymap, tools.binder, tools.characters, tools.clock}, m_sender,
              m_waiter) {
    // What an earlier run has typed is its matter.
    m_tools.characters.forgetTyped();
    m_waiter.whenSuspended([this] { return stopProcess(); });
}

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
    m_tailWait.rest();
    m_held.rest();
    m_locks.giveBack();
    // A guard that has gone in the meantime has nothing left to do.
    [[maybe_unused]] const auto told = m_tools.guard.tell({});
    m_tools.mark.clear();
    m_tools.interrupt.setHolding(false);
}

/// As if the run had rested: others have the keyboard meanwhile.
Step<> X11InjectionSession::stopProcess() {
    const bool hadTakenOver = m_hasBegun && !m_rests;
    rest();
    m_tools.interrupt.stopProcess();
    m_pacer.restart();
    if (!hadTakenOver) return {};
    if (auto begun = begin(); !begun) return begun;
    m_held.pressAgain();
    return {};
}

void X11InjectionSession::settle() {
    // A halt comes again with the next step.
    [[maybe_unused]] const auto ended = m_tailWait.endTail();
}

Step<> X11InjectionSession::take(const std::function<Step<>()>& step) {
    if (m_halt) return *m_halt;
    auto taken = step();
    if (!taken) m_halt = taken.error();
    return taken;
}

Step<> X11InjectionSession::begin() {
    if (const auto told = m_tools.guard.tell({}); !told) return told.error();
    if (auto ready = awaitGuard(); !ready) return ready;
    m_tools.interrupt.setHolding(true);
    m_tools.mark.set();
    if (!m_hasBegun) m_tools.watch.runStarts();
    m_hasBegun = true;
    m_rests = false;
    if (auto freed = freeKeyboard(); !freed) return freed;
    if (const auto taken = m_locks.takeOver(m_tools.keymap); !taken) return taken.error();
    m_pacer.begin();
    return {};
}

Step<> X11InjectionSession::freeKeyboard() {
    // With the grab still there: the repeats of a hot key that is held would reach the application.
    if (auto up = m_hands.begin(); !up) return up;
    m_tools.watch.endHotKeyGrab();
    return m_tools.grab.untilFree(m_waiter);
}

Step<XkbComponents> X11InjectionSession::checkHands() {
    const KeycodeSet held = ownKeys();
    auto state = m_hands.untilUp(held);
    if (!state) {
        // A second release would be that of a hand's key.
        m_tail.forget(m_hands.lifted());
        m_held.forget(m_hands.lifted());
        return state;
    }
    const auto isRepaired = m_locks.repair(m_tools.keymap, held, state.value());
    if (!isRepaired) return isRepaired.error();
    if (isRepaired.value()) state = m_hands.untilUp(held);
    if (state) m_state = state.value();
    return state;
}

/// One that does not answer is given up for another, once.
Step<> X11InjectionSession::awaitGuard() {
    bool isReplaced = false;
    Clock::Time end = m_tools.clock.now() + guardPatience;
    while (!m_tools.guard.isReady()) {
        if (auto heeded = m_waiter.heedUser(); !heeded) return heeded;
        if (m_tools.guard.isReady()) break;
        if (m_tools.clock.now() < end) {
            m_waiter.awaitNews(end);
        } else if (isReplaced) {
            return m_tools.guard.cannotStart();
        } else {
            if (const auto replaced = m_tools.guard.replace(); !replaced) return replaced.error();
            isReplaced = true;
            end = m_tools.clock.now() + guardStart;
        }
    }
    return {};
}

/// What is typed into a locker's question may be a part of nothing that its user wants to have there.
Step<> X11InjectionSession::awaitOpenScreen() {
    auto heeded = m_waiter.heedUser();
    while (heeded && m_tools.watch.mayBeLocked()) {
        heeded = m_waiter.waitUntil(m_tools.clock.now() + betweenLooks);
    }
    return heeded;
}

Step<> X11InjectionSession::prepareStroke(xkb_mod_mask_t commands) {
    if (!m_hasBegun || m_rests) {
        if (auto begun = begin(); !begun) return begun;
        m_held.pressAgain();
    }
    if (m_tail.isContinuedBy(commands)) {
        // A busy one loses the second of two switches.
        if (auto come = m_tools.grab.awaitManager(m_waiter, patienceForManager); !come) return come;
    } else {
        if (auto ended = m_tailWait.endTail(); !ended) return ended;
        if (auto done = awaitHotKeys(); !done) return done;
    }
    if (auto heeded = awaitOpenScreen(); !heeded) return heeded;
    const auto state = checkHands();
    if (!state) return state.error();
    m_sender.meet(state.value());
    return awaitGuard();
}

Step<> X11InjectionSession::stroke(std::uint32_t keyCode, std::uint32_t modifiers) {
    return take([&]() -> Step<> {
        if (auto followed = m_typer.followKeymap(!m_hasBegun); !followed) return followed;
        const auto stroke = plan(keyCode, modifiers);
        if (!stroke) return stroke.error();
        return stroke.value().keycode == 0 ? m_waiter.heedUser() : play(stroke.value());
    });
}

/// Which lock types a digit of the keypad depends on the layout.
Step<Stroke> X11InjectionSession::plan(std::uint32_t keyCode, std::uint32_t modifiers) const {
    xkb_layout_index_t layout = 0;
    if (keycode::isKeypadDigit(keycode::baseOf(keyCode))) {
        const auto state = m_tools.connection.synchronise();
        if (!state) return state.error();
        layout = state.value().lockedLayout;
    }
    const auto stroke = planStroke(m_tools.keymap.keymap(), keyCode, modifiers, layout);
    if (!stroke) return stroke.error();
    return stroke.value();
}

Step<> X11InjectionSession::play(const Stroke& stroke) {
    const Keymap& keymap = m_tools.keymap.keymap();
    if (auto prepared = prepareStroke(stroke.modifiers & keymap.masks().commands()); !prepared) {
        return prepared;
    }
    const auto sent = m_sender.send(keymap, stroke, m_held.keycodes());
    if (!sent) return sent.error();
    m_sender.home();
    if (auto begun = beginTail(); !begun) return begun;
    return adoptLocks(stroke.keycode);
}

Step<> X11InjectionSession::beginTail() {
    m_tools.connection.flush();
    m_lastStroke = m_tools.clock.now();
    if (!m_tail.isDown()) return {};
    if (const auto passed = m_tools.connection.synchronise(); !passed) return passed.error();
    m_tail.begin();
    m_mayBeHotKey = true;
    return {};
}

/// What comes while somebody works off a combination of his would be his as well, or go to the window before.
Step<> X11InjectionSession::awaitHotKeys() {
    if (m_tail.isDown() || !std::exchange(m_mayBeHotKey, false)) return {};
    return m_tools.grab.untilHotKeyIsDone(m_waiter);
}

/// What a stroke of a lock key has changed stays as it is now.
Step<> X11InjectionSession::adoptLocks(std::uint8_t keycode) {
    if (!m_tools.keymap.keymap().keys().isLock(keycode)) return {};
    if (const auto adopted = m_locks.adopt(); !adopted) return adopted.error();
    return {};
}

Step<> X11InjectionSession::text(std::string_view text, std::uint32_t modifiers) {
    return take([&] { return type(text, modifiers); });
}

Step<> X11InjectionSession::type(std::string_view text, std::uint32_t modifiers) {
    const auto characters = charactersOf(text);
    if (!characters) return characters.error();
    if (characters.value().empty()) return m_waiter.heedUser();
    if (auto followed = m_typer.followKeymap(true); !followed) return followed;
    const Keymap& keymap = m_tools.keymap.keymap();
    const auto around = planModifiers(keymap, modifiers);
    if (!around) return around.error();
    if (auto prepared = prepareStroke(around.value().modifiers & keymap.masks().commands()); !prepared) {
        return prepared;
    }
    if (auto prepared = prepareTexts(); !prepared) return prepared;
    const auto typed =
        m_typer.type(characters.value(), around.value(), m_held.keycodes(), [this] { return checkHands(); });
    return typed ? beginTail() : typed;
}

/// What the plan tells of texts that are still to come; what in it cannot be typed is an error only there.
Step<> X11InjectionSession::prepareTexts() {
    if (m_isPrepared) return {};
    m_isPrepared = true;
    return m_typer.prepare(charactersOfAll(m_plan.texts), m_state.lockedLayout);
}

X11InjectionSession::Strokes X11InjectionSession::strokesOf(const HeldKey& key) {
    if (const auto* held = std::get_if<HeldModifier>(&key)) return strokesOfModifier(held->modifier);
    if (const auto* held = std::get_if<HeldCode>(&key)) return strokesOfCode(held->keyCode);
    return strokesOfText(std::get<HeldText>(key).text);
}

X11InjectionSession::Strokes X11InjectionSession::strokesOfModifier(std::uint32_t modifier) const {
    const Keymap& map = m_tools.keymap.keymap();
    const auto bits = map.real(modifier);
    if (!bits) return bits.error();
    return std::vector{Stroke{.keycode = map.keys().keyFor(bits.value())}};
}

X11InjectionSession::Strokes X11InjectionSession::strokesOfCode(std::uint32_t keyCode) const {
    const auto stroke = plan(keyCode, 0);
    if (!stroke) return stroke.error();
    return std::vector{stroke.value()};
}

X11InjectionSession::Strokes X11InjectionSession::strokesOfText(std::string_view text) {
    const auto characters = charactersOf(text);
    if (!characters) return characters.error();
    std::vector<Stroke> strokes;
    for (const char32_t character : characters.value()) {
        const auto stroke = m_typer.strokeFor(character, m_state.lockedLayout);
        if (!stroke) return stroke.error();
        strokes.push_back(stroke.value());
        strokes.back().lockMask = locksOfText(m_tools.keymap.keymap());
    }
    return strokes;
}

Step<> X11InjectionSession::keyDown(const HeldKey& key) {
    return take([&]() -> Step<> {
        if (auto followed = m_typer.followKeymap(!m_hasBegun); !followed) return followed;
        if (auto prepared = prepareStroke(); !prepared) return prepared;
        const auto strokes = strokesOf(key);
        if (!strokes) return strokes.error();
        for (const Stroke& stroke : strokes.value()) {
            if (auto held = hold(stroke); !held) return held;
        }
        return {};
    });
}

Step<> X11InjectionSession::hold(const Stroke& stroke) {
    if (stroke.keycode == 0 || m_held.keycodes()[stroke.keycode]) return {};
    if (auto prepared = prepareStroke(); !prepared) return prepared;
    m_held.press(m_tools.keymap.keymap().keys(), stroke);
    m_sender.home();
    m_tools.connection.flush();
    return adoptLocks(stroke.keycode);
}

Step<> X11InjectionSession::keyUp(const HeldKey& key) {
    return take([&]() -> Step<> {
        // What the run does not hold is not released: it may be the user's own.
        if (m_held.empty()) return m_waiter.heedUser();
        if (auto prepared = prepareStroke(); !prepared) return prepared;
        if (auto waited = awaitEndOfStroke(); !waited) return waited;
        const auto strokes = strokesOf(key);
        if (!strokes) return strokes.error();
        for (auto stroke = strokes.value().rbegin(); stroke != strokes.value().rend(); ++stroke) {
            if (const auto gone = m_held.letGo(stroke->keycode); !gone) return gone.error();
        }
        return {};
    });
}

/// Modifiers that are held over keys come up as late after the last one as those of a stroke.
Step<> X11InjectionSession::awaitEndOfStroke() {
    const Keymap& map = m_tools.keymap.keymap();
    if ((map.keys().heldBy(m_held.keycodes()) & map.masks().commands()) == 0) return {};
    return m_waiter.waitUntil(m_lastStroke + ModifierTail::length);
}

KeycodeSet X11InjectionSession::ownKeys() const { return m_held.keycodes() | m_tail.keycodes(); }

Step<> X11InjectionSession::pause(double seconds) {
    return take([&] { return m_pacer.pause(seconds); });
}

}  // namespace x11
