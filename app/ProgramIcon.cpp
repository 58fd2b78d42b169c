// SPDX-License-Identifier: MIT
#include "app/ProgramIcon.h"

#include "app/DataFolder.h"
#include "app/tray/StatusIcon.h"

QIcon programIcon() {
    findOwnIcons();
    return QIcon::fromTheme(QStringLiteral("example.orlen.Keyrill"), builtInStatusIcon(StatusImage::normal));
}

void findOwnIcons() {
    QStringList paths = QIcon::themeSearchPaths();
    if (paths.contains(iconsFolder())) return;
    QIcon::setThemeSearchPaths(paths << iconsFolder());
}
