// SPDX-License-Identifier: MIT
#include "app/tray/MacroMenuItem.h"

#include "app/tray/StatusMenu.h"

MacroMenuItem::MacroMenuItem(const QString& title, QObject* parent) : QAction(menuTitle(title), parent) {}
