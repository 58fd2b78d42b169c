// SPDX-License-Identifier: MIT
#include "platform/monitor/KeyInterpreter.h"

#include <algorithm>

#include "platform/KeyCodes.h"
#include "platform/XkbCodes.h"
#include "platform/keymap/StrokeKeys.h"
#include "platform/keymap/StrokePlan.h"

namespace {

/// Escape by its position, as the manual calls it.
constexpr std::uint8_t escapeKeycode = xkbcode::fromEvdev(1);

bool isPress(const Delivery& delivery) {
    const auto* event = std::get_if<KeyEvent>(&delivery);
    return event != nullptr &&
           (event->kind == KeyEventKind::keyDown || event->kind == KeyEventKind::autoRepeat ||
            event->kind == KeyEventKind::modifierKeyDown);
}

}  // namespace

void KeyInterpreter::key(const RawKey& key, const KeyOrigin& origin) {
    m_time = key.time;
    // Also where the key is up for the applications already, as after a release by another keyboard.
    if (!origin.own) watchEscape(key);
    // What the user holds stays held for the macro being recorded, though the run puts it out.
    if (!key.press && origin.own && !m_held.isPressedBy(key)) return;
    if (key.press) {
        if (origin.hotKey || matters(key)) press(key, origin);
    } else if (const std::optional<DownKey> held = m_held.release(key)) {
        release(key, *held);
    }
}

void KeyInterpreter::press(const RawKey& key, const KeyOrigin& origin) {
    const bool isModifierKey = m_keyboard.keymap().keys().isModifierKey(key.keycode, m_keyboard.layout());
    DownKey& held = m_held.press(key);
    held.isModifierKey = isModifierKey;
    held.hidden = origin.own && !m_keepsOwn;
    if (isModifierKey) {
        pressModifier(key, held);
    } else if (origin.hotKey && !origin.own) {
        pressHotKey(key, held, *origin.hotKey);
    } else if (held.hidden || origin.grabbed) {
        m_keyboard.feed(key.keycode, true);
    } else {
        pressOrdinary(key, held);
    }
}

void KeyInterpreter::pressModifier(const RawKey& key, DownKey& held) {
    const xkb_mod_mask_t modifiers = m_keyboard.keymap().keys().setBy(key.keycode, m_keyboard.layout()) &
                                     ~m_keyboard.keymap().masks().locks();
    const xkb_layout_index_t before = m_keyboard.components().lockedLayout;
    showModifierKey(key.keycode, modifiers, held);
    m_keyboard.feed(key.keycode, true);
    const bool isSwitch = m_keyboard.components().lockedLayout != before;
    if (isSwitch && !held.hidden && !m_muted) reportSwitch(key.keycode);
    held.modifiers = modifiers;
    if (!held.hidden) reportModifiers(heldMask());
}

/// Locks and choosers are none: they are in the codes of the keys that they change.
void KeyInterpreter::showModifierKey(std::uint8_t keycode, xkb_mod_mask_t modifiers, DownKey& held) {
    const std::uint32_t holds = m_keyboard.keymap().reported(modifiers);
    if (!m_isRecording || !m_showsModifierKeys || held.hidden || m_muted || holds == 0) return;
    held.shownModifierKey = keycode::fromEvdev(xkbcode::toEvdev(keycode));
    m_deliveries.emplace_back(
        KeyEvent{KeyEventKind::modifierKeyDown, *held.shownModifierKey, 0, holds, m_time});
}

/// Modifiers that are held together have switched the layout: a stroke of the one that was pressed last.
/// Where that does not switch when it is played, what is typed next tells its layout instead.
void KeyInterpreter::reportSwitch(std::uint8_t keycode) {
    const std::uint32_t code = keycode::fromEvdev(xkbcode::toEvdev(keycode)) |
                               m_keyboard.keymap().reportedChoosers(m_held.modifiers());
    const TypedKey stroke{.keyCode = code, .modifiers = heldMask()};
    const xkb_layout_index_t played = layoutAfterPlaying(stroke);
    if (played == m_playedLayout) return;
    m_playedLayout = played;
    reportPress(KeyEventKind::keyDown, stroke);
}

void KeyInterpreter::pressHotKey(const RawKey& key, DownKey& held, HotKeyId id) {
    m_keyboard.feed(key.keycode, true);
    held.hotKey = id;
    held.hotKeyReported = !m_muted;
    if (!m_muted) m_deliveries.emplace_back(HotKeyEvent{id, true, key.time});
}

void KeyInterpreter::pressOrdinary(const RawKey& key, DownKey& held) {
    const TypedKey typed = typedBy(key.keycode);
    const bool isPassedOn = !switchesConsole(key.keycode);
    m_keyboard.feed(key.keycode, true);
    if (m_muted || !isPassedOn) return;
    held.reportedCode = typed.keyCode;
    reportPress(KeyEventKind::keyDown, typed);
    if (m_isRecording) m_playedLayout = layoutAfterPlaying(typed);
}

void KeyInterpreter::release(const RawKey& key, const DownKey& held) {
    m_keyboard.feed(key.keycode, false);
    if (held.isModifierKey) {
        if (!held.hidden) reportModifiers(heldMask());
        if (held.shownModifierKey) {
            m_deliveries.emplace_back(KeyEvent{KeyEventKind::modifierKeyUp, *held.shownModifierKey, 0,
                                               m_keyboard.keymap().reported(held.modifiers), m_time});
        }
    } else if (held.hotKey) {
        if (held.hotKeyReported) m_deliveries.emplace_back(HotKeyEvent{*held.hotKey, false, key.time});
    } else if (held.reportedCode) {
        m_deliveries.emplace_back(
            KeyEvent{KeyEventKind::keyUp, *held.reportedCode, 0, m_reportedMask, m_time});
    }
}

void KeyInterpreter::repeat(std::uint8_t keycode, ServerTime time) {
    m_time = time;
    if (m_held.mayRepeat(keycode, time)) reportRepeat(*m_held.find(keycode), keycode);
}

void KeyInterpreter::repeatByKeyboard(const RawKey& key) {
    DownKey* held = m_held.find(key.keycode);
    if (held == nullptr) return;
    m_time = key.time;
    held->pressTime = key.time;
    reportRepeat(*held, key.keycode);
}

void KeyInterpreter::reportRepeat(const DownKey& held, std::uint8_t keycode) {
    if (held.reportedCode && !m_muted) reportPress(KeyEventKind::autoRepeat, typedBy(keycode));
}

void KeyInterpreter::lateHotKey(HotKeyId id, std::uint8_t keycode, ServerTime time) {
    DownKey* held = m_held.find(keycode);
    if (m_muted) return;
    m_deliveries.emplace_back(HotKeyEvent{id, true, time});
    if (held == nullptr) {
        m_deliveries.emplace_back(HotKeyEvent{id, false, time});
    } else {
        held->hotKey = id;
        held->hotKeyReported = true;
    }
}

void KeyInterpreter::keyboardGone(std::uint16_t source, ServerTime time) {
    for (const std::uint8_t keycode : m_held.keycodesOf(source)) {
        key({.keycode = keycode, .press = false, .source = source, .time = time}, {});
    }
    m_cancel.keyboardGone(source);
}

void KeyInterpreter::dropHotKeys(const std::function<bool(HotKeyId)>& dropped) {
    m_deliveries.eraseIf([&](const Delivery& delivery) {
        const auto* event = std::get_if<HotKeyEvent>(&delivery);
        return event != nullptr && dropped(event->id);
    });
    m_held.dropHotKeys(dropped);
}

bool KeyInterpreter::hasPresses() const {
    return std::any_of(m_deliveries.begin(), m_deliveries.end(), isPress);
}

void KeyInterpreter::dropPresses() { m_deliveries.eraseIf(isPress); }

void KeyInterpreter::startWith(const std::vector<std::uint8_t>& keycodes) {
    for (const std::uint8_t keycode : keycodes) {
        DownKey& held = m_held.press({.keycode = keycode, .press = true, .source = DownKeys::anySource});
        held.isModifierKey = m_keyboard.keymap().keys().isModifierKey(keycode, m_keyboard.layout());
        held.modifiers = m_keyboard.keymap().keys().setBy(keycode, m_keyboard.layout()) &
                         ~m_keyboard.keymap().masks().locks();
    }
    reportModifiers(heldMask());
}

void KeyInterpreter::watchEscape(const RawKey& key) {
    if (key.keycode != escapeKeycode) return;
    key.press ? m_cancel.escapePressed(key) : m_cancel.escapeReleased(key);
}

void KeyInterpreter::reportPress(KeyEventKind kind, const TypedKey& typed) {
    reportModifiers(typed.modifiers);
    m_deliveries.emplace_back(KeyEvent{kind, typed.keyCode, typed.character, typed.modifiers, m_time});
    reportModifiers(heldMask());
}

void KeyInterpreter::reportModifiers(std::uint32_t mask) {
    if (mask == m_reportedMask) return;
    m_reportedMask = mask;
    m_deliveries.emplace_back(KeyEvent{KeyEventKind::modifiersChanged, 0, 0, mask, m_time});
}

std::uint32_t KeyInterpreter::heldMask() const { return m_keyboard.keymap().reported(m_held.modifiers()); }

TypedKey KeyInterpreter::typedBy(std::uint8_t keycode) const {
    TypedKey typed =
        shapeKey(m_keyboard.keymap(), keycode, m_keyboard.modifiers(), m_keyboard.layout(), heldMask() != 0);
    if (needsLayout(keycode)) typed.keyCode = keycode::inLayout(typed.keyCode, m_keyboard.layout());
    return typed;
}

/// Whether the desktop keeps the stroke to itself and shows another console. Played it would do so again, and
/// what follows would go nowhere.
bool KeyInterpreter::switchesConsole(std::uint8_t keycode) const {
    const xkb_keysym_t symbol =
        m_keyboard.keymap().symbol(keycode, m_keyboard.modifiers(), m_keyboard.layout());
    return symbol >= XKB_KEY_XF86Switch_VT_1 && symbol <= XKB_KEY_XF86Switch_VT_12;
}

/// Whether the key types something else in the layout that playing will be in.
bool KeyInterpreter::needsLayout(std::uint8_t keycode) const {
    constexpr xkb_layout_index_t mostLayouts = 4;
    const xkb_layout_index_t layout = m_keyboard.layout();
    if (!m_isRecording || layout == m_playedLayout || layout >= mostLayouts) return false;
    const xkb_mod_mask_t modifiers = m_keyboard.modifiers();
    const Keymap& keymap = m_keyboard.keymap();
    return keymap.symbol(keycode, modifiers, layout) != keymap.symbol(keycode, modifiers, m_playedLayout);
}

xkb_layout_index_t KeyInterpreter::layoutAfterPlaying(const TypedKey& typed) const {
    const Keymap& keymap = m_keyboard.keymap();
    const auto stroke = planStroke(keymap, typed.keyCode, typed.modifiers);
    return stroke ? layoutAfter(keymap, stroke.value(), m_playedLayout) : m_playedLayout;
}

void KeyInterpreter::setRecording(bool recording) {
    m_isRecording = recording;
    m_playedLayout = m_keyboard.components().lockedLayout;
}
