// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Where the program's pictures lie (Installation): "PREFIX/share/keyrill" for "PREFIX/bin/keyrill". It need
/// not exist.
QString dataFolder();
/// Where its icons lie, for icon themes.
QString iconsFolder();
