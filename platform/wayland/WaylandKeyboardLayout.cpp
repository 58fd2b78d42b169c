// SPDX-License-Identifier: MIT
#include "platform/wayland/WaylandKeyboardLayout.h"

#include "platform/Sentence.h"
#include "platform/keymap/KeyLabels.h"
#include "platform/wayland/SeatKeymap.h"

namespace wayland {

std::string WaylandKeyboardLayout::keyName(std::uint32_t keyCode) const {
    return keyLabel(m_seat.keymap(), m_seat.group(), keyCode);
}

Result<std::string> WaylandKeyboardLayout::character(std::uint32_t keyCode, bool shift, bool option) const {
    const ModifierMasks& masks = m_seat.keymap().masks();
    std::string text = keyText(m_seat.keymap(), m_seat.group(), keyCode,
                               (shift ? masks.shift : 0) | (option ? masks.option : 0));
    if (!text.empty()) return text;
    return Error{sentence("Keys", "The key %1 types no character.").arg(keyName(keyCode)), ""};
}

std::string WaylandKeyboardLayout::typed(std::uint32_t keyCode, bool shift) const {
    return typedText(m_seat.keymap(), m_seat.group(), keyCode, shift);
}

}  // namespace wayland
