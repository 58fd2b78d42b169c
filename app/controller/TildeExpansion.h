// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// `path` with a leading "~" or "~/" replaced by `home`. Other users' homes ("~name") are not looked up.
QString withTildeExpanded(const QString& path, const QString& home);
