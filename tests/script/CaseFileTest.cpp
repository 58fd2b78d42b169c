// SPDX-License-Identifier: MIT
//
// The cases of cases/*.cases.
#include <gtest/gtest.h>

#include "CaseFile.h"
#include "Traced.h"

namespace {

std::string eventsOf(const Traced& result) {
    std::string events = result.events;
    if (!events.empty()) events.pop_back();
    for (char& c : events) c = c == '\n' ? ' ' : c;
    return events;
}

std::string placeOf(const Traced& result) {
    return std::to_string(result.error.location.line) + ":" + std::to_string(result.error.location.column);
}

/// What came of a script, in the words of the case.
std::string outcome(const FileCase& row, const Traced& result) {
    const bool failed = result.phase != Traced::Phase::none;
    if (failed) {
        const std::string arrow = result.phase == Traced::Phase::compile ? "=? " : "=! ";
        const std::string place = row.place.empty() ? "" : placeOf(result) + " ";
        const std::string events = row.events.empty() ? "" : eventsOf(result) + " ";
        return events + arrow + place + std::to_string(result.error.number) + " " + result.error.message;
    }
    if (row.kind == FileCase::Kind::events) return "-> " + eventsOf(result);
    return "=> " + onOneLine(result.value);
}

std::string expectation(const FileCase& row) {
    const std::string place = row.place.empty() ? "" : row.place + " ";
    const std::string events = row.events.empty() ? "" : row.events + " ";
    switch (row.kind) {
        case FileCase::Kind::value:
            return "=> " + row.expected;
        case FileCase::Kind::events:
            return "-> " + row.events;
        case FileCase::Kind::runError:
            return events + "=! " + place + row.expected;
        default:
            return "=? " + place + row.expected;
    }
}

class CaseFileTest : public testing::TestWithParam<FileCase> {};

TEST_P(CaseFileTest, comesOutAsWritten) {
    const FileCase& row = GetParam();
    const std::string found = outcome(row, traced(row.source));
    if (row.isPending) {
        EXPECT_NE(found, expectation(row)) << "take the mark ~ away: " << row.name;
    } else {
        EXPECT_EQ(found, expectation(row)) << row.source;
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
