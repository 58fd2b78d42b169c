// SPDX-License-Identifier: MIT
#include "app/controller/TildeExpansion.h"

QString withTildeExpanded(const QString& path, const QString& home) {
    if (path == QLatin1String("~") || path.startsWith(QLatin1String("~/"))) return home + path.mid(1);
    return path;
}
