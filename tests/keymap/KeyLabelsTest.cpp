// SPDX-License-Identifier: MIT
#include "platform/keymap/KeyLabels.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "keymap/NamedKeymap.h"
#include "platform/KeyCodes.h"

namespace {

struct Row {
    std::uint32_t keyCode;
    const char* label;
};

void check(const Keymap& keymap, xkb_layout_index_t layout, const std::vector<Row>& rows) {
    for (const Row& row : rows) EXPECT_EQ(keyLabel(keymap, layout, row.keyCode), row.label) << row.keyCode;
}

TEST(KeyLabelsTest, keysAreCalledWhatTheyTypeInUpperCase) {
    check(*namedKeymap("us"), 0, {{0, "A"}, {18, "1"}, {27, "-"}, {41, ";"}, {50, "`"}, {10, "<"}});
    check(*namedKeymap("de"), 0, {{16, "Z"}, {6, "Y"}, {41, "Ö"}, {33, "Ü"}, {24, "´"}, {50, "^"}});
    check(*namedKeymap("fr"), 0, {{0, "Q"}, {18, "&"}, {19, "É"}, {25, "Ç"}, {33, "^"}});
}

TEST(KeyLabelsTest, theGroupInForceCounts) {
    const auto keymap = namedKeymap("us,ru");
    check(*keymap, 0, {{12, "Q"}, {0, "A"}, {18, "1"}});
    check(*keymap, 1, {{12, "Й"}, {0, "Ф"}, {18, "1"}});
}

TEST(KeyLabelsTest, withAChooserItIsWhatThatLevelTypes) {
    const auto keymap = namedKeymap("de");
    check(*keymap, 0, {{0x200 + 12, "@"}, {0x200 + 14, "€"}, {0x200 + 26, "{"}, {0x200 + 36, "↩"}});
}

TEST(KeyLabelsTest, keysThatTypeNothingHaveSymbolsAndNames) {
    check(*namedKeymap("us"), 0,
          {{36, "↩"},
           {48, "⇥"},
           {51, "⌫"},
           {117, "⌦"},
           {53, "⎋"},
           {123, "←"},
           {124, "→"},
           {126, "↑"},
           {125, "↓"},
           {116, "⇞"},
           {121, "⇟"},
           {115, "↖"},
           {119, "↘"},
           {49, "Space"},
           {122, "F1"},
           {111, "F12"},
           {90, "F20"},
           {0x10B7, "F13"},
           {89, "Pad 7"},
           {65, "Pad ."},
           {76, "Pad Enter"},
           {52, "Pad Enter"},
           {67, "Pad *"},
           {69, "Pad +"},
           {71, "Num Lock"},
           {105, "Print"},
           {107, "Scroll Lock"},
           {113, "Pause"},
           {114, "Insert"},
           {110, "Menu"},
           {72, "Volume Up"},
           {73, "Volume Down"},
           {74, "Mute"},
           {55, "Super"},
           {56, "Shift"},
           {57, "Caps Lock"},
           {58, "Alt"},
           {59, "Ctrl"},
           {60, "Right Shift"},
           {127, "Power"},
           {144, "Brightness Up"}});
}

TEST(KeyLabelsTest, theKeypadsPointIsTheLayouts) { check(*namedKeymap("de"), 0, {{65, "Pad ,"}}); }

TEST(KeyLabelsTest, everyCodeHasALabelInEveryLayout) {
    for (const char* layout : {"us", "de", "fr", "ru", "jp", "gr", "ara", "il", "us,ru"}) {
        const auto keymap = namedKeymap(layout);
        for (std::uint32_t code = 0; code < 0x1000 + 248; ++code) {
            const std::string label = keyLabel(*keymap, 0, code);
            ASSERT_FALSE(label.empty()) << layout << ' ' << code;
            const bool visible = std::any_of(label.begin(), label.end(), [](char c) { return c != ' '; });
            ASSERT_TRUE(visible) << layout << ' ' << code;
        }
        EXPECT_FALSE(keyLabel(*keymap, 0, keycode::none).empty());
    }
}

TEST(KeyLabelsTest, asciiKeysAgreeWithTheSymbolsNames) {
    // The keymap library's own names of the unshifted symbols: a letter is called like itself.
    for (const char* layout : {"us", "de", "fr", "es", "gb"}) {
        const auto keymap = namedKeymap(layout);
        int letters = 0;
        for (std::uint16_t evdev = 1; evdev < 90; ++evdev) {
            const xkb_keysym_t* symbols = nullptr;
            if (xkb_keymap_key_get_syms_by_level(keymap->get(), evdev + 8U, 0, 0, &symbols) != 1) continue;
            char name[64] = "";
            xkb_keysym_get_name(symbols[0], name, sizeof name);
            if (name[0] == '\0' || name[1] != '\0') continue;
            const std::string expected(1,
                                       static_cast<char>(std::toupper(static_cast<unsigned char>(name[0]))));
            EXPECT_EQ(keyLabel(*keymap, 0, keycode::fromEvdev(evdev)), expected) << layout;
            ++letters;
        }
        EXPECT_GE(letters, 26) << layout;
    }
}

TEST(KeyLabelsTest, textIsWhatTheKeyTypesCapitalised) {
    const auto keymap = namedKeymap("de");
    EXPECT_EQ(keyText(*keymap, 0, 0, 0), "A");
    EXPECT_EQ(keyText(*keymap, 0, 18, keymap->masks().shift), "!");
    EXPECT_EQ(keyText(*keymap, 0, 83, 0), "1");
    EXPECT_EQ(keyText(*keymap, 0, 36, 0), "");
    EXPECT_EQ(keyText(*keymap, 0, 66, 0), "");
}

}  // namespace
