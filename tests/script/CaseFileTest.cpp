// SPDX-License-Identifier: MIT
//
// The cases of cases/*.cases.
#include <gtest/gtest.h>

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

TEST(CaseFilesTest, areManyAndAThirdAreErrors) {
    int cases = 0;
    int errors = 0;
    for (const FileCase& row : readCaseFiles(SCRIPT_CASE_FOLDER)) {
        ++cases;
        if (row.kind == FileCase::Kind::runError || row.kind == FileCase::Kind::compileError) ++errors;
    }
    EXPECT_GE(cases, 400);
    EXPECT_GE(errors, 133);
}

}  // namespace
