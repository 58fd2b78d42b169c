// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QDir;

/// What a macro file's name ends with, after a point.
inline constexpr const char* macroSuffix = "keyrill";

/// The name that a macro is saved under: with the suffix, in whatever case it is written, added where it is
/// missing; as it is where it names a folder to go to. A relative name is one in `folder`.
QString macroFileName(const QString& name, const QDir& folder);

/// Whether it ends with the suffix, in whatever case.
bool isMacroFileName(const QString& name);

/// Whether file systems take the last part of a path as a name: it may have 255 bytes.
bool fitsAsFileName(const QString& path);
