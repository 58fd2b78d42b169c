// SPDX-License-Identifier: MIT
#include "app/icons/ProgramIcon.h"

#include "app/icons/DataFolder.h"
#include "app/icons/StatusIcon.h"

QIcon programIcon() {
    findOwnIcons();
    return QIcon::fromTheme(QStringLiteral("example.orlen.Keyrill"), statusIcon(StatusImage::normal));
}

void findOwnIcons() {
    QStringList paths = QIcon::themeSearchPaths();
    if (paths.contains(iconsFolder())) return;
    QIcon::setThemeSearchPaths(paths << iconsFolder());
}
