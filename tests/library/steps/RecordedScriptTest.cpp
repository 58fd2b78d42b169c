// SPDX-License-Identifier: MIT
#include "library/steps/RecordedScript.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "core/Delay.h"
#include "core/HeldModifier.h"
#include "core/KeyCode.h"
#include "core/Macro.h"
#include "library/steps/Recording.h"
#include "platform/Modifiers.h"
#include "support/RecordedExample.h"

using steps::LineKind;
using steps::RecordedScript;
using steps::Splice;

namespace {

/// Keys 1, 2, 3, ... as a recording.
RecordedScript keysUpTo(std::uint32_t last) {
    std::string lines;
    for (std::uint32_t code = 1; code <= last; ++code) lines += steps::keyLines(code, 0);
    return recorded(recordingOf(lines));
}

/// The key codes after an edit.
std::vector<std::uint32_t> codesAfter(const RecordedScript& before, const Splice& edit) {
    std::vector<std::uint32_t> codes;
    const RecordedScript after = recorded(spliced(before.script(), edit));
    for (const steps::Line& line : after.lines()) codes.push_back(line.keyCode);
    return codes;
}

using Codes = std::vector<std::uint32_t>;

TEST(RecordedScriptTest, readsTheLinesOfARecording) {
    const RecordedScript script = recorded(recordedexample::script);
    ASSERT_EQ(script.lines().size(), 3U);
    EXPECT_EQ(script.lines()[0].kind, LineKind::key);
    EXPECT_EQ(script.lines()[0].keyCode, 1U);
    EXPECT_EQ(script.lines()[0].modifiers, modifier::command);
    EXPECT_EQ(script.lines()[1].kind, LineKind::pause);
    EXPECT_EQ(script.lines()[1].seconds, 0.5);
    EXPECT_EQ(script.lines()[2].keyCode, 0U);
    EXPECT_EQ(script.script(), recordedexample::script);
}

TEST(RecordedScriptTest, readsWhateverMacrosWrite) {
    Macro macro;
    for (const std::uint32_t code : {0U, 36U, 4294967295U}) {
        for (std::uint32_t mask = 0; mask < 0x2000; mask += 0x100) {
            const auto key = createKeyCode(code, "key", 'A');
            key->setModifiers(mask);
            macro.addAction(key);
        }
    }
    const std::vector<double> pauses = {0, 3, -1.5, 0.00001, 1234567, 1e300};
    for (const double seconds : pauses) macro.addAction(createDelay(seconds));
    const auto script = RecordedScript::parse(macro.script());
    ASSERT_TRUE(script);
    EXPECT_EQ(script.value().lines().size(), std::size_t{3} * 0x20 + pauses.size());
    EXPECT_EQ(script.value().lines().back().seconds, 1e300);
}

TEST(RecordedScriptTest, anEmptyRecordingIsOne) { EXPECT_TRUE(recorded(Macro().script()).lines().empty()); }

TEST(RecordedScriptTest, readsNothingThatRecordingsDoNotWrite) {
    const auto isRecording = [](const std::string& lines) {
        return static_cast<bool>(RecordedScript::parse(recordingOf(lines)));
    };
    for (const char* lines : {"\tkey code (1)\ndelay 0.01\n",
                              "\tkey code (01) using {}\ndelay 0.01\n",
                              "\tkey code (-1) using {}\ndelay 0.01\n",
                              "\tkey code (4294967296) using {}\ndelay 0.01\n",
                              "\tkey code (1) using {shift down, command down}\ndelay 0.01\n",
                              "\tkey code (1) using {shift down, }\ndelay 0.01\n",
                              "\tkey code (1) using {shift down, shift down}\ndelay 0.01\n",
                              "\tkey code (1) using {}\n",
                              "\tkey code (1) using {}\ndelay 0.02\n",
                              " \tdelay 1\ndelay 0.01\n",
                              "\tdelay \ndelay 0.01\n",
                              "\tdelay x\ndelay 0.01\n",
                              "\tdelay 1 \ndelay 0.01\n",
                              "\tdelay inf\ndelay 0.01\n",
                              "\tkeystroke \"a\" using {shift down}\ndelay 0.01\n",
                              "\tkeystroke a\ndelay 0.01\n",
                              "\tkeystroke \"a\n",
                              "- note\n",
                              "(* note *)\n",
                              "\tkey code (1) using {} -- note\ndelay 0.01\n",
                              "\tkey code (1) using {}\n-- note\ndelay 0.01\n",
                              "-- note\r\tkeystroke \"y\"\n",
                              "\r\n"}) {
        EXPECT_FALSE(isRecording(lines)) << lines;
    }
    EXPECT_FALSE(RecordedScript::parse(""));
    EXPECT_FALSE(RecordedScript::parse("tell application \"System Events\"\nend tell"));
    EXPECT_FALSE(RecordedScript::parse("tell application \"System Events\"\nend tell\nbeep\n"));
    EXPECT_TRUE(RecordedScript::parse("tell application \"System Events\"\nend tell\n# note"));
    EXPECT_FALSE(RecordedScript::parse("tell application \"System Events\"\n-- note"));
    EXPECT_TRUE(isRecording("\tkey code (1) using {command down, shift down}\ndelay 0.01\n"));
}

TEST(RecordedScriptTest, theLineThatIsNoneOfARecordingIsTold) {
    const auto otherLine = [](const std::string& script) {
        return RecordedScript::parse(script).error().line;
    };
    const std::string step = "\tkey code (1) using {}\ndelay 0.01\n";
    EXPECT_EQ(otherLine("beep\n"), 1U);
    EXPECT_EQ(otherLine("-- note\n\nset x to 1\n" + recordingOf(step)), 3U);
    EXPECT_EQ(otherLine(recordingOf(step + "-- note\n\tbeep\n" + step)), 5U);
    EXPECT_EQ(otherLine(recordingOf(step + "\tkey code (01) using {}\ndelay 0.01\n")), 4U);
    EXPECT_EQ(otherLine(recordingOf(step + "\tdelay x\ndelay 0.01\n")), 4U);
    EXPECT_EQ(otherLine(recordingOf(step + "\tkeystroke a\ndelay 0.01\n")), 4U);
    EXPECT_EQ(otherLine(recordingOf(step + "\tkey down fn\ndelay 0.01\n")), 4U);
    EXPECT_EQ(otherLine(recordingOf("\tkey code (1) using {}\ndelay 0.02\n")), 2U) << "the short delay";
    EXPECT_EQ(otherLine(recordingOf(step) + "\n-- note\nbeep\n"), 7U);
    EXPECT_EQ(otherLine("tell application \"System Events\"\n" + step), 4U) << "its last line is missing";
}

TEST(RecordedScriptTest, textsAreReadAsTheyAreWritten) {
    for (const char* text : {"Hello", "\"quoted\" \\ back", "", "tab\tline\nreturn\r", "café", "Привет, мир",
                             "😀é!", "\x01\x7F", "a & (character id {1})"}) {
        const RecordedScript script = recorded(recordingOf(steps::textLines(text)));
        ASSERT_EQ(script.lines().size(), 1U) << text;
        EXPECT_EQ(script.lines()[0].kind, LineKind::text);
        EXPECT_EQ(script.textOf(script.lines()[0]), text);
        for (const char byte : script.script()) EXPECT_GT(byte, 0) << text;
    }
}

/// Keys 1, 2 and 3, and what somebody has written about them.
const std::string explained = "-- Greets.\n\ntell application \"System Events\"\n  -- first\n" +
                              steps::keyLines(1, 0) + "\n\t-- second\n" + steps::keyLines(2, 0) +
                              steps::keyLines(3, 0) + "-- done\nend tell\n\n-- really\n";

TEST(RecordedScriptTest, commentsMayStandAnywhereBetweenLines) {
    const RecordedScript script = recorded(explained);
    EXPECT_EQ(codesAfter(script, script.erased(0, 0)), (Codes{1, 2, 3}));
    EXPECT_EQ(script.script(), explained);
    const auto bytesOf = [&](std::size_t line) {
        return script.script().substr(script.lines()[line].begin, script.lines()[line].size);
    };
    EXPECT_EQ(bytesOf(1), steps::keyLines(2, 0));
    EXPECT_EQ(script.lines()[0].remarks, std::string("  -- first\n").size());
    EXPECT_EQ(script.lines()[1].remarks, std::string("\n\t-- second\n").size());
    EXPECT_EQ(script.lines()[2].remarks, 0U);
}

TEST(RecordedScriptTest, commentsCanBeReadAlone) {
    EXPECT_EQ(recorded(explained).comments(), "-- Greets.\n  -- first\n\t-- second\n-- done\n-- really\n");
    EXPECT_EQ(recorded(recordedexample::script).comments(), "");
}

TEST(RecordedScriptTest, noEditLosesAComment) {
    const RecordedScript script = recorded(explained);
    const auto linesAfter = [&](const Splice& edit) {
        const std::string after = spliced(script.script(), edit);
        const std::size_t begin = after.find("Events\"\n") + 8;
        return after.substr(begin, after.find("end tell") - begin);
    };
    const std::string one = steps::keyLines(1, 0);
    const std::string two = steps::keyLines(2, 0);
    const std::string three = steps::keyLines(3, 0);
    const std::string nine = steps::keyLines(9, 0);
    EXPECT_EQ(linesAfter(script.erased(0, 2)), "  -- first\n\n\t-- second\n" + three + "-- done\n");
    EXPECT_EQ(linesAfter(script.replaced(1, 1, nine)),
              "  -- first\n" + one + "\n\t-- second\n" + nine + three + "-- done\n");
    EXPECT_EQ(linesAfter(script.moved(1, 1, 0)),
              "\n\t-- second\n" + two + "  -- first\n" + one + three + "-- done\n");
    EXPECT_EQ(linesAfter(script.moved(0, 1, 3)),
              "\n\t-- second\n" + two + three + "  -- first\n" + one + "-- done\n");
    EXPECT_EQ(linesAfter(script.repeated(0, 2, 2)),
              "  -- first\n" + one + "\n\t-- second\n" + two + one + two + three + "-- done\n");
    EXPECT_EQ(linesAfter(script.replaced(3, 0, nine)),
              "  -- first\n" + one + "\n\t-- second\n" + two + three + nine + "-- done\n");
}

TEST(RecordedScriptTest, linesAreErased) {
    const RecordedScript keys = keysUpTo(5);
    EXPECT_EQ(codesAfter(keys, keys.erased(1, 2)), (Codes{1, 4, 5}));
    EXPECT_EQ(codesAfter(keys, keys.erased(4, 1)), (Codes{1, 2, 3, 4}));
    EXPECT_EQ(codesAfter(keys, keys.erased(0, 5)), Codes{});
}

TEST(RecordedScriptTest, linesMoveUpAndDown) {
    const RecordedScript keys = keysUpTo(5);
    EXPECT_EQ(codesAfter(keys, keys.moved(3, 2, 1)), (Codes{1, 4, 5, 2, 3}));
    EXPECT_EQ(codesAfter(keys, keys.moved(0, 2, 5)), (Codes{3, 4, 5, 1, 2}));
    EXPECT_EQ(codesAfter(keys, keys.moved(1, 1, 3)), (Codes{1, 3, 2, 4, 5}));
    for (const std::size_t before : {1U, 2U, 3U})
        EXPECT_EQ(codesAfter(keys, keys.moved(1, 2, before)), (Codes{1, 2, 3, 4, 5})) << before;
}

TEST(RecordedScriptTest, linesAreRepeatedAndReplaced) {
    const RecordedScript keys = keysUpTo(3);
    EXPECT_EQ(codesAfter(keys, keys.repeated(1, 1, 3)), (Codes{1, 2, 2, 2, 3}));
    EXPECT_EQ(codesAfter(keys, keys.repeated(0, 2, 2)), (Codes{1, 2, 1, 2, 3}));
    EXPECT_EQ(codesAfter(keys, keys.repeated(2, 1, 1)), (Codes{1, 2, 3}));
    EXPECT_EQ(codesAfter(keys, keys.replaced(1, 1, steps::keyLines(9, 0))), (Codes{1, 9, 3}));
    EXPECT_EQ(codesAfter(keys, keys.replaced(3, 0, steps::keyLines(9, 0))), (Codes{1, 2, 3, 9}));
    EXPECT_EQ(codesAfter(keys, keys.replaced(0, 0, steps::keyLines(9, 0))), (Codes{9, 1, 2, 3}));
}

TEST(RecordedScriptTest, aPauseIsWrittenAsRecordingsDo) {
    const RecordedScript script = recorded(recordedexample::script);
    EXPECT_EQ(spliced(script.script(), script.replaced(1, 1, steps::pauseLines(1.25))),
              "tell application \"System Events\"\n"
              "\tkey code (1) using {command down}\ndelay 0.01\n"
              "\tdelay 1.25\ndelay 0.01\n"
              "\tkey code (0) using {}\ndelay 0.01\n"
              "end tell\n");
}

/// Whatever is edited, all other bytes stay, and the shape with them.
TEST(RecordedScriptTest, randomEditsKeepTheShapeAndAllOtherLines) {
    std::mt19937 random(20);
    RecordedScript script = recorded(recordingOf("-- a\n" + steps::keyLines(1, 0) + "-- b\n" +
                                                 steps::keyLines(2, 0) + steps::keyLines(3, 0) + "-- c\n"));
    for (int edit = 0; edit < 500; ++edit) {
        const std::size_t size = script.lines().size();
        const std::size_t first = random() % (size + 1);
        const std::size_t count = random() % (size - first + 1);
        Splice splice;
        switch (random() % 4) {
            case 0:
                splice = script.erased(first, std::min<std::size_t>(count, 2));
                break;
            case 1:
                splice = script.moved(first, count, random() % (size + 1));
                break;
            case 2:
                splice = script.repeated(first, std::min<std::size_t>(count, 1), 3);
                break;
            default:
                splice = script.replaced(first, 0, steps::textLines("é") + steps::pauseLines(0.25));
        }
        const std::string before = script.script();
        std::string after = spliced(before, splice);
        EXPECT_EQ(after.substr(0, splice.offset), before.substr(0, splice.offset));
        EXPECT_TRUE(after.ends_with(before.substr(splice.offset + splice.removed)));
        EXPECT_EQ(std::count(after.begin(), after.end(), '-'), 6) << edit;
        auto edited = RecordedScript::parse(std::move(after));
        ASSERT_TRUE(edited) << edit;
        script = std::move(edited).value();
    }
}

TEST(SpliceTest, isTheSmallestThatMakesTheOtherText) {
    EXPECT_EQ(steps::spliceBetween("abc", "abc"), (Splice{3, 0, ""}));
    EXPECT_EQ(steps::spliceBetween("abc", "abXc"), (Splice{2, 0, "X"}));
    EXPECT_EQ(steps::spliceBetween("aaa", "aa"), (Splice{2, 1, ""}));
    EXPECT_EQ(steps::spliceBetween("", "new"), (Splice{0, 0, "new"}));
    EXPECT_EQ(steps::spliceBetween("one two", "one 2 two"), (Splice{4, 0, "2 "}));
}

TEST(SpliceTest, cutsNoCharacterInTwo) {
    for (const auto& [before, after] : std::vector<std::pair<std::string, std::string>>{
             {"é", "è"}, {"aéb", "aèb"}, {"Ć", "É"}, {"€é", "€è"}, {"é", ""}, {"éé", "é"}}) {
        const Splice splice = steps::spliceBetween(before, after);
        EXPECT_EQ(spliced(before, splice), after);
        const std::string removed = before.substr(splice.offset, splice.removed);
        for (const std::string& part : {removed, splice.inserted}) {
            EXPECT_TRUE(part.empty() || (static_cast<unsigned char>(part[0]) & 0xC0U) != 0x80U) << before;
        }
    }
}

TEST(RecordedScriptTest, readsModifiersThatAreHeldAsMacrosWriteThem) {
    using Move = actionpack::HeldModifier::Move;
    Macro macro;
    const std::vector<std::uint32_t> all = {modifier::command, modifier::shift, modifier::option,
                                            modifier::control};
    for (const std::uint32_t held : all) {
        macro.addAction(createHeldModifier(held, Move::down));
        macro.addAction(createHeldModifier(held, Move::up));
    }
    const RecordedScript script = recorded(macro.script());
    ASSERT_EQ(script.lines().size(), 8U);
    for (std::size_t i = 0; i < all.size(); ++i) {
        EXPECT_EQ(script.lines()[2 * i].kind, LineKind::down);
        EXPECT_EQ(script.lines()[2 * i + 1].kind, LineKind::up);
        EXPECT_EQ(script.lines()[2 * i].modifiers, all[i]);
        EXPECT_EQ(script.lines()[2 * i + 1].modifiers, all[i]);
    }
    for (const char* other : {"\tkey down \"a\"\n", "\tkey down options\n", "\tkey down {option}\n"})
        EXPECT_FALSE(RecordedScript::parse(recordingOf(std::string(other) + "delay 0.01\n"))) << other;
}

}  // namespace
