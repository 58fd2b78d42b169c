// SPDX-License-Identifier: MIT
#include "platform/fake/Journal.h"

#include <gtest/gtest.h>

#include "platform/fake/FakePlatform.h"

namespace {

TEST(JournalTest, writesACallAsCodeDoes) {
    Journal journal;
    journal.note("synchronize");
    journal.note("write", std::string("recordCode"), -1);
    journal.note("write", "launchOnLogin", true);
    journal.note("request", 1U, "record", Journal::mask(0x1100), Journal::Word{"none"});
    EXPECT_EQ(journal.lines(),
              (Journal::Lines{"synchronize()", R"(write("recordCode", -1))",
                              R"(write("launchOnLogin", true))", R"(request(1, "record", 0x1100, none))"}));
}

TEST(JournalTest, picksCallsByTheirWholeName) {
    Journal journal;
    for (const char* call : {"write", "writeFile", "read", "write"}) journal.note(call);
    EXPECT_EQ(journal.of({"write", "synchronize"}), (Journal::Lines{"write()", "write()"}));
}

TEST(JournalTest, bringsTheCallsOfAllFakesIntoOneOrder) {
    FakePlatform platform;
    platform.settings.setBool("launchOnLogin", true);
    platform.hotKeys.withdraw(2);
    ASSERT_TRUE(platform.settings.synchronize());
    EXPECT_EQ(platform.journal.lines(),
              (Journal::Lines{R"(write("launchOnLogin", true))", "withdraw(2)", "synchronize()"}));
}

}  // namespace
