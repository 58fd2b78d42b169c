// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Where the program's pictures lie, by its own place: "PREFIX/share/keyrill" for "PREFIX/bin/keyrill". It
/// need not exist. Needs the application object.
QString dataFolder();
/// Where its icons lie, for icon themes.
QString iconsFolder();
