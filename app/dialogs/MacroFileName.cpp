// SPDX-License-Identifier: MIT
#include "app/dialogs/MacroFileName.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <climits>

namespace {

QString ending() { return u'.' + QLatin1String(macroSuffix); }

}  // namespace

QString macroFileName(const QString& name, const QDir& folder) {
    const bool isFolder = name.isEmpty() || name.endsWith(u'/') || name == QStringLiteral("~") ||
                          QFileInfo(folder, name).isDir();
    return isFolder || isMacroFileName(name) ? name : name + ending();
}

bool isMacroFileName(const QString& name) { return name.endsWith(ending(), Qt::CaseInsensitive); }

bool fitsAsFileName(const QString& path) {
    return QFile::encodeName(path.section(u'/', -1)).size() <= NAME_MAX;
}
