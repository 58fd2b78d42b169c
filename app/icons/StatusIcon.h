// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include "app/icons/StatusImage.h"

/// Drawn here, without files, theme or fonts, light and dark edges for panels of any colour, under the name
/// of the theme's symbolic icon.
///
/// Why both: a panel that finds the name colours that icon to its liking; one that does not, as where the
/// program runs from its build folder, is given these pixels. The theme's own, in one dark colour, would be
/// invisible on a dark panel.
QIcon statusIcon(StatusImage image);
