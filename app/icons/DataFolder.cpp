// SPDX-License-Identifier: MIT
#include "app/icons/DataFolder.h"

#include <QFile>

#include "platform/Installation.h"

namespace {

QString decoded(const std::string& path) { return QFile::decodeName(path.c_str()); }

}  // namespace

QString dataFolder() { return decoded(Installation::ofProcess().pictures()); }

QString iconsFolder() { return decoded(Installation::ofProcess().icons()); }
