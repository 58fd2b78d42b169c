// SPDX-License-Identifier: MIT
#include "platform/x11/watch/X11EventParts.h"

#include <chrono>

#include "platform/Sentence.h"

namespace x11 {

namespace {

constexpr std::chrono::milliseconds keymapDebounce{20};
/// Who has the keyboard, while a macro is being recorded.
constexpr std::chrono::milliseconds betweenLooks{100};
/// The same while one is played: a question takes as long as a stroke, and no pause is longer than needed.
constexpr std::chrono::milliseconds betweenLooksOfRun{5};
/// For the combinations that another program holds: nobody tells when it gives them free.
constexpr std::chrono::milliseconds betweenTries{2000};

}  // namespace

Result<std::unique_ptr<X11EventManager::Parts>> X11EventManager::Parts::open(const Clock& clock,
                                                                             const std::string& display) {
    Opened opened;
    Result<std::unique_ptr<RawKeySource>> raw = RawKeySource::open(display);
    if (!raw) return raw.error();
    Result<std::unique_ptr<HotKeyGrabs>> grabs = HotKeyGrabs::open(display);
    if (!grabs) return grabs.error();
    Result<std::unique_ptr<Keymap>> keymap = raw.value()->keymap();
    if (!keymap) return keymap.error();
    auto holds = HoldWatch::open(display, grabs.value()->connection());
    if (!holds) return holds.error();
    opened.holds = std::move(holds).value();
    opened.raw = std::move(raw).value();
    opened.grabs = std::move(grabs).value();
    opened.keymap = std::move(keymap).value();
    Result<std::unique_ptr<RepeatSource>> repeats = RepeatSource::open(display);
    if (repeats) {
        opened.repeats = std::move(repeats).value();
    } else {
        opened.problem = repeats.error();
    }
    return std::unique_ptr<Parts>(new Parts(clock, std::move(opened)));
}

X11EventManager::Parts::Parts(const Clock& clock, Opened opened)
    : m_raw(std::move(opened.raw)),
      m_grabs(std::move(opened.grabs)),
      m_repeats(std::move(opened.repeats)),
      m_holds(std::move(opened.holds)),
      m_problem(std::move(opened.problem)),
      m_keyboard(std::move(opened.keymap), m_raw->components()),
      m_cancel(clock),
      m_hands(clock),
      m_hotKeys(*m_grabs, m_keyboard),
      m_interpreter(m_keyboard, m_cancel),
      m_order({*m_raw, *m_grabs, m_repeats.get()}, {m_hotKeys, m_own, m_hands, m_cancel, m_keyboard},
              m_interpreter, [this] { m_wakeups.startTimer(keymapDebounce); }),
      m_clock(clock) {
    m_wakeups.watch(m_raw->connection().fileDescriptor());
    m_wakeups.watch(m_grabs->connection().fileDescriptor());
    m_wakeups.watch(m_looks.fileDescriptor());
    m_wakeups.watch(m_tries.fileDescriptor());
    if (m_repeats) {
        m_wakeups.watch(m_repeats->control().fileDescriptor());
        m_wakeups.watch(m_repeats->data().fileDescriptor());
    }
    const std::vector<std::uint8_t> down = m_raw->keysDown();
    m_interpreter.startWith(down);
    m_hands.startWith(down);
    kick();
}

void X11EventManager::Parts::dispatch() {
    read();
    if (m_running) return;
    m_deliverer.deliver(
        m_interpreter.deliveries(), [this] { read(); }, [this] { return waitsForVerdict(); });
}

void X11EventManager::Parts::drain() {
    read();
    heedOthers();
    // Between two runs, and after the last, nothing else would tell the loop of what was read in passing.
    if (!m_running && !m_interpreter.deliveries().empty()) kick();
}

void X11EventManager::Parts::read() {
    m_wakeups.takeKick();
    if (isBroken()) return giveUp();
    m_order.workOff();
    heedEscape();
    followHold();
    tryForHotKeys();
    if (m_wakeups.takeTimer()) followKeymap();
    watchRepeats();
}

/// Looks again and again while a macro is recorded, and with each key press, but not while nothing is
/// delivered because of a menu of ours, which has the keyboard to itself as lockers have; while one is
/// played, at its beginning and at what it does some time after the last look, as is a stroke that follows a
/// pause.
void X11EventManager::Parts::followHold() {
    const bool ticked = m_looks.take();
    if (m_running) {
        if (m_clock.now() >= m_nextLookOfRun) lookWhoHoldsTheKeyboard();
    } else if (m_recording && !m_withheld && (ticked || m_interpreter.hasPresses())) {
        lookWhoHoldsTheKeyboard();
    }
}

void X11EventManager::Parts::lookWhoHoldsTheKeyboard() {
    m_nextLookOfRun = m_clock.now() + betweenLooksOfRun;
    const bool wasShut = m_hold.isShut();
    m_hold.look(m_clock.now(), m_holds->look(m_clock.now()), m_interpreter.held().keycodes());
    // The question may have brought events along, of which no descriptor tells any more.
    m_order.workOff();
    // What came before the look belongs to what held then.
    if (m_recording && (wasShut || m_hold.isShut())) m_interpreter.dropPresses();
    if (m_running && m_hold.verdict() == KeyboardHold::Verdict::locked) m_cancel.cancel();
    const bool isHeld = m_recording && m_hold.isShut();
    if (std::exchange(m_toldHeld, isHeld) != isHeld && m_holdChanged) m_holdChanged(isHeld);
}

void X11EventManager::Parts::tryForHotKeys() {
    if (m_tries.take() && !m_running) m_hotKeys.tryAgain();
    m_tries.tickEvery(m_hotKeys.isKeptWaiting() ? betweenTries : std::chrono::milliseconds(0));
}

bool X11EventManager::Parts::waitsForVerdict() const {
    return m_recording && m_hold.verdict() == KeyboardHold::Verdict::undecided;
}

void X11EventManager::Parts::setRecording(bool recording) {
    if (std::exchange(m_recording, recording) == recording) return;
    catchUp();
    m_interpreter.setRecording(recording);
    m_holds->follow(m_recording || m_running);
    m_looks.tickEvery(m_recording ? betweenLooks : std::chrono::milliseconds(0));
    if (!m_recording) m_hold.reset();
    if (!m_recording) m_toldHeld = false;
    kick();
}

bool X11EventManager::Parts::mayBeLocked() const { return m_running && m_hold.mayBeLocked(); }

void X11EventManager::Parts::heedEscape() {
    if (m_cancel.takeEscapeStop()) m_order.dropCommands();
}

/// Also what was asked for before the moment at which they want the play to end.
void X11EventManager::Parts::heedOthers() {
    if (!m_endsPlays || !m_endsPlays()) return;
    m_cancel.cancel();
    m_order.dropCommands();
}

bool X11EventManager::Parts::isBroken() const {
    return m_raw->connection().isBroken() || m_grabs->connection().isBroken();
}

/// A dead connection is readable for ever.
void X11EventManager::Parts::giveUp() {
    if (std::exchange(m_gaveUp, true)) return;
    // One of two connections may live: nobody would answer for what it stops the keyboard for.
    m_grabs->takeUp();
    m_grabs->passOn();
    m_wakeups.unwatch(m_raw->connection().fileDescriptor());
    m_wakeups.unwatch(m_grabs->connection().fileDescriptor());
    if (m_repeats) {
        m_wakeups.unwatch(m_repeats->control().fileDescriptor());
        m_wakeups.unwatch(m_repeats->data().fileDescriptor());
    }
}

void X11EventManager::Parts::watchRepeats() {
    if (!m_repeats || m_problem || m_repeats->isRecording()) return;
    m_problem = Error{
        sentence("Keys", "Auto-repeats of held keys can no longer be recorded: the X server has ended it."),
        ""};
    m_wakeups.unwatch(m_repeats->control().fileDescriptor());
    m_wakeups.unwatch(m_repeats->data().fileDescriptor());
}

void X11EventManager::Parts::catchUp() {
    if (isBroken()) return;
    m_order.catchUp();
    kick();
}

void X11EventManager::Parts::followKeymap() {
    Result<std::unique_ptr<Keymap>> keymap = m_raw->keymap();
    // What cannot be read now will be announced again when it is there.
    if (!keymap || keymap.value()->fingerprint() == m_keyboard.keymap().fingerprint()) return;
    m_keyboard.replaceKeymap(std::move(keymap).value());
    const XkbComponents components = m_raw->components();
    // Events that have come meanwhile tell the rest themselves.
    if (!m_raw->read()) m_keyboard.adopt(components);
    m_hotKeys.followKeymap();
    m_order.workOff();
}

void X11EventManager::Parts::runStarts() {
    if (m_repeats) m_repeats->pause();
    m_running = true;
    m_hold.reset();
    m_nextLookOfRun = m_clock.now();
    m_holds->follow(true);
}

void X11EventManager::Parts::runEnds() {
    settleOwnKeys();
    heedEscape();
    if (m_repeats) m_repeats->resume();
    m_running = false;
    m_hold.reset();
    m_holds->follow(m_recording);
    kick();
}

void X11EventManager::Parts::settleOwnKeys() {
    catchUp();
    m_own.forget();
}

void X11EventManager::Parts::endHotKeyGrab() {
    m_grabs->endActiveGrab();
    kick();
}

bool X11EventManager::Parts::liftHotKey(std::uint8_t keycode, std::uint16_t modifiers) {
    const bool lifted = m_hotKeys.lift(keycode, modifiers);
    const bool unshielded = m_grabs->liftShields(keycode);
    kick();
    return lifted || unshielded;
}

bool X11EventManager::Parts::liftHotKeysOf(std::uint8_t keycode) {
    const bool lifted = m_hotKeys.liftAll(keycode);
    const bool unshielded = m_grabs->liftShields(keycode);
    kick();
    return lifted || unshielded;
}

void X11EventManager::Parts::restoreHotKeysOf(std::uint8_t keycode) {
    m_hotKeys.restoreAll(keycode);
    m_grabs->restoreShields(keycode);
    kick();
}

// What was pressed before a switch is judged by what held then.

void X11EventManager::Parts::setWithheld(bool withheld) {
    catchUp();
    m_raw->followHoldOf(XCB_WINDOW_NONE);
    m_interpreter.setMuted(withheld);
    m_withheld = withheld;
}

void X11EventManager::Parts::setShowsModifierKeys(bool shows) {
    catchUp();
    m_interpreter.setShowsModifierKeys(shows);
}

void X11EventManager::Parts::setKeepsOwnStrokes(bool keeps) {
    catchUp();
    m_interpreter.setKeepsOwnStrokes(keeps);
}

}  // namespace x11
