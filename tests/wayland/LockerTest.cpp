// SPDX-License-Identifier: MIT
//
// A screen locker that the user starts by hand while a macro plays.
#include <signal.h>

#include "wayland/SwayScreenTest.h"

namespace {

class WaylandLockerTest : public SwayScreenTest {
  protected:
    WaylandLockerTest() : SwayScreenTest({}, "repeat 1000 times\nkeystroke \"a\"\ndelay 0.02\nend repeat") {}

    std::string file(const std::string& name) const {
        return sway().environment().at("XDG_RUNTIME_DIR") + "/" + name;
    }
    /// Until the locker has painted the whole screen, with the keyboard.
    void lock(const ScreenPicture& before) {
        // Sway takes dollars for its own variables.
        std::ofstream(file("lock")) << "echo $$ > " << file("locker") << "\nexec swaylock --color 203040\n";
        sway().message({"exec", "sh " + file("lock")});
        ASSERT_TRUE(eventually([this] { return !hasWindowKeyboard(); }));
        // Keys that come to it change its ring.
        ASSERT_EQ(changedArea(before, "HEADLESS-1", std::chrono::seconds(1)),
                  (ScreenArea{0, 0, before.width(), before.height()}));
    }
    /// As the user's password does.
    void unlock() {
        const auto locker = std::stol(contentOf(file("locker")));
        kill(static_cast<pid_t>(locker), SIGUSR1);
        ASSERT_TRUE(eventually([this] { return hasWindowKeyboard(); }));
    }
};

TEST_F(WaylandLockerTest, itEndsThePlay) {
    const Foot foot(sway());
    const auto program = startProgram();
    foot.focus();
    strokeHotKey(xkey::p);
    foot.typed(5);
    lock(pictureWithTerminalsAt({{512, 320}}));
    // A locker shows each key that it gets by a ring; 25 strokes of a play would come in this time.
    const ScreenPicture locked(sway());
    EXPECT_FALSE(eventually([&] { return ScreenPicture(sway()).differsFrom(locked).has_value(); },
                            std::chrono::milliseconds(500)));
    unlock();
    const std::string typed = foot.typed();
    EXPECT_FALSE(eventually([&] { return foot.typed() != typed; }, std::chrono::milliseconds(500)));
    strokeHotKey(xkey::p);
    foot.typed(typed.size() + 5);
}

}  // namespace
