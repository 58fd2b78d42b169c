// SPDX-License-Identifier: MIT
//
// Programs that take the keyboard for themselves while a macro is recorded or played: lockers that tell no
// desktop of it, and menus and games, which lose nothing.
#include <signal.h>
#include <sys/stat.h>

#include <array>
#include <fstream>
#include <functional>
#include <optional>

#include "desktop/DesktopTest.h"
#include "display/CoreClient.h"
#include "display/NestedServers.h"
#include "display/Typist.h"
#include "support/Editor.h"
#include "support/Programs.h"

namespace {

constexpr std::uint8_t e = 26;
constexpr std::uint8_t t = 28;
constexpr std::uint8_t f = 41;
constexpr std::uint8_t c = 54;
constexpr std::uint8_t down = 116;

/// The program that people get, and a person at a real keyboard.
class HolderTest : public testing::Test {
  protected:
    HolderTest() {
        // One press is one key.
        outputOf({"xset", "r", "off"}, {{"DISPLAY", servers.outerDisplay()}});
        desktop.startWindowManager();
        terminal.emplace(desktop.display());
    }

    void start(const std::string& script = {}) {
        std::vector<std::string> command{programs::keyrill};
        if (!script.empty()) {
            std::ofstream(desktop.file("macro.keyrill")) << script;
            command.push_back(desktop.file("macro.keyrill"));
        }
        product.emplace(command, desktop.options("product.log"));
        ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    }
    void command(std::uint8_t key) const { typist.stroke({xkey::control, xkey::super, key}); }
    void record() const {
        command(xkey::r);
        desktop.awaitWindow(title::overlay);
    }
    void stop() const {
        command(xkey::s);
        ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    }
    void awaitGrab(bool grabbed) const {
        ASSERT_TRUE(eventually([&] { return desktop.screen().isKeyboardGrabbed() == grabbed; }));
    }
    /// What is painted at the overlay's place, as a number.
    std::string pictureOf(const ScreenWindow& window) const {
        const std::string place = std::to_string(window.width) + "x" + std::to_string(window.height) + "+" +
                                  std::to_string(window.x) + "+" + std::to_string(window.y);
        return desktop.run({"sh", "-c", "import -window root -crop " + place + " +repage rgb:- | md5sum"});
    }

    NestedServers servers;
    Desktop desktop{servers.display()};
    Typist typist{servers, Typist::Gap(80)};
    std::optional<Terminal> terminal;
    std::optional<Child> product;
};

struct Locker {
    const char* name;
    /// Locks at once; a line of sh.
    const char* command;
    /// It starts only where the user has a password, so that it gets files of passwords of its own.
    bool needsPassword = false;
    /// It locks for nobody who is root.
    bool isForUsers = false;
};
constexpr Locker i3lock{.name = "i3lock", .command = "exec i3lock -n"};
#ifdef KEYRILL_EVERY_LOCKER
constexpr Locker xtrlock{.name = "xtrlock", .command = "exec xtrlock", .needsPassword = true};
constexpr std::array lockers{
    i3lock, xtrlock, Locker{.name = "slock", .command = "exec slock", .needsPassword = true},
    Locker{.name = "xscreensaver",
           .command = "xscreensaver --no-splash & until xscreensaver-command --lock; do :; done; wait",
           .needsPassword = true,
           .isForUsers = true}};
#else
constexpr std::array lockers{i3lock};
#endif

/// Real lockers, for a user whose password is "secret".
class LockersTest : public HolderTest, public testing::WithParamInterface<Locker> {
  protected:
    LockersTest() {
        const std::string hash = outputOf({"openssl", "passwd", "-6", "secret"});
        std::ofstream passwords(desktop.file("passwd"));
        std::ofstream shadow(desktop.file("shadow"));
        for (const char* user : {"root:x:0:0", "user:x:1000:1000", "nobody:x:65534:65534"}) {
            const std::string entry = user;
            passwords << entry << "::/:/bin/sh\n";
            shadow << entry.substr(0, entry.find(':')) << ":" << hash.substr(0, hash.find('\n'))
                   << ":19000:0:99999:7:::\n";
        }
        std::ofstream(desktop.home() + "/.xscreensaver") << "mode: blank\nfade: False\nunfade: False\n";
    }

    void lock() {
        locker.emplace(lockCommand(), desktop.options("locker.log"));
        awaitGrab(true);
    }
    std::vector<std::string> lockCommand() const {
        if (!GetParam().needsPassword) return {"sh", "-c", GetParam().command};
        const std::string asUser =
            GetParam().isForUsers ? "unshare -U --map-user=1000 --map-group=1000 " : "";
        const std::string own = "mount --bind " + desktop.file("passwd") + " /etc/passwd && mount --bind " +
                                desktop.file("shadow") + " /etc/shadow && exec " + asUser + "sh -c '" +
                                GetParam().command + "'";
        // Whatever it starts ends with it.
        return {"unshare", "-Urmpf", "--kill-child", "sh", "-c", own};
    }
    void typePassword() const {
        for (const std::uint8_t key : {xkey::s, e, c, xkey::r, e, t, xkey::returnKey}) typist.tap(key);
    }
    void endLocker() {
        locker->signal(SIGKILL);
        locker->wait();
        awaitGrab(false);
    }

    std::optional<Child> locker;
};

TEST_P(LockersTest, whatIsTypedIntoOneIsNotRecorded) {
    start();
    record();
    typist.tap(xkey::a);
    typist.tap(xkey::b);
    lock();
    typePassword();
    if (locker->isRunning()) endLocker();
    awaitGrab(false);
    typist.hold(std::chrono::milliseconds(1000));
    typist.tap(xkey::z);
    stop();
    EXPECT_EQ(terminal->typed(3), "abz");
    command(xkey::p);
    EXPECT_EQ(terminal->typed(6), "abzabz");
    typist.tap(xkey::period);
    EXPECT_EQ(terminal->typed(7), "abzabz.");
}

TEST_P(LockersTest, aMacroThatPlaysEnds) {
    start("repeat 2000 times\ntell application \"System Events\" to key code 0\ndelay 0.01\nend repeat\n");
    command(xkey::p);
    terminal->typed(20);
    lock();
    typist.hold(std::chrono::milliseconds(1000));
    endLocker();
    typist.tap(xkey::period);
    ASSERT_TRUE(eventually([this] { return terminal->typed().ends_with('.'); }));
    typist.hold(std::chrono::milliseconds(1000));
    EXPECT_TRUE(terminal->typed().ends_with('.'));
    EXPECT_EQ(desktop.keysDown(), std::vector<std::string>());
}

std::string nameOfLocker(const testing::TestParamInfo<Locker>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Locker, LockersTest, testing::ValuesIn(lockers), nameOfLocker);

/// One that holds keyboard and mouse as lockers do, and tells what it got.
TEST_F(HolderTest, aMacroThatPlaysTypesNothingIntoALocker) {
    start("repeat 2000 times\ntell application \"System Events\" to key code 0\ndelay 0.01\nend repeat\n");
    CoreClient locker(desktop.display());
    terminal->focus();
    ASSERT_TRUE(eventually([this] { return terminal->hasFocus(); }));
    command(xkey::p);
    terminal->typed(20);
    locker.grabPointer();
    locker.grabKeyboard();
    typist.hold(std::chrono::milliseconds(1000));
    // One may have been on its way.
    EXPECT_LE(locker.presses(xkey::a), 1);
    locker.ungrabKeyboard();
    typist.tap(xkey::period);
    ASSERT_TRUE(eventually([this] { return terminal->typed().ends_with('.'); }));
    typist.hold(std::chrono::milliseconds(500));
    EXPECT_TRUE(terminal->typed().ends_with('.'));
}

/// As desktops say it on the session bus.
TEST_F(HolderTest, aMacroThatPlaysEndsWhenTheDesktopLocksTheScreen) {
    const std::string commands = desktop.file("commands");
    ASSERT_EQ(mkfifo(commands.c_str(), S_IRUSR | S_IWUSR), 0);
    desktop.startBus();
    const Child saver({programs::busStandIn, desktop.bus().address(), commands, "saver"},
                      desktop.options("saver.log"));
    ASSERT_TRUE(eventually([this] { return contentOf(desktop.file("saver.log")) == "ready\n"; }));
    start("repeat 2000 times\ntell application \"System Events\" to key code 0\ndelay 0.01\nend repeat\n");
    command(xkey::p);
    terminal->typed(20);
    std::ofstream(commands) << "active 1\n" << std::flush;
    EXPECT_TRUE(eventually([this] {
        const std::size_t before = terminal->typed().size();
        typist.hold(std::chrono::milliseconds(500));
        return terminal->typed().size() == before;
    }));
    EXPECT_LT(terminal->typed().size(), 1500U);
}

#ifdef KEYRILL_EVERY_LOCKER
/// The overlay stays to be seen under a locker that leaves the screen as it is.
class HeldOverlayTest : public LockersTest {};

TEST_P(HeldOverlayTest, saysThatNothingIsRecorded) {
    start();
    record();
    typist.tap(xkey::a);
    const ScreenWindow overlay = desktop.awaitWindow(title::overlay);
    ASSERT_TRUE(eventually([this] { return terminal->typed() == "a"; }));
    std::string open;
    // It fades in.
    ASSERT_TRUE(eventually([&] { return std::exchange(open, pictureOf(overlay)) == pictureOf(overlay); }));
    lock();
    EXPECT_TRUE(eventually([&] { return pictureOf(overlay) != open; }));
    endLocker();
    EXPECT_TRUE(eventually([&] { return pictureOf(overlay) == open; }));
}

INSTANTIATE_TEST_SUITE_P(Locker, HeldOverlayTest, testing::Values(xtrlock), nameOfLocker);

#endif

/// Keys of which another program gets some, recorded and played into a terminal, where all can be seen.
class ForAMomentTest : public HolderTest {
  protected:
    /// `deed` records them; `typed` types the same, without a full stop at the end.
    void expectAllRecorded(const std::function<void()>& deed, const std::function<void()>& typed) {
        // What the terminal makes of these keys when they are typed into it.
        typed();
        typist.tap(xkey::period);
        ASSERT_TRUE(eventually([this] { return terminal->typed().ends_with('.'); }));
        const std::string expected = terminal->typed();
        deed();
        terminal->focus();
        ASSERT_TRUE(eventually([this] { return terminal->hasFocus(); }));
        command(xkey::p);
        EXPECT_TRUE(eventually([&] { return terminal->typed() == expected + expected; }))
            << terminal->typed() << " in place of twice " << expected;
    }
};

class MenusTest : public ForAMomentTest, public testing::WithParamInterface<Editor::Toolkit> {};

TEST_P(MenusTest, loseNoKey) {
    const auto useMenu = [this](bool isThere) {
        typist.tap(xkey::a);
        typist.stroke({xkey::alt, f});
        if (isThere) awaitGrab(true);
        // Longer than a locker is let pass for a menu.
        if (isThere) typist.hold(std::chrono::milliseconds(3000));
        typist.tap(down);
        typist.tap(down);
        typist.tap(xkey::escape);
        if (isThere && desktop.screen().isKeyboardGrabbed()) awaitGrab(false);
        typist.tap(xkey::b);
    };
    start();
    expectAllRecorded(
        [&] {
            const Editor editor(desktop.display(), GetParam());
            record();
            useMenu(true);
            typist.tap(xkey::period);
            stop();
        },
        [&] { useMenu(false); });
}

INSTANTIATE_TEST_SUITE_P(Toolkit, MenusTest, testing::Values(Editor::Toolkit::gtk, Editor::Toolkit::qt),
                         [](const auto& toolkit) {
                             return toolkit.param == Editor::Toolkit::gtk ? "gtk" : "qt";
                         });

TEST_F(ForAMomentTest, aMenuOfItsOwnKindLosesNoKey) {
    start();
    expectAllRecorded(
        [&] {
            std::ofstream(desktop.file("choices")) << "none\n";
            const CoreClient other(desktop.display());
            record();
            Child menu({"sh", "-c", "exec dmenu < " + desktop.file("choices")}, desktop.options("dmenu.log"));
            awaitGrab(true);
            typist.hold(std::chrono::milliseconds(3000));
            for (const std::uint8_t key : {xkey::s, e, c, xkey::returnKey}) typist.tap(key);
            EXPECT_EQ(menu.wait(), 0);
            EXPECT_EQ(contentOf(desktop.file("dmenu.log")), "sec\n");
            typist.tap(xkey::period);
            stop();
        },
        [&] {
            for (const std::uint8_t key : {xkey::s, e, c, xkey::returnKey}) typist.tap(key);
        });
}

TEST_F(ForAMomentTest, aGameThatHasTheKeyboardForAMomentLosesNoKey) {
    start();
    expectAllRecorded(
        [&] {
            CoreClient game(desktop.display());
            record();
            typist.tap(xkey::a);
            game.grabKeyboard();
            for (const std::uint8_t key : {xkey::s, e, c}) typist.tap(key);
            game.ungrabKeyboard();
            typist.tap(xkey::b);
            typist.tap(xkey::period);
            stop();
        },
        [&] {
            for (const std::uint8_t key : {xkey::a, xkey::s, e, c, xkey::b}) typist.tap(key);
        });
}

TEST_F(ForAMomentTest, aHotKeyOfAnotherProgramLosesNoKey) {
    start();
    expectAllRecorded(
        [&] {
            const CoreClient other(desktop.display());
            outputOf({"xset", "r", "off"}, {{"DISPLAY", desktop.display()}});
            ASSERT_TRUE(other.grabKey(xkey::f5, 0));
            record();
            typist.press({xkey::f5});
            typist.hold(std::chrono::milliseconds(2500));
            typist.release({xkey::f5});
            typist.rollOver({xkey::f5, xkey::a});
            typist.tap(xkey::period);
            stop();
        },
        [&] {
            for (const std::uint8_t key : {xkey::f5, xkey::f5, xkey::a}) typist.tap(key);
        });
}

}  // namespace
