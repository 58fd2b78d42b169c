// SPDX-License-Identifier: MIT
#include "app/controller/LibraryItems.h"

#include <algorithm>

#include "app/shortcuts/CombinationText.h"
#include "library/LibraryHotKeys.h"
#include "library/MacroLibrary.h"
#include "platform/Encoding.h"

namespace {

QString decoded(std::string_view bytes) { return QString::fromStdString(decodedText(std::string(bytes))); }

MacroListItem itemOf(const LibraryEntry& entry) {
    return {entry.path, decoded(entry.name()), decoded(entry.group())};
}

bool isBefore(const MacroListItem& one, const MacroListItem& other) {
    const int groups = QString::compare(one.group, other.group, Qt::CaseInsensitive);
    if (groups != 0) return groups < 0;
    const int names = QString::compare(one.name, other.name, Qt::CaseInsensitive);
    return names != 0 ? names < 0 : one.path < other.path;
}

/// Those that work, or may soon.
std::map<std::string, QString> hotKeyTexts(const MacroLibrary& library, const LibraryHotKeys& hotKeys) {
    std::map<std::string, QString> texts;
    for (const std::string& path : library.pathsWithHotKeys()) {
        const MacroHotKeyState state = hotKeys.state(path);
        if (state.status == HotKeyStatus::changed) {
            texts[path] = QString::fromStdString(state.trigger);
        } else if (state.status == HotKeyStatus::registered || state.status == HotKeyStatus::pending) {
            texts[path] = combinationText(library.settings(path).hotKey);
        }
    }
    return texts;
}

}  // namespace

QString macroName(const std::string& path) {
    return path.empty() ? QString() : decoded(LibraryEntry{path}.name());
}

std::vector<MacroListItem> libraryItems(const MacroLibrary& library, const LibraryHotKeys& hotKeys,
                                        const std::map<std::string, std::string>& unsaved) {
    std::vector<MacroListItem> items;
    items.reserve(library.entries().size() + unsaved.size());
    for (const LibraryEntry& entry : library.entries()) items.push_back(itemOf(entry));
    for (const auto& [path, text] : unsaved) {
        if (library.find(path) == nullptr) items.push_back(itemOf({path}));
    }
    for (const auto& [path, text] : hotKeyTexts(library, hotKeys)) {
        const auto item = std::lower_bound(
            items.begin(), items.begin() + static_cast<std::ptrdiff_t>(library.entries().size()), path,
            [](const MacroListItem& known, const std::string& wanted) { return known.path < wanted; });
        if (item != items.end() && item->path == path) item->hotKey = text;
    }
    std::sort(items.begin(), items.end(), isBefore);
    return items;
}
