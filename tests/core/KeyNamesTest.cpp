// SPDX-License-Identifier: MIT
#include "core/KeyNames.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <utility>
#include <vector>

#include "platform/fake/FakePlatform.h"

namespace {

constexpr short keyS = 1;
constexpr std::uint32_t shift = 0x020000;
constexpr std::uint32_t control = 0x040000;
constexpr std::uint32_t option = 0x080000;
constexpr std::uint32_t command = 0x100000;
constexpr std::uint32_t function = 0x800000;

class KeyNamesTest : public testing::Test {
  public:
    ~KeyNamesTest() override { setStringTableLookup(nullptr); }

  protected:
    FakePlatform platform;

  private:
    ServicesScope m_scope{platform.services};
};

TEST_F(KeyNamesTest, nameAKeyAsTheLayoutDoes) {
    EXPECT_EQ(keyNameForKeyCode(keyS), "S");
    platform.keyboardLayout.renameKey(keyS, "Ö");
    EXPECT_EQ(keyNameForKeyCode(keyS), "Ö");
}

TEST_F(KeyNamesTest, takeKeyCodesWithoutASign) {
    platform.keyboardLayout.renameKey(0x16F7, "an extension");
    platform.keyboardLayout.renameKey(0xFFFF, "the last");
    EXPECT_EQ(keyNameForKeyCode(0x16F7), "an extension");
    EXPECT_EQ(keyNameForKeyCode(-1), "the last");
}

/// Exit status 0 when the transformer appears with the first name and stays the same.
int statusOfTransformerLife() {
    if (keyCodeTransformer() != nullptr) return 1;
    keyNameForKeyCode(keyS);
    const KeyCodeTransformer* first = keyCodeTransformer();
    if (first == nullptr) return 2;
    keyNameForKeyCode(0);
    return keyCodeTransformer() == first ? 0 : 3;
}

// "threadsafe" runs the statement in a new process, where no name has been asked for yet.
TEST_F(KeyNamesTest, makeTheTransformerAtTheFirstCallAndKeepIt) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(statusOfTransformerLife()), testing::ExitedWithCode(0), "");
}

TEST_F(KeyNamesTest, followTheServicesThatAreInstalled) {
    platform.keyboardLayout.renameKey(keyS, "outer");
    FakePlatform other;
    other.keyboardLayout.renameKey(keyS, "inner");
    {
        const ServicesScope inner(other.services);
        EXPECT_EQ(keyNameForKeyCode(keyS), "inner");
    }
    EXPECT_EQ(keyNameForKeyCode(keyS), "outer");
}

TEST_F(KeyNamesTest, writeModifierSymbolsInTheirOrder) {
    EXPECT_EQ(modifierSymbolsForCocoaFlags(0), "");
    EXPECT_EQ(modifierSymbolsForCocoaFlags(control), "⌃");
    EXPECT_EQ(modifierSymbolsForCocoaFlags(option), "⌥");
    EXPECT_EQ(modifierSymbolsForCocoaFlags(shift), "⇧");
    EXPECT_EQ(modifierSymbolsForCocoaFlags(command), "⌘");
    EXPECT_EQ(modifierSymbolsForCocoaFlags(command | shift | option | control), "⌃⌥⇧⌘");
    EXPECT_EQ(modifierSymbolsForCocoaFlags(function | 0x0100 | 0x010000), "");
}

TEST_F(KeyNamesTest, writeModifierWordsInTheirOrder) {
    EXPECT_EQ(readableKeyString(0, keyS), "S");
    EXPECT_EQ(readableKeyString(command | shift, keyS), "Command + Shift + S");
    EXPECT_EQ(readableKeyString(command | shift | option | control, keyS),
              "Command + Option + Control + Shift + S");
}

TEST_F(KeyNamesTest, translateModifierWordsThatAreInTheTable) {
    std::vector<std::pair<std::string, std::string>> asked;
    setStringTableLookup([&](const std::string& key, const std::string& table) -> std::optional<std::string> {
        asked.emplace_back(key, table);
        return key == "Shift + " ? std::optional<std::string>("Umschalt + ") : std::nullopt;
    });
    EXPECT_EQ(readableKeyString(command | shift, keyS), "Command + Umschalt + S");
    EXPECT_EQ(asked, (std::vector<std::pair<std::string, std::string>>{{"Command + ", "ShortcutRecorder"},
                                                                       {"Shift + ", "ShortcutRecorder"}}));
}

TEST_F(KeyNamesTest, writeSymbolsBeforeTheName) {
    EXPECT_EQ(keyStringWithSymbols(shift | command, keyS), "⇧⌘S");
    EXPECT_EQ(keyStringWithSymbols(0, keyS), "S");
}

/// A layout that answers what it was asked.
class EchoLayout : public KeyboardLayout {
  public:
    std::string keyName(std::uint32_t) const override { return "name"; }
    Result<std::string> character(std::uint32_t keyCode, bool shiftHeld, bool optionHeld) const override {
        return std::to_string(keyCode) + (shiftHeld ? " shift" : "") + (optionHeld ? " option" : "");
    }
    std::string typed(std::uint32_t /*keyCode*/, bool /*shift*/) const override { return {}; }
};

class EchoedKeyNamesTest : public KeyNamesTest {
  private:
    EchoLayout m_layout;
    Services m_services = platform.servicesWith(m_layout);
    ServicesScope m_scope{m_services};
};

TEST_F(EchoedKeyNamesTest, askTheLayoutForACharacterWithShiftAndOption) {
    EXPECT_EQ(characterForKeyCode(1, 0), "1");
    EXPECT_EQ(characterForKeyCode(1, shift), "1 shift");
    EXPECT_EQ(characterForKeyCode(1, option), "1 option");
    EXPECT_EQ(characterForKeyCode(1, shift | option), "1 shift option");
    EXPECT_EQ(characterForKeyCode(0xFFFF, command | control | function), "65535");
}

TEST_F(EchoedKeyNamesTest, convertTheMaskForACharacter) {
    EXPECT_EQ(characterForKeyCodeAndCarbonFlags(1, 0x0200), "1 shift");
    EXPECT_EQ(characterForKeyCodeAndCarbonFlags(1, 0x0A00), "1 shift option");
    EXPECT_EQ(characterForKeyCodeAndCarbonFlags(1, shift | option), "1");
}

TEST_F(KeyNamesTest, nameTheKeyWhereTheLayoutHasNoCharacter) {
    platform.keyboardLayout.failNextCall(Error{"no layout", ""});
    EXPECT_EQ(characterForKeyCode(keyS, shift), "S");
}

TEST_F(KeyNamesTest, convertCarbonFlags) {
    EXPECT_EQ(carbonToCocoaFlags(0x0100), command);
    EXPECT_EQ(carbonToCocoaFlags(0x0800), option);
    EXPECT_EQ(carbonToCocoaFlags(0x1000), control);
    EXPECT_EQ(carbonToCocoaFlags(0x0200), shift);
    EXPECT_EQ(carbonToCocoaFlags(0x800000), function);
    EXPECT_EQ(carbonToCocoaFlags(0x0400), 0U);
    EXPECT_EQ(carbonToCocoaFlags(0x801F00), command | option | control | shift | function);
    EXPECT_EQ(carbonToCocoaFlags(0xFFFFFFFF), command | option | control | shift | function);
}

}  // namespace
