// SPDX-License-Identifier: MIT
#include "app/panels/KeyField.h"

#include <QKeyEvent>

#include "platform/XkbCodes.h"

namespace {

/// The modifiers alone: X servers add the layout and the buttons of the mouse.
constexpr quint32 realModifiers = 0xFF;

WindowKey::Kind kindOf(const QKeyEvent& event) {
    if (event.type() == QEvent::KeyRelease) return WindowKey::Kind::release;
    return event.isAutoRepeat() ? WindowKey::Kind::repeat : WindowKey::Kind::press;
}

}  // namespace

KeyField::KeyField(QWidget* parent) : QLineEdit(parent) {
    // Input methods would compose characters of keys.
    setReadOnly(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    // Keys are a sequence in time, whatever the language.
    setLayoutDirection(Qt::LeftToRight);
}

// Qt changes the focus for Tab, and looks for shortcuts, before a key event's own handler is called.
bool KeyField::event(QEvent* event) {
    const auto* key = dynamic_cast<QKeyEvent*>(event);
    if (key == nullptr) return QLineEdit::event(event);
    if (event->type() != QEvent::ShortcutOverride) tell(*key);
    event->accept();
    return true;
}

/// X servers tell of each repeat as a release and a press.
void KeyField::tell(const QKeyEvent& event) {
    const quint32 keycode = event.nativeScanCode();
    const bool isKey = keycode > xkbcode::first && keycode <= xkbcode::last;
    if (!isKey || (event.type() == QEvent::KeyRelease && event.isAutoRepeat())) return;
    emit keyCame({.kind = kindOf(event),
                  .keycode = static_cast<std::uint8_t>(keycode),
                  .modifiers = event.nativeModifiers() & realModifiers});
}

void KeyField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    emit left();
}
