// SPDX-License-Identifier: MIT
#include "app/tray/MacroMenuItem.h"

#include "app/widgets/MenuTitle.h"

MacroMenuItem::MacroMenuItem(const QString& title, QObject* parent)
    : QAction(macroMenuTitle(title), parent) {}
