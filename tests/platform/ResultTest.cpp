// SPDX-License-Identifier: MIT
#include "platform/Result.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

const Error unplugged{"The keyboard is gone.", "Plug it in."};

/// A failure that tells more than an Error, and can be one.
struct Refusal {
    // NOLINTNEXTLINE(google-explicit-constructor)
    Refusal(Error why) : error(std::move(why)) {}
    explicit Refusal(int count) : attempts(count) {}

    Error error;
    int attempts = 0;
};

Result<std::string> textOrError(bool isThere) {
    if (!isThere) return unplugged;
    return std::string("text");
}

Result<int, Refusal> countOrRefusal(int count) {
    if (count == 0) return unplugged;
    if (count < 0) return Refusal(count);
    return count;
}

Result<void, Refusal> nothingOrRefusal(bool isDone) {
    if (isDone) return {};
    const auto text = textOrError(false);
    return text.error();
}

TEST(ResultTest, carriesTheValueOrTheError) {
    const Result<int> done = 7;
    const Result<> failed = Error{"no server", "start one"};
    ASSERT_TRUE(done);
    EXPECT_EQ(done.value(), 7);
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.error(), (Error{"no server", "start one"}));
}

TEST(ResultTest, withoutAValueIsTrueUntilThereIsAnError) {
    Result<> done;
    EXPECT_TRUE(done);
    done = unplugged;
    EXPECT_FALSE(done);
}

TEST(ResultTest, carriesAFailureOfAnotherType) {
    EXPECT_EQ(countOrRefusal(3).value(), 3);
    const auto refused = countOrRefusal(-2);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().attempts, -2);
}

TEST(ResultTest, anErrorIsReturnedWhereTheFailureTellsMore) {
    EXPECT_EQ(countOrRefusal(0).error().error, unplugged);
    EXPECT_TRUE(nothingOrRefusal(true));
    EXPECT_EQ(nothingOrRefusal(false).error().error, unplugged);
}

TEST(ResultTest, aValueThatCannotBeCopiedIsMovedOut) {
    Result<std::unique_ptr<int>> made = std::make_unique<int>(7);
    const std::unique_ptr<int> taken = std::move(made).value();
    EXPECT_EQ(*taken, 7);
}

TEST(ResultTest, aFailureThatCannotBeCopiedIsMovedOut) {
    Result<int, std::unique_ptr<int>> failed = std::make_unique<int>(8);
    const std::unique_ptr<int> taken = std::move(failed).error();
    EXPECT_EQ(*taken, 8);
    Result<void, std::unique_ptr<int>> empty = std::make_unique<int>(9);
    const std::unique_ptr<int> last = std::move(empty).error();
    EXPECT_EQ(*last, 9);
}

TEST(ResultTest, aValueCanBeChangedInPlace) {
    auto text = textOrError(true);
    text.value() += "s";
    EXPECT_EQ(text.value(), "texts");
}

TEST(ResultDeathTest, endsTheProcessWhenTheMissingHalfIsTaken) {
    const Result<int> failed = Error{"expected one, found none", ""};
    const Result<int> done = 1;
    EXPECT_DEATH((void)failed.value(), "");
    EXPECT_DEATH((void)done.error(), "");
    EXPECT_DEATH((void)Result<>().error(), "");
}

}  // namespace
