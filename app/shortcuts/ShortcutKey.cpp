// SPDX-License-Identifier: MIT
#include "app/shortcuts/ShortcutKey.h"

#include <QKeyEvent>
#include <array>

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "platform/XkbCodes.h"

namespace {

struct ModifierFlag {
    Qt::KeyboardModifier modifier;
    std::uint32_t flag;
};

constexpr std::array<ModifierFlag, 4> modifierFlags = {{{Qt::ShiftModifier, controlflag::shift},
                                                        {Qt::ControlModifier, controlflag::control},
                                                        {Qt::AltModifier, controlflag::option},
                                                        {Qt::MetaModifier, controlflag::command}}};

struct ModifierKey {
    int key;
    Qt::KeyboardModifier modifier;
};

/// Locks and level choosers are no modifiers of a combination, but no keys of one either.
constexpr std::array<ModifierKey, 12> modifierKeys = {{{Qt::Key_Shift, Qt::ShiftModifier},
                                                       {Qt::Key_Control, Qt::ControlModifier},
                                                       {Qt::Key_Alt, Qt::AltModifier},
                                                       {Qt::Key_Meta, Qt::MetaModifier},
                                                       {Qt::Key_Super_L, Qt::MetaModifier},
                                                       {Qt::Key_Super_R, Qt::MetaModifier},
                                                       {Qt::Key_Hyper_L, Qt::NoModifier},
                                                       {Qt::Key_Hyper_R, Qt::NoModifier},
                                                       {Qt::Key_AltGr, Qt::NoModifier},
                                                       {Qt::Key_Mode_switch, Qt::NoModifier},
                                                       {Qt::Key_CapsLock, Qt::NoModifier},
                                                       {Qt::Key_NumLock, Qt::NoModifier}}};

const ModifierKey* modifierKey(int key) {
    for (const ModifierKey& row : modifierKeys) {
        if (row.key == key) return &row;
    }
    return nullptr;
}

/// Whether the key alone puts something into a text. Dead keys and Compose do so by the next key.
bool isTyping(int key) {
    constexpr int firstSpecialKey = 0x01000000;
    const bool isDead = key >= Qt::Key_Dead_Grave && key <= Qt::Key_Dead_Longsolidusoverlay;
    return key < firstSpecialKey || key == Qt::Key_Return || key == Qt::Key_Enter || isDead ||
           key == Qt::Key_Multi_key;
}

bool isTab(int key) { return key == Qt::Key_Tab || key == Qt::Key_Backtab; }

}  // namespace

ShortcutKey shortcutKey(const QKeyEvent& press) {
    constexpr Qt::KeyboardModifiers allButShift = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const int key = press.key();
    const bool hasModifier = (press.modifiers() & allButShift) != 0;
    if (modifierKey(key) != nullptr) return ShortcutKey::modifier;
    if (!hasModifier && isTab(key)) return ShortcutKey::leave;
    if (!hasModifier && key == Qt::Key_Escape) return ShortcutKey::cancel;
    if (!hasModifier && key == Qt::Key_Backspace) return ShortcutKey::clear;
    if (keyComboOf(press).code == -1) return ShortcutKey::unknown;
    return hasModifier || !isTyping(key) ? ShortcutKey::combination : ShortcutKey::needsModifier;
}

KeyCombo keyComboOf(const QKeyEvent& press) {
    const quint32 scanCode = press.nativeScanCode();
    if (scanCode <= xkbcode::first || scanCode > xkbcode::last) return {};
    const std::uint32_t code = keycode::fromEvdev(xkbcode::toEvdev(scanCode));
    return {.flags = controlFlagsOf(press.modifiers()), .code = static_cast<std::int16_t>(code)};
}

std::uint32_t controlFlagsOf(Qt::KeyboardModifiers modifiers) {
    std::uint32_t flags = 0;
    for (const auto& [modifier, flag] : modifierFlags) {
        if (modifiers.testFlag(modifier)) flags |= flag;
    }
    return flags;
}

Qt::KeyboardModifiers modifiersAfter(const QKeyEvent& event) {
    const ModifierKey* row = modifierKey(event.key());
    if (row == nullptr) return event.modifiers();
    return event.modifiers().setFlag(row->modifier, event.type() == QEvent::KeyPress);
}
