// SPDX-License-Identifier: MIT
#include "app/dialogs/MacroFileName.h"

#include <QDir>
#include <QFileInfo>

QString macroFileName(const QString& name, const QDir& folder) {
    const QString ending = u'.' + QLatin1String(macroSuffix);
    const bool isFolder = name.isEmpty() || name.endsWith(u'/') || name == QStringLiteral("~") ||
                          QFileInfo(folder, name).isDir();
    return isFolder || name.endsWith(ending, Qt::CaseInsensitive) ? name : name + ending;
}
