// SPDX-License-Identifier: MIT
#include "platform/Descriptor.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>
#include <type_traits>

namespace {

int opened() { return open("/dev/null", O_RDONLY | O_CLOEXEC); }
bool isOpen(int number) { return fcntl(number, F_GETFD) >= 0; }

static_assert(!std::is_copy_constructible_v<Descriptor> && !std::is_copy_assignable_v<Descriptor>);
static_assert(std::is_nothrow_move_constructible_v<Descriptor> &&
              std::is_nothrow_move_assignable_v<Descriptor>);
static_assert(!std::is_convertible_v<Descriptor, bool> && !std::is_convertible_v<int, Descriptor>);

TEST(DescriptorTest, closesAtItsEnd) {
    const int number = opened();
    {
        const Descriptor descriptor(number);
        EXPECT_TRUE(isOpen(number));
    }
    EXPECT_FALSE(isOpen(number));
}

TEST(DescriptorTest, isEmptyAfterAFailedCall) {
    const Descriptor failed(-1);
    EXPECT_FALSE(failed);
    EXPECT_EQ(failed.number(), -1);
    EXPECT_FALSE(Descriptor());
}

TEST(DescriptorTest, ownsZero) {
    Descriptor standardInput(STDIN_FILENO);
    EXPECT_TRUE(standardInput);
    EXPECT_EQ(standardInput.release(), STDIN_FILENO);
}

TEST(DescriptorTest, closesOnceWhenMoved) {
    const int number = opened();
    {
        Descriptor first(number);
        const Descriptor second(std::move(first));
        // NOLINTNEXTLINE(bugprone-use-after-move): it is empty then
        EXPECT_FALSE(first);
        EXPECT_EQ(second.number(), number);
        first.reset();
        EXPECT_TRUE(isOpen(number));
    }
    EXPECT_FALSE(isOpen(number));
}

TEST(DescriptorTest, closesItsOwnWhenAnotherIsMovedIn) {
    const int own = opened();
    const int other = opened();
    Descriptor first(own);
    first = Descriptor(other);
    EXPECT_FALSE(isOpen(own));
    EXPECT_TRUE(isOpen(other));
    EXPECT_EQ(first.number(), other);
}

TEST(DescriptorTest, keepsItsOwnWhenMovedIntoItself) {
    const int number = opened();
    Descriptor descriptor(number);
    Descriptor& same = descriptor;
    descriptor = std::move(same);
    EXPECT_EQ(descriptor.number(), number);
    EXPECT_TRUE(isOpen(number));
}

TEST(DescriptorTest, givesTheNumberAway) {
    const int number = opened();
    {
        Descriptor descriptor(number);
        EXPECT_EQ(descriptor.release(), number);
        EXPECT_FALSE(descriptor);
    }
    EXPECT_TRUE(isOpen(number));
    close(number);
}

TEST(DescriptorTest, closesWhenToldTo) {
    const int former = opened();
    const int next = opened();
    Descriptor descriptor(former);
    descriptor.reset(next);
    EXPECT_FALSE(isOpen(former));
    EXPECT_EQ(descriptor.number(), next);
    descriptor.reset();
    EXPECT_FALSE(isOpen(next));
    EXPECT_FALSE(descriptor);
}

TEST(DescriptorTest, leavesTheErrorNumberAloneWhenClosingFails) {
    const int number = opened();
    Descriptor descriptor(number);
    close(number);
    errno = ENOENT;
    descriptor.reset();
    EXPECT_EQ(errno, ENOENT);
}

}  // namespace
