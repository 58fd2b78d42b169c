// SPDX-License-Identifier: MIT
//
// Macro files of earlier versions do what they did: versions/VERSION/NAME.keyrill, and beside it what it
// does.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

#include "script/Traced.h"
#include "support/Child.h"

namespace {

namespace fs = std::filesystem;

/// "0.1/recorded", in order.
std::vector<std::string> macrosOfVersions() {
    const fs::path folder = VERSIONS_FOLDER;
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        fs::path name = fs::relative(entry.path(), folder);
        if (name.extension() == ".keyrill") names.push_back(name.replace_extension().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string fileOf(const std::string& name, const char* ending) {
    return (fs::path(VERSIONS_FOLDER) / name.c_str()).string().append(ending);
}

class VersionsTest : public testing::TestWithParam<std::string> {};

TEST_P(VersionsTest, doesWhatItDid) {
    const Traced result = traced(contentOf(fileOf(GetParam(), ".keyrill")));
    EXPECT_EQ(result.phase, Traced::Phase::none) << result.error.message;
    EXPECT_EQ(result.events, contentOf(fileOf(GetParam(), ".events")));
}

INSTANTIATE_TEST_SUITE_P(Kept, VersionsTest, testing::ValuesIn(macrosOfVersions()), [](const auto& row) {
    std::string name = row.param;
    std::replace_if(
        name.begin(), name.end(), [](char sign) { return std::isalnum(sign) == 0; }, '_');
    return name;
});

TEST(VersionFilesTest, eachFileHasWhatItDoes) {
    const std::vector<std::string> names = macrosOfVersions();
    EXPECT_GE(names.size(), 5U);
    for (const std::string& name : names) {
        EXPECT_TRUE(fs::is_regular_file(fileOf(name, ".events"))) << name;
    }
}

}  // namespace
