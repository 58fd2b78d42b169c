// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include "app/icons/StatusImage.h"

/// Whether the panel of the session that XDG_CURRENT_DESKTOP names so is known to paint a symbolic icon in a
/// colour that can be seen on it. Those of KDE Plasma, LXQt and MATE show it as it lies, in one dark colour,
/// and LXQt's a sign of its own where it does not find the name.
bool paintsSymbolicIcons(const QString& desktops);

/// Drawn here, without files, theme or fonts, light and dark edges for panels of any colour; where the
/// session's panel paints symbolic icons, under the name of the theme's.
///
/// Why both: a panel that finds the name colours that icon to its liking; one that does not, as where the
/// program runs from its build folder, is given these pixels.
QIcon statusIcon(StatusImage image);
