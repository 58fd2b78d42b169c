// SPDX-License-Identifier: MIT
#include "platform/Services.h"

#include <gtest/gtest.h>

TEST(ServicesDeathTest, endsTheProcessWhileNoneIsInstalled) {
    EXPECT_DEATH(services(), "no services are installed");
}
