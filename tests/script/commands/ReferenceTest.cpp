// SPDX-License-Identifier: MIT
//
// What the commands tell of themselves: true, whole and printed.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <vector>

#include "platform/script/commands/Command.h"
#include "platform/script/commands/Cookbook.h"
#include "platform/script/commands/KeyTable.h"
#include "platform/script/commands/LanguageReference.h"
#include "script/CaseFile.h"
#include "script/Traced.h"

namespace {

class CommandTest : public testing::TestWithParam<const script::Command*> {};

TEST_P(CommandTest, doesWhatItsExamplesSay) {
    std::istringstream examples{std::string(GetParam()->examples)};
    int count = 0;
    for (std::string line; std::getline(examples, line); ++count) {
        const FileCase row = caseOf(line);
        EXPECT_EQ(outcomeOf(row), expectationOf(row)) << row.source;
    }
    EXPECT_GT(count, 0);
}

INSTANTIATE_TEST_SUITE_P(All, CommandTest, testing::ValuesIn(script::commands()), [](const auto& row) {
    std::string name(row.param->name.spelling());
    for (char& c : name) c = c == ' ' ? '_' : c;
    return name;
});

TEST(ReferenceTest, theFileInTheDocumentsIsUpToDate) {
    std::ifstream file(LANGUAGE_REFERENCE);
    std::stringstream content;
    content << file.rdbuf();
    EXPECT_EQ(content.str(), script::languageReference()) << "print it with: keyrill-script reference";
}

class RecipeTest : public testing::TestWithParam<script::Recipe> {};

/// Without a warning, and to its end.
TEST_P(RecipeTest, doesWhatItSays) {
    const Traced result = traced(std::string(GetParam().script));
    EXPECT_EQ(result.phase, Traced::Phase::none) << result.error.message;
    EXPECT_EQ(result.warnings, std::vector<std::string>());
    const std::string events(GetParam().events);
    EXPECT_EQ(result.events, events.empty() ? result.events : events);
    EXPECT_NE(result.events, "");
}

INSTANTIATE_TEST_SUITE_P(Cookbook, RecipeTest, testing::ValuesIn(script::recipes()), [](const auto& row) {
    std::string name(row.param.title);
    for (char& c : name) c = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ? c : '_';
    return name;
});

TEST(KeyTableTest, namesEachKeyAsAUsKeyboardDoes) {
    EXPECT_EQ(script::keyTitle(0), "A");
    EXPECT_EQ(script::keyTitle(36), "Return");
    EXPECT_EQ(script::keyTitle(51), "Backspace");
    EXPECT_EQ(script::keyTitle(117), "Delete");
    EXPECT_EQ(script::keyTitle(89), "Keypad 7");
    EXPECT_EQ(script::keyTitle(69), "Keypad Plus");
    EXPECT_EQ(script::keyTitle(116), "Page Up");
    EXPECT_EQ(script::keyTitle(103), "F11");
    EXPECT_EQ(script::keyTitle(0x200 + 14), "AltGr with E");
    EXPECT_EQ(script::keyTitle(0x1000 + 183), "key 183");
    EXPECT_EQ(script::keyTitle(127), "");
    EXPECT_EQ(script::keyTitle(66), "");
}

TEST(ReferenceTest, everyCommandHasAManualButForSynonyms) {
    for (const script::Command* command : script::commands()) {
        if (command->name.spelling() == "number of") continue;
        EXPECT_NE(command->manual.find("\n\n"), std::string_view::npos) << command->name.spelling();
    }
}

}  // namespace
