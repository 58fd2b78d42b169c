// SPDX-License-Identifier: MIT
#include "platform/desktops/ScreenLockers.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "support/Child.h"

namespace {

constexpr uid_t user = 1000;
const std::string shown = "7f00-7f10 r-xp 0 fe:00 1 /usr/lib/x86_64-linux-gnu/libwayland-client.so.0.21.0\n";
const std::string notShown = "7f00-7f10 r-xp 0 fe:00 1 /usr/lib/x86_64-linux-gnu/libc.so.6\n";

/// A machine where "lock" and "sshd" ask for passwords.
class ScreenLockersTest : public testing::Test {
  protected:
    ScreenLockersTest() {
        write("pam.d/lock", "");
        write("pam.d/sshd", "");
        write("proc/uptime", "1 1");
    }

    void write(const std::string& name, const std::string& content) {
        const std::filesystem::path file = m_folder.file(name);
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << content;
    }
    void runs(const std::string& name, const std::string& users, const std::string& maps) {
        write("proc/42/comm", name + "\n");
        write("proc/42/status", "Name:\t" + name + "\nUid:\t" + users + "\nGid:\t100\t100\t100\t100\n");
        if (!maps.empty()) write("proc/42/maps", maps);
    }
    bool isAnyRunning() const {
        return ScreenLockers({m_folder.file("proc"), m_folder.file("pam.d")}).isAnyRunning(user);
    }

  private:
    TemporaryFolder m_folder;
};

TEST_F(ScreenLockersTest, noneRunsWhereNothingRuns) { EXPECT_FALSE(isAnyRunning()); }

TEST_F(ScreenLockersTest, oneIsShownAndAsksForPasswords) {
    runs("lock", "1000\t1000\t1000\t1000", notShown + shown);
    EXPECT_TRUE(isAnyRunning());
}

TEST_F(ScreenLockersTest, anOrdinaryProgramAsksForNone) {
    runs("editor", "1000\t1000\t1000\t1000", shown);
    EXPECT_FALSE(isAnyRunning());
}

TEST_F(ScreenLockersTest, aServiceIsNotShown) {
    runs("sshd", "1000\t1000\t1000\t1000", notShown);
    EXPECT_FALSE(isAnyRunning());
}

TEST_F(ScreenLockersTest, oneThatCannotBeLookedIntoCounts) {
    runs("lock", "1000\t1000\t1000\t1000", "");
    EXPECT_TRUE(isAnyRunning());
}

TEST_F(ScreenLockersTest, anotherUsersDoesNotCount) {
    runs("lock", "1001\t1001\t1001\t1001", shown);
    EXPECT_FALSE(isAnyRunning());
}

TEST_F(ScreenLockersTest, aNameThatLeadsElsewhereIsNone) {
    runs("../pam.d/lock", "1000\t1000\t1000\t1000", shown);
    EXPECT_FALSE(isAnyRunning());
}

}  // namespace
