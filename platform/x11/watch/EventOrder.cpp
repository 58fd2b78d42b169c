// SPDX-License-Identifier: MIT
#include "platform/x11/watch/EventOrder.h"

#include <algorithm>

namespace x11 {

EventOrder::EventOrder(const Streams& streams, const Rules& rules, KeyInterpreter& interpreter,
                       std::function<void()> keymapTouched)
    : m_streams(streams),
      m_rules(rules),
      m_interpreter(interpreter),
      m_keymapTouched(std::move(keymapTouched)) {}

void EventOrder::workOff() {
    do {
        m_streams.grabs.read();
        if (m_streams.repeats != nullptr) m_streams.repeats->read();
        m_streams.raw.read();
        workOffRawEvents();
        workOffRepeats();
        workOffLatePresses();
    } while (m_streams.raw.read() || m_streams.grabs.read() || hasRepeats());
}

bool EventOrder::hasRepeats() const {
    if (m_streams.repeats == nullptr) return false;
    return m_streams.repeats->queue().hasAny([this](const KeyRepeat& repeat) {
        return m_interpreter.held().mayRepeat(repeat.keycode, repeat.time);
    });
}

void EventOrder::catchUp() {
    m_streams.grabs.catchUp();
    m_streams.raw.catchUp();
    workOff();
}

void EventOrder::workOffRawEvents() {
    WipedQueue<MonitorEvent>& events = m_streams.raw.events();
    while (!events.empty()) {
        const MonitorEvent event = events.takeFront();
        std::visit([this](const auto& what) { handle(what); }, event);
    }
}

void EventOrder::workOffRepeats() {
    if (!hasRepeats()) return;
    RepeatQueue& queue = m_streams.repeats->queue();
    const std::uint64_t known = queue.count();
    m_streams.raw.catchUp();
    workOffRawEvents();
    deliverRepeats(queue.takeUpTo(known));
}

void EventOrder::workOffLatePresses() {
    WipedQueue<GrabbedPress>& presses = m_streams.grabs.presses();
    while (!presses.empty()) {
        const std::uint64_t known = presses.back().number;
        m_streams.raw.catchUp();
        workOffRawEvents();
        while (!presses.empty() && presses.front().number <= known) {
            handleLate(presses.takeFront());
        }
    }
}

void EventOrder::handle(const RawKey& key) {
    m_lastTime = key.time;
    const bool own = m_rules.own.take(key);
    m_rules.hands.key(key, own);
    if (!key.press && takeRepeatPair(key)) {
        deliverRepeatsBefore(key);
        return m_interpreter.repeatByKeyboard(key);
    }
    // The run's own strokes are none of the hand's that holds the hot key.
    if (!key.press && !own && m_interpreter.held().isHotKey(key.keycode)) noteHotKeyRelease(key);
    const KeyOrigin origin = key.press ? originOf(key, own) : KeyOrigin{.own = own};
    if (origin.hotKey || m_interpreter.matters(key)) deliverRepeatsBefore(key);
    m_interpreter.key(key, origin);
    if (origin.hotKey && !own) noteHotKey(*origin.hotKey);
}

void EventOrder::noteHotKeyRelease(const RawKey& release) {
    m_hotKeyReleases[release.keycode] = release.time;
    m_streams.grabs.takeUp(release.keycode);
}

void EventOrder::handle(const StateChange& change) {
    m_rules.keyboard.confirm(change.components, change.keycode, change.press);
    m_rules.hotKeys.followLocks();
}

void EventOrder::handle(const KeymapTouched&) { m_keymapTouched(); }

void EventOrder::handle(const RepeatDelay& delay) { m_interpreter.setRepeatDelay(delay.milliseconds); }

void EventOrder::handle(const WindowHold& hold) { m_interpreter.setMuted(hold.holds); }

void EventOrder::handle(const KeyboardGone& gone) {
    m_rules.hands.keyboardGone(gone.source);
    m_interpreter.keyboardGone(gone.source, m_lastTime);
    m_streams.grabs.takeUp();
}

/// Servers that run inside another desktop's window pass its repeats on as releases with presses at the same
/// time.
bool EventOrder::takeRepeatPair(const RawKey& release) {
    if (release.synthetic) return false;
    WipedQueue<MonitorEvent>& events = m_streams.raw.events();
    if (events.empty()) m_streams.raw.catchUp();
    if (events.empty()) return false;
    const RawKey* next = std::get_if<RawKey>(&events.front());
    RawKey press = release;
    press.press = true;
    if (next == nullptr || *next != press) return false;
    events.pop_front();
    return true;
}

KeyOrigin EventOrder::originOf(const RawKey& press, bool own) {
    KeyOrigin origin{.own = own};
    if (!m_rules.hotKeys.usesKeycode(press.keycode)) return origin;
    const std::optional<GrabbedPress> grabbed = claim(press);
    if (!grabbed) return origin;
    origin.hotKey = m_rules.hotKeys.find(grabbed->keycode, grabbed->modifiers);
    origin.grabbed = origin.hotKey.has_value();
    // Either ends what the press has stopped the keyboard for.
    if (origin.hotKey && !own) {
        m_streams.grabs.yieldKeyboard(*grabbed);
    } else {
        m_streams.grabs.passOn();
    }
    return origin;
}

std::optional<GrabbedPress> EventOrder::claim(const RawKey& press) {
    m_streams.grabs.catchUp();
    WipedQueue<GrabbedPress>& presses = m_streams.grabs.presses();
    const auto sameKey = [&](const GrabbedPress& grabbed) {
        return grabbed.keycode == press.keycode && grabbed.time == press.time;
    };
    const auto same = [&](const GrabbedPress& grabbed) {
        return sameKey(grabbed) && grabbed.modifiers == m_rules.keyboard.modifiers();
    };
    auto match = std::find_if(presses.begin(), presses.end(), same);
    if (match == presses.end()) {
        match = std::find_if(presses.begin(), presses.end(), sameKey);
        if (match == presses.end() || comesAgain(press)) return std::nullopt;
        // Reading on may have moved the presses.
        match = std::find_if(presses.begin(), presses.end(), sameKey);
    }
    const GrabbedPress grabbed = *match;
    WipedQueue<GrabbedPress> earlier;
    while (presses.front().number != grabbed.number) earlier.push_back(presses.takeFront());
    presses.pop_front();
    for (const GrabbedPress& late : earlier) handleLate(late);
    return grabbed;
}

/// Whether the key is pressed once more in the same millisecond.
bool EventOrder::comesAgain(const RawKey& press) {
    m_streams.raw.catchUp();
    const WipedQueue<MonitorEvent>& events = m_streams.raw.events();
    return std::any_of(events.begin(), events.end(), [&press](const MonitorEvent& event) {
        const RawKey* key = std::get_if<RawKey>(&event);
        return key != nullptr && *key == press;
    });
}

void EventOrder::handleLate(const GrabbedPress& press) {
    // A repeat takes the keyboard anew.
    if (isRepeat(press)) return m_streams.grabs.endActiveGrab();
    const std::optional<HotKeyId> id = m_rules.hotKeys.find(press.keycode, press.modifiers);
    if (!id) return m_streams.grabs.passOn();
    m_interpreter.lateHotKey(*id, press.keycode, press.time);
    if (!m_interpreter.held().isHotKey(press.keycode)) return m_streams.grabs.passOn();
    m_streams.grabs.yieldKeyboard(press);
}

bool EventOrder::isRepeat(const GrabbedPress& press) const {
    if (m_interpreter.held().isHotKey(press.keycode)) return true;
    const auto released = m_hotKeyReleases.find(press.keycode);
    return released != m_hotKeyReleases.end() && millisecondsAfter(press.time, released->second) <= 0;
}

void EventOrder::deliverRepeatsBefore(const RawKey& key) {
    if (m_streams.repeats == nullptr) return;
    if (m_interpreter.held().mayHaveRepeated(key.time)) m_streams.repeats->catchUp();
    deliverRepeats(m_streams.repeats->queue().takeBefore(key));
}

void EventOrder::deliverRepeats(const std::vector<KeyRepeat>& repeats) {
    for (const KeyRepeat& repeat : repeats) m_interpreter.repeat(repeat.keycode, repeat.time);
}

void EventOrder::noteHotKey(HotKeyId id) {
    if (!m_rules.hotKeys.cancelsPlayback(id)) return;
    m_rules.cancel.cancel();
    dropPlays();
}

void EventOrder::dropPlays() {
    m_interpreter.dropHotKeys([this](HotKeyId id) { return m_rules.hotKeys.startsPlayback(id); });
}

void EventOrder::dropCommands() {
    m_interpreter.dropHotKeys([this](HotKeyId id) { return !m_rules.hotKeys.cancelsPlayback(id); });
}

}  // namespace x11
