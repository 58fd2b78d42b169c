// SPDX-License-Identifier: MIT
#include "platform/evdev/KeyStream.h"

#include <algorithm>

namespace evdev {

namespace {

std::vector<std::uint8_t> listOf(const KeycodeSet& keycodes) {
    std::vector<std::uint8_t> list;
    for (std::size_t i = 0; i < keycodes.size(); ++i) {
        if (keycodes[i]) list.push_back(static_cast<std::uint8_t>(i));
    }
    return list;
}

}  // namespace

RepeatCounter::Time KeyStream::now() const {
    return std::chrono::duration_cast<RepeatCounter::Time>(m_rules.clock.now().time_since_epoch());
}

void KeyStream::begin(xkb_layout_index_t layout) {
    m_rules.keyboard.confirm({.lockedLayout = layout}, 0, false);
}

void KeyStream::end() {
    const std::vector<std::uint16_t> keyboards = m_keyboards;
    for (const std::uint16_t keyboard : keyboards) keyboardGone(keyboard);
    assumeNone();
    windowLeft();
    releaseOwnKeys();
    m_repeats.stop();
}

void KeyStream::keyboardsCame(const std::vector<NewKeyboard>& keyboards) {
    if (m_keyboards.empty()) adoptLights(keyboards);
    for (const NewKeyboard& keyboard : keyboards) {
        m_keyboards.push_back(keyboard.number);
        startWith(keyboard.number, keyboard.down);
    }
    assumeNone();
}

void KeyStream::assumeModifiers(xkb_mod_mask_t modifiers) {
    const ModifierKeys& keys = m_rules.keyboard.keymap().keys();
    KeycodeSet down;
    for (xkb_mod_mask_t bit = 1; bit != 0 && bit <= modifiers; bit <<= 1U) {
        const std::uint8_t keycode = (modifiers & bit) != 0 ? keys.keyFor(bit) : 0;
        if (keycode != 0) down.set(keycode);
    }
    startWith(desktop, down);
    m_assumed |= modifiers;
}

void KeyStream::assumeNone() {
    keyboardGone(desktop);
    m_assumed = 0;
}

/// A light on one of them is enough: not each keyboard has them.
void KeyStream::adoptLights(const std::vector<NewKeyboard>& keyboards) {
    const ModifierMasks& masks = m_rules.keyboard.keymap().masks();
    XkbComponents components = m_rules.keyboard.components();
    for (const NewKeyboard& keyboard : keyboards) {
        if (keyboard.lights.capsLock) components.locked |= masks.capsLock;
        if (keyboard.lights.numLock) components.locked |= masks.numLock;
        if (keyboard.lights.scrollLock) components.locked |= masks.scrollLock;
    }
    m_rules.keyboard.confirm(components, 0, false);
    m_rules.hotKeys.followLocks();
}

void KeyStream::startWith(std::uint16_t keyboard, const KeycodeSet& down) {
    const ModifierKeys& keys = m_rules.keyboard.keymap().keys();
    m_rules.hands.startWith(listOf(down), keyboard);
    std::vector<std::uint8_t> added;
    for (const std::uint8_t keycode : listOf(down)) {
        if (!m_seat.change(keyboard, keycode, true)) continue;
        added.push_back(keycode);
        // What a lock's press has done shows in the lights.
        if (keys.heldBy(keycode) != 0 && !keys.isLock(keycode)) m_rules.keyboard.feed(keycode, true);
    }
    m_interpreter.startWith(added);
}

void KeyStream::key(std::uint16_t keyboard, const DeviceKey& key) {
    const RepeatCounter::Time time(key.microseconds);
    RawKey raw{.keycode = key.keycode, .press = key.press, .source = keyboard, .time = serverTime(time)};
    m_rules.hands.key(raw, false);
    if (!m_seat.change(keyboard, key.keycode, key.press)) return;
    raw.source = seat;
    const bool isHotKey = pass(raw, time);
    followRepeats(raw, isHotKey, time);
}

void KeyStream::windowKey(const WindowKey& key) {
    const RepeatCounter::Time time = now();
    const bool isPress = key.kind != WindowKey::Kind::release;
    RawKey raw{.keycode = key.keycode, .press = isPress, .source = window, .time = serverTime(time)};
    adoptLocks(key.modifiers);
    checkAssumption(key.modifiers);
    if (key.kind == WindowKey::Kind::repeat) return m_interpreter.repeatByKeyboard(raw);
    m_rules.hands.key(raw, false);
    if (!m_seat.change(window, key.keycode, isPress)) return;
    raw.source = seat;
    pass(raw, time);
}

/// They may have been switched where nobody told of it.
void KeyStream::adoptLocks(xkb_mod_mask_t inForce) {
    const xkb_mod_mask_t locks = m_rules.keyboard.keymap().masks().locks();
    XkbComponents components = m_rules.keyboard.components();
    const xkb_mod_mask_t locked = (components.locked & ~locks) | (inForce & locks);
    if (locked == components.locked) return;
    components.locked = locked;
    m_rules.keyboard.confirm(components, 0, false);
    m_rules.hotKeys.followLocks();
}

void KeyStream::checkAssumption(xkb_mod_mask_t inForce) {
    if ((inForce & m_assumed) != m_assumed) assumeNone();
}

void KeyStream::keyboardGone(std::uint16_t keyboard) {
    m_rules.hands.keyboardGone(keyboard);
    std::erase(m_keyboards, keyboard);
    for (const std::uint8_t keycode : m_seat.remove(keyboard)) {
        m_repeats.release(keycode);
        m_interpreter.key({.keycode = keycode, .press = false, .source = seat, .time = serverTime(now())},
                          {});
    }
}

bool KeyStream::pass(const RawKey& key, RepeatCounter::Time time) {
    repeatBefore(time);
    KeyOrigin origin;
    if (key.press) {
        const auto modifiers = static_cast<std::uint16_t>(m_rules.keyboard.modifiers());
        origin.hotKey = m_rules.hotKeys.find(key.keycode, modifiers);
        origin.grabbed = origin.hotKey.has_value();
    }
    m_interpreter.key(key, origin);
    m_rules.hotKeys.followLocks();
    if (!origin.hotKey) return false;
    m_rules.echoes.expect(*origin.hotKey, m_rules.clock.now());
    noteHotKey(*origin.hotKey);
    return true;
}

void KeyStream::followRepeats(const RawKey& key, bool isHotKey, RepeatCounter::Time time) {
    if (!key.press) return m_repeats.release(key.keycode);
    xkb_keymap* keymap = m_rules.keyboard.keymap().get();
    if (!isHotKey && xkb_keymap_key_repeats(keymap, key.keycode) == 1) m_repeats.press(key.keycode, time);
}

void KeyStream::repeatBefore(RepeatCounter::Time time) {
    const RepeatCounter::Repeats repeats = m_repeats.takeBefore(time);
    for (const RepeatCounter::Time at : repeats.times) m_interpreter.repeat(repeats.keycode, serverTime(at));
}

std::optional<std::chrono::microseconds> KeyStream::timeToRepeat() const {
    const std::optional<RepeatCounter::Time> next = m_repeats.nextTime();
    if (!next) return std::nullopt;
    return std::max(*next - now(), RepeatCounter::Time::zero());
}

void KeyStream::ownKey(std::uint8_t keycode, bool press) {
    const RepeatCounter::Time time = now();
    repeatBefore(time);
    m_interpreter.key(
        {.keycode = keycode, .press = press, .source = script, .synthetic = true, .time = serverTime(time)},
        {.own = true});
}

void KeyStream::releaseOwnKeys() { m_interpreter.keyboardGone(script, serverTime(now())); }

void KeyStream::noteHotKey(HotKeyId id) {
    if (!m_rules.hotKeys.cancelsPlayback(id)) return;
    m_rules.cancel.cancel();
    dropPlays();
}

void KeyStream::dropPlays() {
    m_interpreter.dropHotKeys([this](HotKeyId id) { return m_rules.hotKeys.startsPlayback(id); });
}

void KeyStream::dropCommands() {
    m_interpreter.dropHotKeys([this](HotKeyId id) { return !m_rules.hotKeys.cancelsPlayback(id); });
}

}  // namespace evdev
