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
    std::optional<InstanceLock> first(std::in_place, folder.path(), ":0");
    EXPECT_TRUE(first->isOurs());
    EXPECT_FALSE(InstanceLock(folder.path(), ":0").isOurs());
    first.reset();
    EXPECT_TRUE(InstanceLock(folder.path(), ":0").isOurs());
}

TEST(InstanceLockTest, isOneForEachDisplay) {
    const TemporaryFolder folder;
    const InstanceLock first(folder.path(), ":0");
    EXPECT_TRUE(InstanceLock(folder.path(), "/tmp/socket:1").isOurs());
    EXPECT_FALSE(InstanceLock(folder.path(), ":0").isOurs());
}

TEST(InstanceLockTest, isForTheUserAlone) {
    const TemporaryFolder folder;
    const InstanceLock lock(folder.path(), ":0");
    struct stat state {};
    ASSERT_EQ(stat(folder.file("keyrill").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777U, 0700U);
    ASSERT_EQ(stat(folder.file("keyrill/running-:0").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777U, 0600U);
}

TEST(InstanceLockTest, othersReadWhatIsNotedAsLongAsItIsHeld) {
    const TemporaryFolder folder;
    EXPECT_EQ(InstanceLock::noteOfOther(folder.path(), ":0"), std::nullopt);
    std::optional<InstanceLock> lock(std::in_place, folder.path(), ":0");
    EXPECT_EQ(InstanceLock::noteOfOther(folder.path(), ":0"), "");
    lock->note("record stop");
    EXPECT_EQ(InstanceLock::noteOfOther(folder.path(), ":0"), "record stop");
    lock->note("play");
    EXPECT_EQ(InstanceLock::noteOfOther(folder.path(), ":0"), "play");
    EXPECT_EQ(InstanceLock::noteOfOther(folder.path(), ":1"), std::nullopt);
    lock.reset();
    EXPECT_EQ(InstanceLock::noteOfOther(folder.path(), ":0"), std::nullopt);
    EXPECT_EQ(InstanceLock::noteOfOther("", ":0"), std::nullopt);
}

TEST(InstanceLockTest, isGivenToEverybodyWithoutAFolder) {
    const InstanceLock first("", ":0");
    EXPECT_TRUE(first.isOurs());
    EXPECT_TRUE(InstanceLock("", ":0").isOurs());
    EXPECT_TRUE(InstanceLock("/proc/no such folder", ":0").isOurs());
}

}  // namespace
