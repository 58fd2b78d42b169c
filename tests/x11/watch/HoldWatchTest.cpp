// SPDX-License-Identifier: MIT
#include "platform/x11/watch/HoldWatch.h"

#include <gtest/gtest.h>

#include "display/CoreClient.h"
#include "support/XServer.h"

namespace {

using namespace std::chrono_literals;

class HoldWatchTest : public testing::Test {
  protected:
    HoldWatchTest() { watch->follow(true); }

    /// What explains that the keyboard is held, at that time after the start; empty if nothing does.
    std::string explanation(std::chrono::milliseconds after) {
        const HoldSigns signs = watch->look(Clock::Time() + 10s + after);
        EXPECT_TRUE(signs.keyboard);
        return std::string(signs.popup ? "popup" : "") + (signs.cover ? "cover" : "");
    }
    void seeNobodyHoldIt() { EXPECT_FALSE(watch->look(Clock::Time() + 10s).keyboard); }

    XServer server;
    x11::XConnection asker = x11::XConnection::open(server.display()).value();
    std::unique_ptr<x11::HoldWatch> watch = x11::HoldWatch::open(server.display(), asker).value();
    CoreClient other{server.display()};
};

TEST_F(HoldWatchTest, aMenuMayBeThereASecondBefore) {
    other.showMenu();
    seeNobodyHoldIt();
    other.grabKeyboard();
    EXPECT_EQ(explanation(1000ms), "popup");
}

TEST_F(HoldWatchTest, aWindowThatHasBeenThereForLongerIsNoMenu) {
    other.showMenu();
    seeNobodyHoldIt();
    other.grabKeyboard();
    EXPECT_EQ(explanation(1001ms), "");
}

TEST_F(HoldWatchTest, aMenuMayComeHalfASecondBehind) {
    other.grabKeyboard();
    EXPECT_EQ(explanation(0ms), "");
    other.showMenu();
    EXPECT_EQ(explanation(500ms), "popup");
    EXPECT_EQ(explanation(10s), "popup") << "once it is one";
}

TEST_F(HoldWatchTest, aWindowThatComesLaterIsNoMenu) {
    other.grabKeyboard();
    EXPECT_EQ(explanation(0ms), "");
    other.showMenu();
    EXPECT_EQ(explanation(501ms), "");
}

TEST_F(HoldWatchTest, aWindowThatIsAsLargeAsTheScreenCoversIt) {
    other.showUnmanaged({0, 0, 1280, 800});
    other.grabKeyboard();
    EXPECT_EQ(explanation(0ms), "cover");
}

/// Lockers have one for each monitor.
TEST_F(HoldWatchTest, windowsSideBySideCoverItTogether) {
    other.showUnmanaged({0, 0, 640, 800});
    other.showUnmanaged({640, 0, 640, 800});
    other.grabKeyboard();
    EXPECT_NE(explanation(0ms).find("cover"), std::string::npos);
}

TEST_F(HoldWatchTest, oneForEachOfThreeMonitorsCoversItAsSoonAsTwoHaveCome) {
    other.showUnmanaged({0, 0, 426, 800});
    other.grabKeyboard();
    EXPECT_EQ(explanation(0ms), "popup");
    other.showUnmanaged({426, 0, 426, 800});
    EXPECT_NE(explanation(1ms).find("cover"), std::string::npos);
}

TEST_F(HoldWatchTest, aMenuAndItsSubmenuAsHighAsTheScreenCoverNothing) {
    other.showUnmanaged({0, 0, 250, 800});
    other.showUnmanaged({250, 0, 350, 800});
    other.grabKeyboard();
    EXPECT_EQ(explanation(0ms), "popup");
}

}  // namespace
