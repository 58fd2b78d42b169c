// SPDX-License-Identifier: MIT
//
// A screen locker that the user starts by hand while a macro plays, or while one is recorded.
#include "compositor/Swaylock.h"
#include "wayland/AccessWorld.h"
#include "wayland/SwayProgram.h"
#include "wayland/SwayScreenTest.h"

namespace {

using WaylandLockerTest = SwayScreenTest;

TEST_F(WaylandLockerTest, itEndsThePlay) {
    const Foot foot(sway());
    start("repeat 1000 times\nkeystroke \"a\"\ndelay 0.02\nend repeat");
    foot.focus();
    strokeHotKey(xkey::p);
    foot.typed(5);
    const ScreenPicture before = pictureWithTerminalsAt({{512, 320}});
    Swaylock locker(sway());
    // Keys that come to it change its ring.
    ASSERT_EQ(changedArea(before, "HEADLESS-1", std::chrono::seconds(1)),
              (ScreenArea{0, 0, before.width(), before.height()}));
    // A locker shows each key that it gets by a ring; 25 strokes of a play would come in this time.
    const ScreenPicture locked(sway());
    // None so far.
    for (const int x : {512 - 50, 512 + 50}) EXPECT_EQ(locked.at(x, 320), Swaylock::colour);
    EXPECT_FALSE(eventually([&] { return ScreenPicture(sway()).differsFrom(locked).has_value(); },
                            std::chrono::milliseconds(500)));
    locker.open();
    const std::string typed = foot.typed();
    EXPECT_FALSE(eventually([&] { return foot.typed() != typed; }, std::chrono::milliseconds(500)));
    strokeHotKey(xkey::p);
    foot.typed(typed.size() + 5);
}

class LockedRecordingTest : public SwayProgramTest {
  protected:
    LockedRecordingTest() {
        for (const char* command : {"serve", "allow"}) m_access.tell(command);
        setSystemBus(m_access.bus());
        start("keystroke \"x\"");
        m_person = std::make_unique<ShownHands>(m_access, hands(), program().pid());
    }

    ShownHands& person() { return *m_person; }
    void press(std::uint8_t hotKey) { m_person->stroke({xkey::control, xkey::super, hotKey}); }
    bool isKeyboardOpen() { return m_access.isOpenFor(program().pid()); }

  private:
    AccessWorld m_access;
    std::unique_ptr<ShownHands> m_person;
};

TEST_F(LockedRecordingTest, whatIsTypedIntoItIsNotRecorded) {
    const Foot foot(sway());
    press(xkey::r);
    ASSERT_TRUE(eventually([this] { return isKeyboardOpen(); }));
    person().type("ab");
    ASSERT_EQ(foot.typed(2), "ab");
    Swaylock locker(sway());
    // It is told with the first key that is pressed there.
    person().type("secret");
    locker.open();
    person().type("cd");
    ASSERT_EQ(foot.typed(4), "abcd");
    press(xkey::s);
    ASSERT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    press(xkey::p);
    EXPECT_EQ(foot.typed(8), "abcdabcd");
}

}  // namespace
