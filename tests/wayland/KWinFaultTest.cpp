// SPDX-License-Identifier: MIT
//
// What keyrill plays under KWin by KDE's portal, while one of those dies that it depends on: judged by a
// native text field and by who shows messages.
#include <gtest/gtest.h>

#include <csignal>

#include "compositor/Field.h"
#include "wayland/KWinProgram.h"

namespace {

class KWinFaultTest : public KWinProgram, public testing::Test {
  protected:
    KWinFaultTest() : KWinProgram({.hasXServer = true}) {
        m_desktop =
            run({"/usr/bin/python3", KEYRILL_NOTIFICATIONS, bus(), put("commands", ""), "notifications"},
                "messages");
        if (!eventually([this] { return outputIn("messages").starts_with("ready"); },
                        std::chrono::seconds(20)))
            throw std::runtime_error("nobody shows messages: " + outputIn("messages"));
    }

    /// Plays until a capital stands there and Shift is held.
    void playHalf(const Field& field) {
        strokeHotKey(xkey::p);
        ASSERT_EQ(field.text("A"), "A") << log();
    }
    void expectShiftComesUp(const Field& field) {
        // Whoever releases it needs a moment; each stroke before types a capital.
        EXPECT_TRUE(eventually(
            [&] {
                hands().stroke({xkey::z});
                return field.text().ends_with("z");
            },
            std::chrono::seconds(60)))
            << field.text() << outputIn("portal.log") << outputIn("portal-kde.log");
    }
    void awaitPortal() {
        const auto isThere = [this] {
            return kwin().call({"-d", "org.freedesktop.DBus", "-o", "/org/freedesktop/DBus", "-m",
                                "org.freedesktop.DBus.NameHasOwner", "org.freedesktop.portal.Desktop"}) ==
                   "(true,)\n";
        };
        ASSERT_TRUE(eventually(isThere, std::chrono::seconds(60)));
    }
    void expectMessage() const {
        const auto says = [this](const char* words) {
            return outputIn("messages").find(words) != std::string::npos;
        };
        EXPECT_TRUE(eventually([&] {
            return says("'The macro was not played to its end', 'Line ") &&
                   says("The desktop no longer lets Keyrill press keys. Play again;");
        })) << outputIn("messages");
    }
    /// Where the small window is that stands in for a tray, as any X11 program finds it.
    std::string smallWindow() const {
        return outputOfUsers(
            {"xdotool", "search", "--onlyvisible", "--name", "^Keyrill$", "getwindowgeometry"});
    }

    static inline const std::string macro = "key down shift\nkeystroke \"a\"\ndelay 60\nkeystroke \"b\"";

  private:
    std::string bus() const { return compositor().environment().at("DBUS_SESSION_BUS_ADDRESS"); }

    std::unique_ptr<Child> m_desktop;
};

struct Loss {
    const char* name;
    KWin::Service service;
};

class KWinPortalDeathTest : public KWinFaultTest, public testing::WithParamInterface<Loss> {};

TEST_P(KWinPortalDeathTest, endsThePlayWithAMessageLeavesNoKeyDownAndTheNextPlayHasANewOne) {
    start(macro);
    const Field field(kwin(), Field::Toolkit::qt);
    playHalf(field);
    kwin().kill(GetParam().service);
    expectShiftComesUp(field);
    expectMessage();
    awaitRest();
    awaitPortal();
    const std::string before = field.text();
    strokeHotKey(xkey::p);
    EXPECT_EQ(field.text(before + "A"), before + "A") << log();
    EXPECT_TRUE(program().isRunning());
}

INSTANTIATE_TEST_SUITE_P(Parts, KWinPortalDeathTest,
                         testing::Values(Loss{"kde", KWin::Service::portalOfKde},
                                         Loss{"portal", KWin::Service::portal}),
                         [](const auto& loss) { return std::string(loss.param.name); });

/// Else the program would take the session for one of the X11 windows in it.
TEST_F(KWinFaultTest, aPortalThatIsOnlyBeingStartedIsWaitedFor) {
    kwin().putPortalBack(std::chrono::seconds(6));
    const std::string hasOwner =
        kwin().call({"-d", "org.freedesktop.DBus", "-o", "/org/freedesktop/DBus", "-m",
                     "org.freedesktop.DBus.NameHasOwner", "org.freedesktop.portal.Desktop"});
    ASSERT_EQ(hasOwner, "(false,)\n");
    start("keystroke \"abc\"");
    const Field field(kwin(), Field::Toolkit::qt);
    strokeHotKey(xkey::p);
    EXPECT_EQ(field.text("abc"), "abc") << smallWindow() << log();
}

/// Nobody can be told by the bus then: the small window says it.
TEST_F(KWinFaultTest, theEndOfTheSessionBusEndsThePlayAndTheProgramLives) {
    start("keystroke \"a\"\ndelay 60\nkeystroke \"b\"");
    const Field field(kwin(), Field::Toolkit::qt);
    strokeHotKey(xkey::p);
    ASSERT_EQ(field.text("a"), "a");
    const std::string before = smallWindow();
    ASSERT_NE(before.find("Geometry: "), std::string::npos) << before;
    ASSERT_EQ(smallWindow(), before);
    kwin().kill(KWin::Service::bus);
    EXPECT_TRUE(eventually([&] { return smallWindow() != before; }, std::chrono::seconds(20)))
        << before << log();
    hands().type("z");
    EXPECT_EQ(field.text("az"), "az");
    program().signal(SIGTERM);
    EXPECT_EQ(program().wait(), 0);
}

TEST_F(KWinFaultTest, theEndOfTheCompositorEndsTheProgramWithALineThatSaysWhy) {
    start(macro);
    const Field field(kwin(), Field::Toolkit::qt);
    playHalf(field);
    kwin().program().signal(SIGKILL);
    EXPECT_EQ(program().wait(), 1) << log();
    EXPECT_EQ(log(), "The X11 connection broke (error 1). Did the X11 server die?\n");
}

}  // namespace
