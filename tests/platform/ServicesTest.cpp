// SPDX-License-Identifier: MIT
#include "platform/Services.h"

#include <gtest/gtest.h>

#include "platform/Result.h"

TEST(ServicesDeathTest, endsTheProcessWhileNoneIsInstalled) {
    EXPECT_DEATH(services(), "no services are installed");
}

TEST(ResultDeathTest, endsTheProcessWhenTheMissingHalfIsTaken) {
    const Result<int> failed = Error{"expected one, found none", ""};
    const Result<int> done = 1;
    EXPECT_DEATH((void)failed.value(), "");
    EXPECT_DEATH((void)done.error(), "");
}

TEST(ResultTest, carriesTheValueOrTheError) {
    const Result<int> done = 7;
    const Result<> failed = Error{"no server", "start one"};
    EXPECT_EQ(done.value(), 7);
    EXPECT_FALSE(failed);
    EXPECT_EQ(failed.error(), (Error{"no server", "start one"}));
}
