// SPDX-License-Identifier: MIT
#include "app/widgets/OwnWindow.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QWidget>
#include <algorithm>

OwnWindow ownWindow(const QWidget& window) {
    const WId number = window.winId();
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto isNamesake = [&window](const QWidget* other) {
        return other->isVisible() && other->windowTitle() == window.windowTitle();
    };
    // Qt numbers those for itself.
    const bool isNumbered = QApplication::platformName() != QLatin1String("wayland");
    return {.id = isNumbered ? static_cast<WindowId>(number) : Windows::none,
            .title = window.windowTitle().toStdString(),
            .count = isNumbered
                         ? 1
                         : std::max(1, static_cast<int>(std::count_if(all.begin(), all.end(), isNamesake)))};
}

OwnWindow hiddenWindow(const QWidget& window) {
    // Then the toolkit sends what it has for the window system.
    if (auto* const dispatcher = QAbstractEventDispatcher::instance()) emit dispatcher->aboutToBlock();
    return ownWindow(window);
}
