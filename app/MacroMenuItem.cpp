// SPDX-License-Identifier: MIT
#include "app/MacroMenuItem.h"

#include "app/StatusMenu.h"

MacroMenuItem::MacroMenuItem(const QString& title, QObject* parent) : QAction(menuTitle(title), parent) {}
