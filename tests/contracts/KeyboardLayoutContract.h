// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/KeyCodes.h"
#include "platform/KeyboardLayout.h"

/// A desktop whose keyboard has a US layout.
class KeyboardLayoutWorld {
  public:
    virtual ~KeyboardLayoutWorld() = default;
    virtual KeyboardLayout& layout() = 0;
};

using KeyboardLayoutWorldFactory = std::unique_ptr<KeyboardLayoutWorld> (*)();

/// What platform/KeyboardLayout.h promises.
class KeyboardLayoutContract : public testing::TestWithParam<KeyboardLayoutWorldFactory> {
  protected:
    void SetUp() override {
        m_world = GetParam()();
        ASSERT_NE(m_world, nullptr);
    }

    const KeyboardLayout& layout() { return m_world->layout(); }

    using Names = std::vector<std::pair<std::uint32_t, std::string>>;
    void expectNames(const Names& names) {
        for (const auto& [keyCode, name] : names) EXPECT_EQ(layout().keyName(keyCode), name) << keyCode;
    }

  private:
    std::unique_ptr<KeyboardLayoutWorld> m_world;
};

TEST_P(KeyboardLayoutContract, keysThatTypeAreCalledWhatTheyTypeInUpperCase) {
    expectNames({{0, "A"}, {6, "Z"}, {18, "1"}, {29, "0"}, {24, "="}, {41, ";"}, {44, "/"}, {50, "`"}});
}

TEST_P(KeyboardLayoutContract, editingKeysAreCalledByTheirSymbols) {
    expectNames({{36, "↩"},
                 {48, "⇥"},
                 {51, "⌫"},
                 {53, "⎋"},
                 {115, "↖"},
                 {116, "⇞"},
                 {117, "⌦"},
                 {119, "↘"},
                 {121, "⇟"}});
}

TEST_P(KeyboardLayoutContract, arrowsAreCalledByTheirSymbols) {
    expectNames({{123, "←"}, {124, "→"}, {125, "↓"}, {126, "↑"}});
}

TEST_P(KeyboardLayoutContract, otherKeysThatTypeNothingHaveNames) {
    expectNames({{49, "Space"}, {122, "F1"}, {111, "F12"}, {89, "Pad 7"}, {105, "Print"}, {110, "Menu"}});
}

TEST_P(KeyboardLayoutContract, everyCodeHasAName) {
    for (const keycode::Row& row : keycode::rows()) EXPECT_NE(layout().keyName(row.code), "") << row.code;
    for (const std::uint32_t keyCode : {128U, 0x200U, 0x600U, 0x10B7U, 0x10FFU, 0x7FFFU, 0xFFFFU}) {
        EXPECT_NE(layout().keyName(keyCode), "") << keyCode;
    }
}

TEST_P(KeyboardLayoutContract, aCharacterIsCapitalisedAndKnowsShift) {
    EXPECT_EQ(layout().character(0, false, false).value(), "A");
    EXPECT_EQ(layout().character(0, true, false).value(), "A");
    EXPECT_EQ(layout().character(18, false, false).value(), "1");
    EXPECT_EQ(layout().character(18, true, false).value(), "!");
}

TEST_P(KeyboardLayoutContract, aKeyThatTypesNothingHasNoCharacter) {
    for (const std::uint32_t keyCode : {96U, 123U, 66U}) {
        EXPECT_FALSE(layout().character(keyCode, false, false)) << keyCode;
    }
}

TEST_P(KeyboardLayoutContract, whatAKeyTypesStandsAsItIs) {
    EXPECT_EQ(layout().typed(0, false), "a");
    EXPECT_EQ(layout().typed(0, true), "A");
    EXPECT_EQ(layout().typed(18, true), "!");
    EXPECT_EQ(layout().typed(49, false), " ");
    EXPECT_EQ(layout().typed(83, false), "1") << "keypad digits always mean the digit";
}

TEST_P(KeyboardLayoutContract, keysThatDoSomethingTypeNothing) {
    for (const std::uint32_t keyCode : {36U, 48U, 51U, 53U, 117U, 122U, 123U, 56U, 66U, 0xFFFFU}) {
        EXPECT_EQ(layout().typed(keyCode, false), "") << keyCode;
        EXPECT_EQ(layout().typed(keyCode, true), "") << keyCode;
    }
}
