// SPDX-License-Identifier: MIT
//
// What people are told of the scripts of their first hour, as beginners.txt has it.
#include <gtest/gtest.h>

#include <fstream>
#include <vector>

#include "script/Traced.h"

namespace {

struct Lesson {
    std::string title;
    std::string source;
    std::string told;
};

std::ostream& operator<<(std::ostream& out, const Lesson& lesson) { return out << lesson.title; }

std::vector<Lesson> readLessons() {
    std::ifstream file(BEGINNERS_FILE);
    std::vector<Lesson> lessons;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("== ")) {
            lessons.push_back({line.substr(3), "", ""});
        } else if (lessons.empty() || line.empty()) {
            continue;
        } else if (line.starts_with(">> ")) {
            lessons.back().told += line.substr(3) + "\n";
        } else {
            lessons.back().source += line + "\n";
        }
    }
    return lessons;
}

/// As keyrill-script prints it, without the script's name and line.
std::string toldOf(const Traced& result) {
    std::string told;
    for (const std::string& warning : result.warnings) {
        const auto place = warning.find(' ');
        told += warning.substr(0, place) + ": warning:" + warning.substr(place) + "\n";
    }
    if (result.phase == Traced::Phase::none) return told;
    const script::ScriptError& error = result.error;
    told += std::to_string(error.location.line) + ":" + std::to_string(error.location.column);
    told += result.phase == Traced::Phase::compile ? ": syntax error: " : ": execution error: ";
    told += error.message.text() + " (" + std::to_string(error.number) + ")\n";
    return error.hint.empty() ? told : told + "Hint: " + error.hint.text() + "\n";
}

class BeginnersTest : public testing::TestWithParam<Lesson> {};

TEST_P(BeginnersTest, areToldWhatToDo) {
    EXPECT_EQ(toldOf(traced(GetParam().source)), GetParam().told) << GetParam().source;
}

INSTANTIATE_TEST_SUITE_P(Lessons, BeginnersTest, testing::ValuesIn(readLessons()), [](const auto& row) {
    std::string name = row.param.title;
    for (char& c : name) c = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ? c : '_';
    return name;
});

TEST(BeginnersFileTest, isWhole) { EXPECT_GE(readLessons().size(), 190U); }

}  // namespace
