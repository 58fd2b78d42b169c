// SPDX-License-Identifier: MIT
//
// What the commands tell of themselves: true, whole and printed.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "platform/script/commands/Command.h"
#include "platform/script/commands/LanguageReference.h"
#include "script/CaseFile.h"

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

TEST(ReferenceTest, everyCommandHasAManualButForSynonyms) {
    for (const script::Command* command : script::commands()) {
        if (command->name.spelling() == "number of") continue;
        EXPECT_NE(command->manual.find("\n\n"), std::string_view::npos) << command->name.spelling();
    }
}

}  // namespace
