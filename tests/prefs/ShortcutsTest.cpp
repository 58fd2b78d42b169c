// SPDX-License-Identifier: MIT
#include "prefs/Shortcuts.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

/// A row as one line: its name, number and signature, the key and the modifiers that it comes with.
std::string written(const ShortcutRow& row) {
    return std::string(row.name) + ' ' + std::to_string(row.id) + ' ' + std::string(row.signature) + ' ' +
           std::to_string(row.preset.code) + ' ' + std::to_string(row.preset.flags);
}

/// The assignments of a settings file.
Lines assignments(const std::string& file) {
    std::ifstream stream(file);
    Lines found;
    for (std::string line; std::getline(stream, line);) {
        if (line.find('=') != std::string::npos) found.push_back(line);
    }
    return found;
}

TEST(ShortcutsTest, beginWithTheseInTheirOrder) {
    Lines rows;
    for (std::size_t i = 0; i < 4; ++i) rows.push_back(written(shortcutRows.at(i)));
    EXPECT_EQ(rows, (Lines{"record 1 kyl1 15 1310720", "stop 2 kyl2 1 1310720", "play 3 kyl3 35 1310720",
                           "multiplePlay 4 kyl4 46 1310720"}));
}

TEST(ShortcutsTest, shareNeitherNameNorNumberNorSignatureNorKey) {
    std::set<std::string_view> names;
    std::set<HotKeyId> ids;
    std::set<std::string_view> signatures;
    std::set<std::int16_t> keys;
    for (const ShortcutRow& row : shortcutRows) {
        EXPECT_FALSE(row.name.empty());
        EXPECT_GT(row.id, 0U) << row.name;
        EXPECT_EQ(row.signature.size(), 4U) << row.name;
        EXPECT_GE(row.preset.code, 0) << row.name;
        names.insert(row.name);
        ids.insert(row.id);
        signatures.insert(row.signature);
        keys.insert(row.preset.code);
    }
    EXPECT_EQ(names.size(), shortcutRows.size());
    EXPECT_EQ(ids.size(), shortcutRows.size());
    EXPECT_EQ(signatures.size(), shortcutRows.size());
    EXPECT_EQ(keys.size(), shortcutRows.size());
}

TEST(ShortcutsTest, areInstalledForAllUsersWithTheirPresets) {
    Lines expected;
    for (const ShortcutRow& row : shortcutRows) {
        expected.push_back(std::string(row.name) + "Code=" + std::to_string(row.preset.code));
        expected.push_back(std::string(row.name) + "Flags=" + std::to_string(row.preset.flags));
    }
    EXPECT_EQ(assignments(KEYRILL_PRESETS), expected);
}

}  // namespace
