// SPDX-License-Identifier: MIT
#include <algorithm>
#include <filesystem>

#include "x11/watch/X11Test.h"

namespace {

class RepeatTest : public X11Test {
  protected:
    void setRate(const std::string& delay, const std::string& perSecond) {
        outputOf({"xset", "r", "rate", delay, perSecond}, {{"DISPLAY", world().display()}});
    }

    static long countOf(const Log& log, const std::string& line) {
        return std::count(log.begin(), log.end(), line);
    }
};

TEST_F(RepeatTest, aHeldKeyGivesAsManyRepeatsAsTheFocusedApplicationGot) {
    CoreClient application(world().display());
    for (const auto& [delay, perSecond] :
         {std::pair("150", "50"), {"20", "200"}, {"250", "30"}, {"10", "100"}}) {
        setRate(delay, perSecond);
        const int before = application.repeats(xkey::a);
        hands().press(xkey::a);
        hands().finish();
        ASSERT_TRUE(loopUntil([&] { return application.repeats(xkey::a) >= before + 7; }));
        hands().release(xkey::a);
        const Log log = delivered();
        EXPECT_EQ(countOf(log, "down 0 a 0x0"), 1) << delay;
        EXPECT_EQ(countOf(log, "repeat 0 a 0x0"), application.repeats(xkey::a) - before) << delay;
        EXPECT_EQ(log.back(), "up 0") << delay;
    }
}

TEST_F(RepeatTest, repeatsAreDeliveredWhileTheKeyIsHeld) {
    CoreClient application(world().display());
    hands().press(xkey::a);
    hands().finish();
    EXPECT_TRUE(loopUntil([&] { return count("repeat 0 a 0x0") >= 3; }));
}

TEST_F(RepeatTest, xtermGetsAsManyLettersAsWereDelivered) {
    const TemporaryFolder folder;
    const std::string typed = folder.file("typed");
    const Child xterm(
        {"xterm", "-e", "sh", "-c", "stty -icanon -echo; touch '" + typed + "'; exec cat >> '" + typed + "'"},
        {.environment = {{"DISPLAY", world().display()}}});
    ASSERT_TRUE(eventually([&] { return std::filesystem::exists(typed); }));
    outputOf({"xdotool", "search", "--sync", "--onlyvisible", "--class", "xterm", "windowfocus", "--sync"},
             {{"DISPLAY", world().display()}});
    setRate("60", "120");
    hands().press(xkey::b);
    hands().finish();
    ASSERT_TRUE(loopUntil([&] { return contentOf(typed).size() >= 20; }));
    hands().release(xkey::b);
    hands().tap(xkey::a);
    hands().finish();
    ASSERT_TRUE(eventually([&] { return contentOf(typed).ends_with("a"); }));
    Log log = delivered();
    const long letters = std::count_if(log.begin(), log.end(), [](const std::string& line) {
        return line == "down 11 b 0x0" || line == "repeat 11 b 0x0";
    });
    const std::string content = contentOf(typed);
    EXPECT_EQ(letters, std::count(content.begin(), content.end(), 'b'));
}

TEST_F(RepeatTest, repeatsComeBeforeTheHotKeyThatIsPressedWhileTheKeyIsHeld) {
    ASSERT_EQ(request(2, "stop", 1).status, HotKeyStatus::registered);
    CoreClient application(world().display());
    hands().press(xkey::a);
    hands().finish();
    ASSERT_TRUE(eventually([&] { return application.repeats(xkey::a) >= 5; }));
    int repeatsAtPress = -1;
    onLine = [&](const std::string& line) {
        if (line == "pressed 2") repeatsAtPress = count("repeat 0 a 0x0");
    };
    hands().stroke({xkey::control, xkey::super, xkey::s});
    hands().release(xkey::a);
    const Log log = delivered();
    EXPECT_EQ(repeatsAtPress, application.repeats(xkey::a));
    EXPECT_EQ(countOf(log, "repeat 0 a 0x0"), application.repeats(xkey::a));
    EXPECT_EQ(countOf(log, "pressed 2"), 1);
}

TEST_F(RepeatTest, repeatsKeepTheirPlaceBeforeAKeyThatIsPressedMeanwhile) {
    CoreClient application(world().display());
    hands().press(xkey::a);
    hands().finish();
    ASSERT_TRUE(eventually([&] { return application.repeats(xkey::a) >= 3; }));
    hands().press(xkey::shift);
    hands().tap(xkey::b);
    hands().release(xkey::shift);
    hands().release(xkey::a);
    const Log log = delivered();
    Log received;
    const auto& events = application.events();
    for (std::size_t i = 0; i < events.size(); ++i) {
        if (!events[i].press || events[i].keycode == xkey::shift) continue;
        const bool again = i > 0 && !events[i - 1].press && events[i - 1].time == events[i].time &&
                           events[i - 1].keycode == events[i].keycode;
        const std::string letter = events[i].keycode == xkey::a ? "0 a 0x0" : "11 B 0x200";
        received.push_back((again ? "repeat " : "down ") + letter);
    }
    Log presses = log;
    std::erase_if(presses, [](const std::string& line) {
        return !line.starts_with("down") && !line.starts_with("repeat");
    });
    EXPECT_EQ(presses, received);
}

TEST_F(RepeatTest, aRepeatUnderCapsLockIsShapedLikeThePress) {
    hands().lock(xmask::capsLock, true);
    CoreClient application(world().display());
    hands().press(xkey::a);
    hands().finish();
    ASSERT_TRUE(eventually([&] { return application.repeats(xkey::a) >= 1; }));
    hands().release(xkey::a);
    const Log log = delivered();
    const Log start(log.begin(), log.begin() + 6);
    EXPECT_EQ(start, (Log{"mask 0x400", "down 0 A 0x400", "mask 0x0", "mask 0x400", "repeat 0 A 0x400",
                          "mask 0x0"}));
}

TEST_F(RepeatTest, withoutRepeatsInTheServerThereAreNone) {
    outputOf({"xset", "r", "off"}, {{"DISPLAY", world().display()}});
    CoreClient application(world().display());
    hands().press(xkey::a);
    hands().finish();
    ASSERT_TRUE(eventually([&] { return application.presses(xkey::a) == 1; }));
    hands().release(xkey::a);
    EXPECT_EQ(delivered(), (Log{"down 0 a 0x0", "up 0"}));
}

}  // namespace
