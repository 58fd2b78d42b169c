// SPDX-License-Identifier: MIT
#include "platform/Installation.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/Child.h"

namespace {

TEST(InstallationTest, liesAroundItsPrograms) {
    const Installation installation("/opt/some where/bin");
    EXPECT_EQ(installation.companions(), "/opt/some where/libexec/keyrill");
    EXPECT_EQ(installation.presets(), "/opt/some where/etc/xdg");
    EXPECT_EQ(installation.pictures(), "/opt/some where/share/keyrill");
    EXPECT_EQ(installation.icons(), "/opt/some where/share/icons");
    EXPECT_EQ(installation.manual(), "/opt/some where/share/doc/keyrill/manual/index.html");
}

TEST(InstallationTest, hasTheManualInALanguageWhereItIsTranslated) {
    const TemporaryFolder folder;
    const Installation installation(folder.file("bin"));
    const std::string english = folder.file("share/doc/keyrill/manual/index.html");
    const std::string german = folder.file("share/doc/keyrill/manual/de/index.html");
    EXPECT_EQ(installation.manual("de"), english);
    std::filesystem::create_directories(std::filesystem::path(german).parent_path());
    EXPECT_EQ(installation.manual("de"), english);
    std::ofstream(german) << "Keyrill-Handbuch";
    EXPECT_EQ(installation.manual("de"), german);
    EXPECT_EQ(installation.manual("fr"), english);
    EXPECT_EQ(installation.manual(), english);
}

TEST(InstallationTest, ofTheProcessLiesAroundTheProgramThatRuns) {
    const std::string programs = Installation::ofProcess().programs();
    EXPECT_TRUE(std::filesystem::equivalent("/proc/self/exe", programs + "/platform_test")) << programs;
}

TEST(FileUrlTest, keepsWhatUrlsMayHold) { EXPECT_EQ(fileUrl("/a-Z0/_.~"), "file:///a-Z0/_.~"); }

TEST(FileUrlTest, escapesAllOtherBytes) {
    EXPECT_EQ(fileUrl("/a b/100%/#?/\xC3\xA4\xFF"), "file:///a%20b/100%25/%23%3F/%C3%A4%FF");
}

}  // namespace
