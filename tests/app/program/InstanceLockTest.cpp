// SPDX-License-Identifier: MIT
#include "app/program/InstanceLock.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <optional>

#include "support/Child.h"

namespace {

TEST(InstanceLockTest, belongsToOneAtATime) {
    const TemporaryFolder folder;
    std::optional<InstanceLock> first(folder.path());
    EXPECT_TRUE(first->isOurs());
    EXPECT_FALSE(InstanceLock(folder.path()).isOurs());
    first.reset();
    EXPECT_TRUE(InstanceLock(folder.path()).isOurs());
}

TEST(InstanceLockTest, isForTheUserAlone) {
    const TemporaryFolder folder;
    const InstanceLock lock(folder.path());
    struct stat state {};
    ASSERT_EQ(stat(folder.file("keyrill").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777U, 0700U);
    ASSERT_EQ(stat(folder.file("keyrill/running").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777U, 0600U);
}

TEST(InstanceLockTest, isGivenToEverybodyWithoutAFolder) {
    const InstanceLock first{std::string()};
    EXPECT_TRUE(first.isOurs());
    EXPECT_TRUE(InstanceLock(std::string()).isOurs());
    EXPECT_TRUE(InstanceLock("/proc/no such folder").isOurs());
}

}  // namespace
