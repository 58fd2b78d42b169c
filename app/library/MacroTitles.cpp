// SPDX-License-Identifier: MIT
#include "app/library/MacroTitles.h"

#include "library/LibraryEntry.h"
#include "platform/Encoding.h"

QString shownText(std::string_view bytes) { return QString::fromStdString(decodedText(std::string(bytes))); }

QString macroName(const std::string& path) {
    return path.empty() ? QString() : shownText(LibraryEntry{path}.name());
}
