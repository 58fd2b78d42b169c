// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

/// The program's own icon, in colour: the theme's by its name, else the normal status icon. Searching the
/// theme takes some milliseconds, so not before the event loop runs.
QIcon programIcon();

/// Lets themes be searched also where the program's icons lie beside it, which is no place that desktops know
/// if the program was not installed into the system's folders.
void findOwnIcons();
