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
    const char* meaning = nullptr;
    const char* command = nullptr;
};

constexpr std::array titlesRows = {
    TitlesRow{.name = "record",
              .label = QT_TRANSLATE_NOOP("ShortcutTitles", "Start &recording:"),
              .meaning = QT_TRANSLATE_NOOP("ShortcutTitles", "Start recording"),
              .command = QT_TRANSLATE_NOOP("ShortcutTitles", "Record")},
    TitlesRow{.name = "stop",
              .label = QT_TRANSLATE_NOOP("ShortcutTitles", "&Stop recording:"),
              .meaning = QT_TRANSLATE_NOOP("ShortcutTitles", "Stop recording"),
              .command = QT_TRANSLATE_NOOP("ShortcutTitles", "Stop")},
    TitlesRow{.name = "play",
              .label = QT_TRANSLATE_NOOP("ShortcutTitles", "&Play:"),
              .meaning = QT_TRANSLATE_NOOP("ShortcutTitles", "Play"),
              .command = QT_TRANSLATE_NOOP("ShortcutTitles", "Play")},
    TitlesRow{.name = "multiplePlay",
              .label = QT_TRANSLATE_NOOP("ShortcutTitles", "Play &multiple times:"),
              .meaning = QT_TRANSLATE_NOOP("ShortcutTitles", "Play multiple times"),
              .command = QT_TRANSLATE_NOOP("ShortcutTitles", "Multiple Play")},
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
            .meaning = QCoreApplication::translate(context, row.meaning),
            .command = QCoreApplication::translate(context, row.command)};
}
