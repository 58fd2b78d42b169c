// SPDX-License-Identifier: MIT
#include "platform/linux/ConfigFolders.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

#include "platform/Installation.h"

namespace {

ConfigFolders foldersFor(const std::map<std::string, std::string>& variables) {
    const auto environment = [&](const std::string& name) {
        const auto variable = variables.find(name);
        return variable != variables.end() ? variable->second : std::string();
    };
    return configFolders(environment, "/home/ann");
}

TEST(ConfigFoldersTest, haveTheStandardsDefaults) {
    EXPECT_EQ(foldersFor({}), (ConfigFolders{"/home/ann/.config", {"/etc/xdg"}}));
}

TEST(ConfigFoldersTest, takeEmptyVariablesForUnset) {
    EXPECT_EQ(foldersFor({{"XDG_CONFIG_HOME", ""}, {"XDG_CONFIG_DIRS", ""}}), foldersFor({}));
}

TEST(ConfigFoldersTest, followTheEnvironment) {
    EXPECT_EQ(foldersFor({{"XDG_CONFIG_HOME", "/c"}, {"XDG_CONFIG_DIRS", "/etc/a:/etc/b"}}),
              (ConfigFolders{"/c", {"/etc/a", "/etc/b"}}));
}

TEST(ConfigFoldersTest, ignoreRelativePaths) {
    EXPECT_EQ(foldersFor({{"XDG_CONFIG_HOME", "c"}, {"XDG_CONFIG_DIRS", "a::/etc/b:./c"}}),
              (ConfigFolders{"/home/ann/.config", {"/etc/b"}}));
}

TEST(ConfigFoldersTest, ofTheProcessFollowItsEnvironment) {
    setenv("XDG_CONFIG_HOME", "/nowhere/config", 1);
    setenv("XDG_CONFIG_DIRS", "/nowhere/xdg", 1);
    const ConfigFolders folders = configFoldersOfProcess();
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("XDG_CONFIG_DIRS");
    EXPECT_EQ(folders,
              (ConfigFolders{"/nowhere/config", {"/nowhere/xdg"}, Installation::ofProcess().presets()}));
}

TEST(UserDataFolderTest, followsTheStandard) {
    const auto folderFor = [](const std::string& variable) {
        return userDataFolder(
            [&](const std::string& name) { return name == "XDG_DATA_HOME" ? variable : ""; }, "/home/ann");
    };
    EXPECT_EQ(folderFor(""), "/home/ann/.local/share");
    EXPECT_EQ(folderFor("/d"), "/d");
    EXPECT_EQ(folderFor("d"), "/home/ann/.local/share");
}

}  // namespace
