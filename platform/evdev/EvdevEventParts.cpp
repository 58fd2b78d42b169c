// SPDX-License-Identifier: MIT
#include "platform/evdev/EvdevEventParts.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace evdev {

namespace {

/// Nobody holds a hot key for so long before a play; then its end was lost.
constexpr std::chrono::seconds longestPress{2};

}  // namespace

EvdevEventMonitor::Parts::Parts(const Session& session, std::unique_ptr<Keymap> keymap)
    : m_clock(session.clock),
      m_grabs(session.grabs),
      m_keyboard(std::move(keymap), {}),
      m_cancel(session.clock),
      m_hands(session.clock),
      m_hotKeys(session.grabs, m_keyboard),
      m_interpreter(m_keyboard, m_cancel),
      m_stream({session.clock, m_keyboard, m_cancel, m_hands, m_hotKeys, m_echoes}, m_interpreter),
      m_keyboards({session.opener, session.calls, session.folders}, m_wakeups, m_stream),
      m_window(
          m_stream, session.clock, [this] { recordWindow(); }, [this] { dispatch(); }),
      m_layout(session.layout),
      m_isDesktopLost(session.isDesktopLost) {}

void EvdevEventMonitor::Parts::dispatch() {
    read();
    if (m_running) return;
    m_deliverer.deliver(
        m_interpreter.deliveries(), [this] { read(); }, [] { return false; });
    endWaitForHands();
    tellAccess();
}

void EvdevEventMonitor::Parts::drain() {
    read();
    heedOthers();
    // Between two runs, and after the last, nothing else would tell the loop of what was read in passing.
    if (!m_running && !m_interpreter.deliveries().empty()) m_wakeups.kick();
}

/// Keyboards first: what the desktop tells of they have told before.
void EvdevEventMonitor::Parts::read() {
    m_wakeups.takeKick();
    m_wakeups.takeTimer();
    readKeyboards();
    if (m_desktop != nullptr) m_desktop->dispatch();
    if (m_assumedUntil && m_clock.now() >= *m_assumedUntil) {
        m_assumedUntil.reset();
        m_stream.assumeNone();
        if (m_grabs.losesReleases()) releaseHotKeys();
    }
    startTimer();
}

void EvdevEventMonitor::Parts::readKeyboards() {
    m_keyboards.read();
    m_stream.repeat();
    if (m_cancel.takeEscapeStop()) m_stream.dropCommands();
}

/// Also what was asked for before the moment at which they want the play to end.
void EvdevEventMonitor::Parts::heedOthers() {
    if (!m_endsPlays || !m_endsPlays()) return;
    m_cancel.cancel();
    m_stream.dropCommands();
}

void EvdevEventMonitor::Parts::startTimer() {
    const auto wakeAfter = [this](Clock::Time::duration rest) {
        m_wakeups.startTimer(std::chrono::duration_cast<std::chrono::milliseconds>(rest) +
                             std::chrono::milliseconds(1));
    };
    // Where hands are guessed, no key is heard that could repeat.
    if (m_assumedUntil) return wakeAfter(*m_assumedUntil - m_clock.now());
    if (const auto rest = m_stream.timeToRepeat()) wakeAfter(*rest);
}

/// Keyboards are open as long as somebody has to know what is pressed on them.
void EvdevEventMonitor::Parts::followNeed(DeviceOpener::Question question) {
    const bool isNeeded = m_recording || m_running || m_awaitsHands;
    if (!isNeeded && m_isNeeded) {
        m_keyboards.close();
        m_stream.end();
    } else if (isNeeded) {
        if (!m_isNeeded) m_stream.begin(layout());
        if (!m_window.isUsed()) m_keyboards.open(question);
    }
    m_isNeeded = isNeeded;
    m_wakeups.kick();
}

EventMonitor::Access EvdevEventMonitor::Parts::access() const {
    if (!m_recording || m_window.isUsed() || m_keyboards.isOpen()) return EventMonitor::Access::given;
    if (!m_keyboards.problem()) return EventMonitor::Access::asked;
    return m_hasSeenKeys ? EventMonitor::Access::ended : EventMonitor::Access::refused;
}

void EvdevEventMonitor::Parts::tellAccess() {
    m_hasSeenKeys = m_hasSeenKeys || m_keyboards.isOpen();
    const EventMonitor::Access now = access();
    if (std::exchange(m_toldAccess, now) == now || !m_recording || !m_accessChanged) return;
    const bool hasEnded = now == EventMonitor::Access::refused || now == EventMonitor::Access::ended;
    // A copy: it may be replaced, and the recording be ended, from within.
    const EventMonitor::AccessObserver changed = m_accessChanged;
    changed(now, hasEnded ? m_keyboards.problem() : std::nullopt);
}

void EvdevEventMonitor::Parts::runStarts() {
    m_running = true;
    // Who only plays is not asked whether his keys may be read.
    followNeed(DeviceOpener::Question::avoided);
}

void EvdevEventMonitor::Parts::runEnds() {
    read();
    settleOwnKeys();
    m_running = false;
    // What the user has switched meanwhile was not told from what the run did.
    if (m_recording) setLayout(layout());
    followNeed(DeviceOpener::Question::avoided);
}

void EvdevEventMonitor::Parts::expectOwnKey(std::uint8_t keycode, bool press) {
    m_stream.ownKey(keycode, press);
    m_window.ownKey(keycode, press);
}

bool EvdevEventMonitor::Parts::liftHotKey(std::uint8_t keycode, std::uint16_t modifiers) {
    if (m_hotKeys.canLift()) return m_hotKeys.lift(keycode, modifiers);
    // The desktop takes the stroke for the user's, and tells of it.
    if (const auto id = m_hotKeys.find(keycode, modifiers)) m_echoes.expect(*id, m_clock.now());
    return false;
}

void EvdevEventMonitor::Parts::listenTo(EventSource& desktop) {
    m_desktop = &desktop;
    m_wakeups.watch(desktop.fileDescriptor());
}

void EvdevEventMonitor::Parts::desktopTells(const KeyGrab& grab, bool press) {
    // The keyboards may have told of it already.
    readKeyboards();
    press ? desktopPresses(grab) : desktopReleases(grab);
    m_wakeups.kick();
}

/// One that no open keyboard has told was pressed on another, or before they were open.
void EvdevEventMonitor::Parts::desktopPresses(const KeyGrab& grab) {
    const std::optional<HotKeyId> id = m_hotKeys.ownerOf(grab);
    if (m_grabs.losesReleases()) desktopReleases(grab);
    // A held combination presses once, though some desktops tell of its repeats.
    if (!id || m_desktopDown.contains(grab.keycode)) return;
    if (m_echoes.take(*id, m_clock.now())) {
        m_desktopDown.emplace(grab.keycode, std::nullopt);
        return;
    }
    m_stream.noteHotKey(*id);
    if (m_withheld) return;
    m_desktopDown.emplace(grab.keycode, *id);
    if (m_hotKeys.startsPlayback(*id)) awaitHands(grab.modifiers);
    m_interpreter.deliveries().emplace_back(HotKeyEvent{*id, true, eventTime()});
    if (m_awaitsHands && m_grabs.losesReleases()) m_assumedUntil = m_clock.now() + longestPress;
}

void EvdevEventMonitor::Parts::desktopReleases(const KeyGrab& grab) {
    constexpr std::chrono::milliseconds handsAreUp{250};
    const auto down = m_desktopDown.find(grab.keycode);
    if (down == m_desktopDown.end()) return;
    const std::optional<HotKeyId> id = down->second;
    m_desktopDown.erase(down);
    if (!id) return;
    m_interpreter.deliveries().emplace_back(HotKeyEvent{*id, false, eventTime()});
    if (m_awaitsHands) m_assumedUntil = m_clock.now() + handsAreUp;
}

/// Of those that are still down the desktop has not told the end.
void EvdevEventMonitor::Parts::releaseHotKeys() {
    for (const auto& [keycode, id] : m_desktopDown) {
        if (id) m_interpreter.deliveries().emplace_back(HotKeyEvent{*id, false, eventTime()});
    }
    std::erase_if(m_desktopDown, [](const auto& down) { return down.second.has_value(); });
}

bool EvdevEventMonitor::Parts::isHotKeyDown() const {
    return std::any_of(m_desktopDown.begin(), m_desktopDown.end(),
                       [](const auto& down) { return down.second.has_value(); });
}

void EvdevEventMonitor::Parts::desktopForgot() {
    m_desktopDown.clear();
    m_stream.assumeNone();
    m_hotKeys.requestAgain();
    m_wakeups.kick();
}

void EvdevEventMonitor::Parts::awaitHands(std::uint16_t modifiers) {
    if (modifiers == 0 || m_keyboards.isOpen()) return;
    m_awaitsHands = true;
    m_assumedUntil.reset();
    if (!m_isNeeded) m_stream.begin(layout());
    m_stream.assumeModifiers(modifiers);
    m_isNeeded = true;
    followNeed(DeviceOpener::Question::avoided);
}

void EvdevEventMonitor::Parts::endWaitForHands() {
    if (!m_awaitsHands || isHotKeyDown() || m_stream.holdsModifiers()) return;
    m_awaitsHands = false;
    m_assumedUntil.reset();
    followNeed(DeviceOpener::Question::avoided);
}

void EvdevEventMonitor::Parts::setKeymap(std::unique_ptr<Keymap> keymap) {
    read();
    if (keymap->fingerprint() == m_keyboard.keymap().fingerprint()) return;
    m_keyboard.replaceKeymap(std::move(keymap));
    m_hotKeys.followKeymap();
}

void EvdevEventMonitor::Parts::setLayout(std::uint32_t layout) {
    readKeyboards();
    XkbComponents components = m_keyboard.components();
    components.lockedLayout = layout;
    m_keyboard.confirm(components, 0, false);
}

void EvdevEventMonitor::Parts::setRepeatRule(const RepeatRule& rule) {
    readKeyboards();
    m_stream.setRepeatRule(rule);
}

void EvdevEventMonitor::Parts::setRecording(bool recording) {
    if (m_recording == recording) return;
    read();
    m_recording = recording;
    m_toldAccess = EventMonitor::Access::given;
    m_window.setUsed(false);
    if (!recording) m_interpreter.setRecording(false);
    followNeed(DeviceOpener::Question::allowed);
    m_hasSeenKeys = m_keyboards.isOpen();
    if (recording) m_interpreter.setRecording(true);
}

/// Should the keyboards be shown later, what is typed would come twice.
void EvdevEventMonitor::Parts::recordWindow() {
    if (!m_recording) return;
    m_keyboards.close();
    m_window.setUsed(true);
    m_wakeups.kick();
}

// What was pressed before a switch is judged by what held then.

void EvdevEventMonitor::Parts::setWithheld(bool withheld) {
    read();
    m_withheld = withheld;
    m_interpreter.setMuted(withheld);
    m_wakeups.kick();
}

void EvdevEventMonitor::Parts::setShowsModifierKeys(bool shows) {
    read();
    m_interpreter.setShowsModifierKeys(shows);
}

void EvdevEventMonitor::Parts::setKeepsOwnStrokes(bool keeps) {
    read();
    m_interpreter.setKeepsOwnStrokes(keeps);
}

}  // namespace evdev
