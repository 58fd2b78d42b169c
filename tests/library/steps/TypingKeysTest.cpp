// SPDX-License-Identifier: MIT
#include "library/steps/TypingKeys.h"

#include <gtest/gtest.h>

#include "keymap/NamedKeymap.h"
#include "library/steps/Foreseen.h"
#include "library/steps/Recording.h"
#include "platform/KeyCodes.h"
#include "platform/KeyboardLayout.h"
#include "platform/Modifiers.h"
#include "platform/keymap/KeyLabels.h"
#include "support/Keys.h"

using steps::keyLinesOf;

namespace {

/// A layout of xkb-data.
class NamedLayout : public KeyboardLayout {
  public:
    explicit NamedLayout(const std::string& name) : m_keymap(namedKeymap(name)) {}

    std::string keyName(std::uint32_t keyCode) const override { return keyLabel(*m_keymap, 0, keyCode); }
    Result<std::string> character(std::uint32_t keyCode, bool /*shift*/, bool /*option*/) const override {
        return Error{"The key " + keyName(keyCode) + " was not to be asked for.", ""};
    }
    std::string typed(std::uint32_t keyCode, bool shift) const override {
        return typedText(*m_keymap, 0, keyCode, shift);
    }

  private:
    std::unique_ptr<Keymap> m_keymap;
};

/// What the keys of a recording type, texts included.
std::string typedUnder(const KeyboardLayout& layout, const std::string& script) {
    const auto recording = recorded(script);
    std::string typed;
    for (const steps::Line& line : recording.lines()) {
        typed += line.kind == steps::LineKind::text ? recording.textOf(line) : typedBy(layout, line);
    }
    return typed;
}

/// As text, all of it.
std::string asText(const std::string& script, const KeyboardLayout& layout) {
    const auto recording = recorded(script);
    return spliced(script, convertedToText(recording, 0, recording.lines().size(), layout).value());
}

struct LayoutText {
    const char* layout;
    const char* text;
};

// NOLINTNEXTLINE(readability-identifier-naming): the name is the test framework's
void PrintTo(const LayoutText& row, std::ostream* out) { *out << row.layout; }

class TypingKeysLayoutTest : public testing::TestWithParam<LayoutText> {};

/// From a text to keys, to a text, and back to the same keys.
TEST_P(TypingKeysLayoutTest, textsAndKeysAreTheSameThereAndBack) {
    const NamedLayout layout(GetParam().layout);
    const std::string text = GetParam().text;
    const auto keys = keyLinesOf(layout, text);
    ASSERT_TRUE(keys) << keys.error().message;
    const std::string script = recordingOf(keys.value());
    EXPECT_EQ(typedUnder(layout, script), text);
    const std::string converted = asText(script, layout);
    EXPECT_EQ(converted, recordingOf(steps::textLines(text)));
    const auto recording = recorded(converted);
    const auto back = convertedToKeys(recording, 0, 1, layout);
    ASSERT_TRUE(back && back.value()) << text;
    EXPECT_EQ(spliced(converted, *back.value()), script);
}

/// What the script language makes of the text is the text.
TEST_P(TypingKeysLayoutTest, aConvertedTextIsWhatPlays) {
    const steps::Foreseen played = steps::foreseen(recordingOf(steps::textLines(GetParam().text)), {});
    EXPECT_FALSE(played.error);
    ASSERT_EQ(played.steps.size(), 2U);
    EXPECT_EQ(played.steps[0].text, GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Layouts, TypingKeysLayoutTest,
                         testing::Values(LayoutText{"us", "Hello, World! {[~`]} \"quoted\" \\"},
                                         LayoutText{"fr", "Bonjour, ça va ? 100 % à l'été €"},
                                         LayoutText{"de", "Grüße aus Köln: 5 € @ {~}"},
                                         LayoutText{"ru", "Привет, мир! №1"}, LayoutText{"gr", "Καλημερα"},
                                         LayoutText{"il", "שלום"}, LayoutText{"ara", "سلام"},
                                         LayoutText{"dvorak", "The quick brown fox."},
                                         LayoutText{"tr", "ığüşöçİ"}, LayoutText{"ch", "éà$ §"},
                                         LayoutText{"th", "สวัสดี"}, LayoutText{"es", "mañana: ¿que? ¡no!"}),
                         [](const auto& row) { return std::string(row.param.layout); });

TEST(TypingKeysTest, recordedKeysTypeAnotherTextUnderAnotherLayout) {
    const NamedLayout us("us");
    const NamedLayout french("fr");
    const std::string script = recordingOf(keyLinesOf(us, "Hello, World").value());
    EXPECT_EQ(typedUnder(french, script), "Hello; Zorld");
    EXPECT_EQ(typedUnder(french, asText(script, us)), "Hello, World");
}

TEST(TypingKeysTest, lineEndsAndTabsAreKeysToo) {
    const NamedLayout us("us");
    EXPECT_EQ(keyLinesOf(us, "a\tb\r\nc\n").value(),
              steps::keyLines(key::a, 0) + steps::keyLines(48, 0) + steps::keyLines(key::b, 0) +
                  steps::keyLines(key::returnKey, 0) + steps::keyLines(8, 0) +
                  steps::keyLines(key::returnKey, 0));
}

TEST(TypingKeysTest, namesTheCharacterThatNoKeyTypes) {
    EXPECT_EQ(keyLinesOf(NamedLayout("us"), "aЖ").error(),
              (Error{"No key of the present keyboard layout types \"Ж\".",
                     "Convert the keys to text, which types any character."}));
}

TEST(TypingKeysTest, retypingLeavesTheKeysThatStay) {
    const NamedLayout us("us");
    // The "1" of the keypad, which a text would not choose.
    const std::string keypadOne = steps::keyLines(83, 0);
    const std::string a = steps::keyLines(key::a, 0);
    const std::string b = steps::keyLines(key::b, 0);
    const std::string script = recordingOf(keypadOne + a + keypadOne);
    const auto recording = recorded(script);
    const auto after = [&](const char* text) {
        return spliced(script, steps::retyped(recording, 0, 3, text, us).value());
    };
    EXPECT_EQ(after("1b1"), recordingOf(keypadOne + b + keypadOne));
    EXPECT_EQ(after("1ab1"), recordingOf(keypadOne + a + b + keypadOne));
    EXPECT_EQ(after("11"), recordingOf(keypadOne + keypadOne));
    EXPECT_EQ(after(""), recordingOf(""));
    EXPECT_EQ(after("1a1"), script);
    EXPECT_FALSE(steps::retyped(recording, 0, 3, "1Ж1", us));
}

TEST(TypingKeysTest, commentsStayWhereTheyAre) {
    const NamedLayout us("us");
    const std::string a = steps::keyLines(key::a, 0);
    const std::string b = steps::keyLines(key::b, 0);
    const std::string script = recordingOf("-- one\n" + a + "-- two\n" + b + b);
    const auto recording = recorded(script);
    const auto after = [&](const char* text) {
        return spliced(script, steps::retyped(recording, 1, 2, text, us).value());
    };
    EXPECT_EQ(after("abb"), recordingOf("-- one\n" + a + "-- two\n" + a + b + b));
    EXPECT_EQ(after("aa"), recordingOf("-- one\n" + a + "-- two\n" + a + a));
    EXPECT_EQ(after("bba"), recordingOf("-- one\n" + a + "-- two\n" + b + b + a));
    EXPECT_EQ(after(""), recordingOf("-- one\n" + a + "-- two\n"));
    EXPECT_EQ(after("bb"), script);
    const std::string text = asText(script, us);
    EXPECT_EQ(text, recordingOf("-- one\n" + steps::textLines("a") + "-- two\n" + steps::textLines("bb")));
    const auto back = convertedToKeys(recorded(text), 0, 2, us);
    ASSERT_TRUE(back && back.value());
    EXPECT_EQ(spliced(text, *back.value()), script);
}

TEST(TypingKeysTest, combinationsAndPausesStayWhereTheyAre) {
    const NamedLayout us("us");
    const std::string copy = steps::keyLines(8, modifier::control);
    const std::string script = recordingOf(steps::keyLines(key::a, 0) + copy + steps::keyLines(key::b, 0) +
                                           steps::keyLines(key::b, modifier::shift) + steps::pauseLines(1));
    EXPECT_EQ(asText(script, us),
              recordingOf(steps::textLines("a") + copy + steps::textLines("bB") + steps::pauseLines(1)));
}

TEST(TypingKeysTest, nothingIsConvertedWhereThereIsNothing) {
    const NamedLayout us("us");
    const auto recording = recorded(recordingOf(steps::keyLines(key::returnKey, 0)));
    EXPECT_FALSE(convertedToText(recording, 0, 1, us));
    const auto back = convertedToKeys(recording, 0, 1, us);
    ASSERT_TRUE(back);
    EXPECT_FALSE(back.value());
}

TEST(TypingKeysTest, keypadsAndLevelsAreReadAsTheyType) {
    const NamedLayout german("de");
    const auto recording =
        recorded(recordingOf(steps::keyLines(83, 0) + steps::keyLines(keycode::thirdLevel | 12, 0) +
                             steps::keyLines(key::a, modifier::option)));
    EXPECT_EQ(typedBy(german, recording.lines()[0]), "1");
    EXPECT_EQ(typedBy(german, recording.lines()[1]), "@");
    EXPECT_EQ(typedBy(german, recording.lines()[2]), "");
}

}  // namespace
