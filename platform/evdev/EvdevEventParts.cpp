// SPDX-License-Identifier: MIT
#include "platform/evdev/EvdevEventParts.h"

#include <chrono>
#include <utility>

namespace evdev {

EvdevEventMonitor::Parts::Parts(const Session& session, std::unique_ptr<Keymap> keymap)
    : m_clock(session.clock),
      m_keyboard(std::move(keymap), {}),
      m_cancel(session.clock),
      m_hands(session.clock),
      m_hotKeys(session.grabs, m_keyboard),
      m_interpreter(m_keyboard, m_cancel),
      m_stream({session.clock, m_keyboard, m_cancel, m_hands, m_hotKeys, m_echoes}, m_interpreter),
      m_keyboards({session.opener, session.calls, session.folders}, m_wakeups, m_stream) {}

void EvdevEventMonitor::Parts::dispatch() {
    read();
    if (m_running) return;
    tellProblem();
    m_deliverer.deliver(
        m_interpreter.deliveries(), [this] { read(); }, [] { return false; });
}

void EvdevEventMonitor::Parts::drain() {
    read();
    // Between two runs, and after the last, nothing else would tell the loop of what was read in passing.
    if (!m_running && !m_interpreter.deliveries().empty()) m_wakeups.kick();
}

void EvdevEventMonitor::Parts::read() {
    m_wakeups.takeKick();
    m_wakeups.takeTimer();
    m_keyboards.read();
    m_stream.repeat();
    if (m_cancel.takeEscapeStop()) m_stream.dropPlays();
    if (const auto rest = m_stream.timeToRepeat()) {
        m_wakeups.startTimer(std::chrono::duration_cast<std::chrono::milliseconds>(*rest) +
                             std::chrono::milliseconds(1));
    }
}

/// Keyboards are open as long as somebody has to know what is pressed on them.
void EvdevEventMonitor::Parts::followNeed(DeviceOpener::Question question) {
    const bool isNeeded = m_recording || m_running;
    if (!isNeeded && m_isNeeded) {
        m_keyboards.close();
        m_stream.end();
    } else if (isNeeded) {
        if (!m_isNeeded) m_stream.begin(m_layout);
        m_keyboards.open(question);
    }
    m_isNeeded = isNeeded;
    m_wakeups.kick();
}

void EvdevEventMonitor::Parts::observeProblem(std::function<void(const std::optional<Error>&)> changed) {
    m_problemChanged = std::move(changed);
}

void EvdevEventMonitor::Parts::tellProblem() {
    if (m_toldProblem == problem()) return;
    m_toldProblem = problem();
    if (m_problemChanged) m_problemChanged(m_toldProblem);
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
    followNeed(DeviceOpener::Question::avoided);
}

bool EvdevEventMonitor::Parts::liftHotKey(std::uint8_t keycode, std::uint16_t modifiers) {
    return m_hotKeys.lift(keycode, modifiers);
}

void EvdevEventMonitor::Parts::desktopTells(const KeyGrab& grab, bool press) {
    // The keyboards may have told of it already.
    read();
    const ServerTime time = KeyStream::serverTime(m_stream.now());
    if (!press) {
        const auto down = m_desktopDown.find(grab.keycode);
        if (down == m_desktopDown.end()) return;
        m_interpreter.deliveries().emplace_back(HotKeyEvent{down->second, false, time});
        m_desktopDown.erase(down);
    } else if (const auto id = m_hotKeys.find(grab.keycode, grab.modifiers)) {
        if (m_echoes.take(*id, m_clock.now()) || m_keyboards.isOpen()) return;
        // A held combination presses once, though some desktops tell of its repeats.
        if (m_withheld || m_screenLocked || m_desktopDown.contains(grab.keycode)) return;
        m_desktopDown.emplace(grab.keycode, *id);
        m_interpreter.deliveries().emplace_back(HotKeyEvent{*id, true, time});
        m_stream.noteHotKey(*id);
    }
    m_wakeups.kick();
}

void EvdevEventMonitor::Parts::setKeymap(std::unique_ptr<Keymap> keymap) {
    read();
    if (keymap->fingerprint() == m_keyboard.keymap().fingerprint()) return;
    m_keyboard.replaceKeymap(std::move(keymap));
    m_hotKeys.followKeymap();
}

void EvdevEventMonitor::Parts::setLayout(std::uint32_t layout) {
    read();
    m_layout = layout;
    XkbComponents components = m_keyboard.components();
    components.lockedLayout = layout;
    m_keyboard.confirm(components, 0, false);
}

void EvdevEventMonitor::Parts::setRepeatRule(const RepeatRule& rule) {
    read();
    m_stream.setRepeatRule(rule);
}

void EvdevEventMonitor::Parts::setRecording(bool recording) {
    if (m_recording == recording) return;
    read();
    m_recording = recording;
    if (!recording) m_interpreter.setRecording(false);
    followNeed(DeviceOpener::Question::allowed);
    if (recording) m_interpreter.setRecording(true);
}

// What was pressed before a switch is judged by what held then.

void EvdevEventMonitor::Parts::setWithheld(bool withheld) {
    read();
    m_withheld = withheld;
    mute();
}

void EvdevEventMonitor::Parts::setScreenLocked(bool locked) {
    read();
    m_screenLocked = locked;
    mute();
}

void EvdevEventMonitor::Parts::setKeepsOwnStrokes(bool keeps) {
    read();
    m_interpreter.setKeepsOwnStrokes(keeps);
}

void EvdevEventMonitor::Parts::mute() {
    m_interpreter.setMuted(m_withheld || m_screenLocked);
    m_stream.setLocked(m_screenLocked);
    m_wakeups.kick();
}

}  // namespace evdev
