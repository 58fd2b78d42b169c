// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>
#include <QWidget>

#include "platform/Windows.h"

/// The top-level window as the window system knows it, which is told of it if it was not yet.
inline OwnWindow ownWindow(const QWidget& window) {
    const WId number = window.winId();
    // Qt numbers those for itself.
    const bool isNumbered = QGuiApplication::platformName() != QLatin1String("wayland");
    return {.id = isNumbered ? static_cast<WindowId>(number) : Windows::none,
            .title = window.windowTitle().toStdString()};
}
