// SPDX-License-Identifier: MIT
//
// The cases of cases/*.cases.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "script/CaseFile.h"

namespace {

class CaseFileTest : public testing::TestWithParam<FileCase> {};

TEST_P(CaseFileTest, comesOutAsWritten) {
    const FileCase& row = GetParam();
    if (row.isPending) {
        EXPECT_NE(outcomeOf(row), expectationOf(row)) << "take the mark ~ away: " << row.name;
    } else {
        EXPECT_EQ(outcomeOf(row), expectationOf(row)) << row.source;
    }
}

INSTANTIATE_TEST_SUITE_P(Written, CaseFileTest, testing::ValuesIn(readCaseFiles(SCRIPT_CASE_FOLDER)),
                         [](const auto& row) { return row.param.name; });

/// "operators" of "operators_12"
std::string fileOf(const FileCase& row) { return row.name.substr(0, row.name.rfind('_')); }

TEST(CaseFilesTest, areAllRead) {
    std::set<std::string> files;
    for (const FileCase& row : readCaseFiles(SCRIPT_CASE_FOLDER)) files.insert(fileOf(row));
    EXPECT_EQ(files,
              (std::set<std::string>{
                  "coercions", "commands", "considering", "control",  "conversions", "dates",    "desktop",
                  "elements",  "errors",   "expressions", "failures", "fidelity",    "growing",  "handlers",
                  "keyboard",  "keys",     "lexical",     "loops",    "operators",   "places",   "playing",
                  "refused",   "services", "syntax",      "targets",  "together",    "variables"}));
}

TEST(CaseFilesTest, areManyAndAnEighthAreErrors) {
    int cases = 0;
    int errors = 0;
    for (const FileCase& row : readCaseFiles(SCRIPT_CASE_FOLDER)) {
        ++cases;
        if (row.kind == FileCase::Kind::runError || row.kind == FileCase::Kind::compileError) ++errors;
    }
    EXPECT_GE(cases, 2800);
    EXPECT_GE(errors, cases / 8);
}

}  // namespace
