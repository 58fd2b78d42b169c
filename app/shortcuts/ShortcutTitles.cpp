// SPDX-License-Identifier: MIT
#include "app/shortcuts/ShortcutTitles.h"

#include <QCoreApplication>
#include <array>
#include <string_view>

#include "prefs/Shortcuts.h"

namespace {

constexpr const char* context = "ShortcutTitles";

struct TitlesRow {
    std::string_view name;
    const char* label = nullptr;
    const char* command = nullptr;
};

constexpr std::array titlesRows = {
    TitlesRow{.name = "record",
              .label = QT_TRANSLATE_NOOP("ShortcutTitles", "Start &Recording:"),
              .command = QT_TRANSLATE_NOOP("ShortcutTitles", "Start Recording")},
    TitlesRow{.name = "stop",
              .label = QT_TRANSLATE_NOOP("ShortcutTitles", "&Stop Recording:"),
              .command = QT_TRANSLATE_NOOP("ShortcutTitles", "Stop Recording")},
    TitlesRow{.name = "play",
              .label = QT_TRANSLATE_NOOP("ShortcutTitles", "&Play:"),
              .command = QT_TRANSLATE_NOOP("ShortcutTitles", "Play")},
    TitlesRow{.name = "multiplePlay",
              .label = QT_TRANSLATE_NOOP("ShortcutTitles", "Play &Multiple Times:"),
              .command = QT_TRANSLATE_NOOP("ShortcutTitles", "Play Multiple Times")},
};

consteval bool followShortcutRows() {
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        if (titlesRows.at(i).name != shortcutRows.at(i).name) return false;
    }
    return titlesRows.size() == shortcutRows.size();
}
static_assert(followShortcutRows());

}  // namespace

ShortcutTitles shortcutTitles(std::size_t index) {
    const TitlesRow& row = titlesRows.at(index);
    return {.label = QCoreApplication::translate(context, row.label),
            .command = QCoreApplication::translate(context, row.command)};
}
