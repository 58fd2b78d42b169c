// SPDX-License-Identifier: MIT
#include "prefs/PauseChoice.h"

#include <gtest/gtest.h>

#include "platform/fake/FakePlatform.h"

namespace {

class PauseChoiceTest : public testing::Test {
  protected:
    PauseChoice stored() { return storedPauseChoice(m_platform.settings); }
    void put(const std::string& key, std::int64_t value) { m_platform.settings.put(key, value); }

    FakePlatform m_platform;
};

TEST_F(PauseChoiceTest, keepNoPausesUntilSomethingElseIsStored) {
    EXPECT_EQ(stored(), PauseChoice());
    EXPECT_EQ(stored().kind, PauseRecording::never);
}

TEST_F(PauseChoiceTest, comeBackAsTheyWereStored) {
    for (const PauseRecording kind :
         {PauseRecording::asTyped, PauseRecording::atMost, PauseRecording::never}) {
        const PauseChoice choice{.kind = kind, .limit = 2500};
        storePauseChoice(m_platform.settings, choice);
        EXPECT_EQ(stored(), choice);
    }
    EXPECT_EQ(m_platform.settings.integer("recordPauses"), 0);
    EXPECT_EQ(m_platform.settings.integer("recordPausesLimit"), 2500);
}

TEST_F(PauseChoiceTest, areAsAtFirstWhereWhatIsStoredMakesNoSense) {
    for (const std::int64_t number : {-1, 3, 1 << 16}) {
        put("recordPauses", number);
        EXPECT_EQ(stored().kind, PauseRecording::never) << number;
    }
    for (const std::int64_t limit :
         {std::int64_t{0}, std::int64_t{99}, std::int64_t{60001}, std::int64_t{1} << 40U}) {
        put("recordPausesLimit", limit);
        EXPECT_EQ(stored().limit, 1000) << limit;
    }
}

}  // namespace
