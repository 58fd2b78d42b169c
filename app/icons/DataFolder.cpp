// SPDX-License-Identifier: MIT
#include "app/icons/DataFolder.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QString fromProgram(const QString& folder) {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + folder);
}

}  // namespace

QString dataFolder() { return fromProgram(QStringLiteral(KEYRILL_SHARE_FROM_PROGRAM "/keyrill")); }

QString iconsFolder() { return fromProgram(QStringLiteral(KEYRILL_SHARE_FROM_PROGRAM "/icons")); }
