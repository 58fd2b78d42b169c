// SPDX-License-Identifier: MIT
#include "app/tray/MacroMenuItem.h"

#include <QApplication>

#include "app/tray/StatusMenu.h"
#include "app/widgets/MacroSigns.h"

MacroMenuItem::MacroMenuItem(const QString& title, QObject* parent)
    : QAction(menuTitle(withSignsThatShow(title, QFontMetrics(QApplication::font("QMenu")))), parent) {}
