// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

#include "app/icons/StatusImage.h"

/// Drawn here, without files, theme or fonts, light and dark edges for panels of any colour.
QIcon builtInStatusIcon(StatusImage image);

/// The theme's symbolic icon by its name, which panels colour to their liking; the built-in one where the
/// theme has none. Searching the theme takes some milliseconds, so not before the event loop runs.
QIcon themedStatusIcon(StatusImage image);
