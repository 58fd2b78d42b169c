// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <stdexcept>

/// The button in a window by its title without the mnemonic's sign. Throws if there is none.
inline QPushButton& buttonOf(const QWidget& window, const char* title) {
    for (auto* button : window.findChildren<QPushButton*>()) {
        if (button->text().remove(u'&') == QLatin1String(title)) return *button;
    }
    throw std::runtime_error(title);
}
