// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// Whether the user can see the window, or could if it were not covered; a minimised one is not shown. False
/// for null.
inline bool isShown(const QWidget* window) {
    return window != nullptr && window->isVisible() && !window->isMinimized();
}
