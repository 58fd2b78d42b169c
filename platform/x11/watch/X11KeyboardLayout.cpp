// SPDX-License-Identifier: MIT
#include "platform/x11/watch/X11KeyboardLayout.h"

#include "platform/Sentence.h"
#include "platform/keymap/KeyLabels.h"
#include "platform/keymap/KeyboardState.h"
#include "platform/x11/watch/X11EventManager.h"

namespace x11 {

std::string X11KeyboardLayout::keyName(std::uint32_t keyCode) const {
    const KeyboardState& keyboard = m_manager.keyboard();
    return keyLabel(keyboard.keymap(), keyboard.layout(), keyCode);
}

Result<std::string> X11KeyboardLayout::character(std::uint32_t keyCode, bool shift, bool option) const {
    const KeyboardState& keyboard = m_manager.keyboard();
    const ModifierMasks& masks = keyboard.keymap().masks();
    std::string text = keyText(keyboard.keymap(), keyboard.layout(), keyCode,
                               (shift ? masks.shift : 0) | (option ? masks.option : 0));
    if (!text.empty()) return text;
    return Error{sentence("Keys", "The key %1 types no character.").arg(keyName(keyCode)), ""};
}

std::string X11KeyboardLayout::typed(std::uint32_t keyCode, bool shift) const {
    const KeyboardState& keyboard = m_manager.keyboard();
    return typedText(keyboard.keymap(), keyboard.layout(), keyCode, shift);
}

}  // namespace x11
