// SPDX-License-Identifier: MIT
#include "platform/wayland/VirtualPressing.h"

#include <utility>

#include "platform/wayland/TextTyper.h"

namespace wayland {

Result<void> VirtualPressing::start() {
    if (m_keyboard) return {};
    auto keyboard = VirtualKeyboard::make(m_connection, m_clock);
    if (!keyboard) return keyboard.error();
    m_keyboard = std::move(keyboard).value();
    return {};
}

std::unique_ptr<RunKeyboard> VirtualPressing::keyboard(StrokeSender& sender, RunWait& wait) {
    return std::make_unique<TextTyper>(
        TextTyper::Tools{
            .connection = m_connection, .seat = m_seat, .keyboard = *m_keyboard, .clock = m_clock},
        sender, wait);
}

}  // namespace wayland
