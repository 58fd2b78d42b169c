// SPDX-License-Identifier: MIT
#include "app/controller/LibraryItems.h"

#include <algorithm>

#include "app/library/MacroTitles.h"
#include "app/shortcuts/CombinationText.h"
#include "library/LibraryHotKeys.h"
#include "library/MacroLibrary.h"

namespace {

MacroListItem itemOf(const LibraryEntry& entry) {
    return {entry.path, shownText(entry.name()), shownText(entry.group())};
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

std::vector<MacroListItem> libraryItems(const MacroLibrary& library, const LibraryHotKeys& hotKeys,
                                        const std::map<std::string, Draft>& unsaved) {
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
    std::sort(items.begin(), items.end(), isListedBefore<MacroListItem>);
    return items;
}
