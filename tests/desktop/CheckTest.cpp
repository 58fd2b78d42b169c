// SPDX-License-Identifier: MIT
//
// What `keyrill --check` tells of a session, beside what another program there sees of it.
#include <fstream>

#include "desktop/Assistant.h"
#include "desktop/DesktopTest.h"
#include "support/Programs.h"
#include "support/XServer.h"

namespace {

struct Report {
    int status = -1;
    std::string text;

    bool has(const std::string& line) const { return text.find(line + "\n") != std::string::npos; }
};

Report checkIn(const Desktop& desktop, const std::vector<std::string>& options = {}) {
    std::vector<std::string> command = {programs::keyrill, "--check"};
    command.insert(command.end(), options.begin(), options.end());
    Child child(command, desktop.options("report"));
    const int status = child.wait();
    return {status, contentOf(desktop.file("report"))};
}

/// Another program that holds Ctrl+Super+key.
class Holder {
  public:
    Holder(const std::string& display, std::uint8_t keycode) : m_hands(display) {
        const x11::XConnection& server = m_hands.connection();
        xcb_grab_key(server, 0, server.root(), XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_4, keycode,
                     XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        m_hands.finish();
    }

  private:
    Hands m_hands;
};

class CheckTest : public testing::Test {
  protected:
    CheckTest() {
        desktop.startBus();
        desktop.startWindowManager();
    }

    Desktop desktop;
};

TEST_F(CheckTest, aWholeDesktopIsRightInEveryLine) {
    desktop.startTray();
    desktop.setLayout({"-layout", "us,ru"});
    const Report report = checkIn(desktop);
    EXPECT_EQ(report.text, "ok  Session: x11, display " + desktop.display() +
                               "\n"
                               "ok  Parts: XInput 2.2, XKB, XTEST, RECORD\n"
                               "ok  Recording: by XInput\n"
                               "ok  Hot keys: by key grabs\n"
                               "ok  Pressing keys: by XTEST\n"
                               "ok  Typing text: by XTEST\n"
                               "ok  Clipboard: the X server's\n"
                               "ok  Overlay: above all windows\n"
                               "ok  Windows of other programs: by the window manager\n"
                               "ok  Tray: a tray that icons dock into\n"
                               "ok  Hot key of \"Start Recording\": Ctrl+Super+R, which nobody else has\n"
                               "ok  Hot key of \"Stop Recording\": Ctrl+Super+S, which nobody else has\n"
                               "ok  Hot key of \"Play\": Ctrl+Super+P, which nobody else has\n"
                               "ok  Hot key of \"Play Multiple Times\": Ctrl+Super+M, which nobody else has\n"
                               "ok  Keyboard: layout us, ru; no lock is on\n"
                               "ok  Session bus: there\n"
                               "ok  Keyrill: is not running\n");
    EXPECT_EQ(report.status, 0);
}

TEST_F(CheckTest, aTrayOnTheSessionBusCountsToo) {
    desktop.startTray(TrayKind::statusNotifier);
    Report report;
    ASSERT_TRUE(eventually([&] {
        report = checkIn(desktop);
        return report.text.find("ok  Tray: ") != std::string::npos;
    })) << report.text;
    EXPECT_EQ(report.status, 0) << report.text;
}

TEST_F(CheckTest, aMissingTrayIsToldWithWhatToDo) {
    const Report report = checkIn(desktop);
    EXPECT_EQ(report.status, 1);
    EXPECT_TRUE(
        report.has("no  Tray: There is none; a small window with the menu stands in for the icon.\n"
                   "        Add a tray to the desktop's panel. GNOME needs the extension \"AppIndicator "
                   "and KStatusNotifierItem Support\"."))
        << report.text;
}

TEST_F(CheckTest, aMissingBusIsTold) {
    desktop.setEnvironment("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    const Report report = checkIn(desktop);
    EXPECT_EQ(report.status, 1);
    EXPECT_NE(report.text.find("no  Session bus: There is none"), std::string::npos) << report.text;
}

TEST_F(CheckTest, whatAnotherProgramHoldsIsTold) {
    const Holder holder(desktop.display(), xkey::r);
    const Report report = checkIn(desktop);
    EXPECT_EQ(report.status, 1);
    EXPECT_TRUE(report.has(
        "no  Hot key of \"Start Recording\": Ctrl+Super+R cannot be used: another program holds it."))
        << report.text;
    EXPECT_TRUE(report.has("ok  Hot key of \"Play\": Ctrl+Super+P, which nobody else has")) << report.text;
}

TEST_F(CheckTest, aLetterAloneIsNoHotKeyAndGoesOnBeingTyped) {
    desktop.writeSettings("notFirstRun=true\nrecordCode=15\nrecordFlags=0\n");
    const Terminal terminal(desktop.display());
    const Keyrill keyrill(desktop);
    const Report report = checkIn(desktop);
    EXPECT_TRUE(
        report.has("no  Hot key of \"Start Recording\": R cannot be used: nobody could type it any more."))
        << report.text;
    desktop.press("r");
    EXPECT_EQ(terminal.typed(1), "r");
}

TEST_F(CheckTest, whatTheRunningProgramHoldsIsNoConflict) {
    const Holder holder(desktop.display(), xkey::s);
    const Keyrill keyrill(desktop);
    const Report report = checkIn(desktop);
    EXPECT_TRUE(report.has("ok  Hot key of \"Start Recording\": Ctrl+Super+R, which the running Keyrill has"))
        << report.text;
    EXPECT_TRUE(report.has(
        "no  Hot key of \"Stop Recording\": Ctrl+Super+S cannot be used: another program holds it."))
        << report.text;
    EXPECT_TRUE(report.has("ok  Keyrill: is running")) << report.text;
}

TEST_F(CheckTest, disturbsNobody) {
    const Keyrill keyrill(desktop);
    const Terminal terminal(desktop.display());
    desktop.press("ctrl+super+r");
    desktop.awaitWindow(title::overlay);
    desktop.press("a");
    const std::size_t windows = desktop.screen().windows().size();
    EXPECT_TRUE(checkIn(desktop).has("ok  Keyrill: is running"));
    EXPECT_EQ(desktop.screen().windows().size(), windows);
    desktop.press("b");
    desktop.press("ctrl+super+s");
    ASSERT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
    EXPECT_EQ(terminal.typed(2), "ab");
    desktop.press("ctrl+super+p");
    EXPECT_EQ(terminal.typed(4), "abab");
}

TEST_F(CheckTest, leavesASettingsFileThatCannotBeRead) {
    const std::string file = desktop.home() + "/.config/keyrill/keyrill.conf";
    std::ofstream(file) << "no key file";
    EXPECT_TRUE(checkIn(desktop).has("ok  Pressing keys: by XTEST"));
    EXPECT_EQ(contentOf(file), "no key file");
}

TEST_F(CheckTest, locksAndLayoutAreTold) {
    desktop.setLayout({"-layout", "fr"});
    desktop.press("Caps_Lock");
    EXPECT_TRUE(checkIn(desktop).has("ok  Keyboard: layout fr; on: Caps Lock, which macros do not mind"));
}

/// A server that lacks something.
class LackTest : public testing::Test {
  protected:
    static Report checkWithout(const std::string& extension) {
        const XServer server(
            {"Xvfb", "-screen", "0", "640x480x24", "-nolisten", "tcp", "-noreset", "-extension", extension});
        return checkIn(Desktop(server.display()));
    }
};

TEST_F(LackTest, withoutXtestNothingIsPlayed) {
    const Report report = checkWithout("XTEST");
    EXPECT_EQ(report.status, 1);
    // This server leaves both out together.
    EXPECT_TRUE(report.has("no  Parts: missing: XTEST, RECORD; there: XInput 2.2, XKB")) << report.text;
    EXPECT_TRUE(
        report.has("no  Pressing keys: The X server lacks the extension XTEST, which presses keys.\n"
                   "        Use a newer X server, or switch the extension on in its settings."))
        << report.text;
    EXPECT_TRUE(report.has("ok  Hot keys: by key grabs")) << report.text;
}

TEST_F(LackTest, withoutRecordHeldKeysCountOnce) {
    const Report report = checkWithout("RECORD");
    EXPECT_EQ(report.status, 1);
    EXPECT_TRUE(
        report.has("no  Recording: by XInput. The X server lacks the extension RECORD: a key that is "
                   "held is recorded once."))
        << report.text;
    EXPECT_TRUE(report.has("ok  Hot key of \"Play\": Ctrl+Super+P, which nobody else has")) << report.text;
}

TEST(StatusPanelTest, saysWhatTheCheckSaysAndCanBeCopied) {
    Desktop desktop;
    letAssistantsIn(desktop);
    desktop.startWindowManager();
    // Without a tray the menu is in a window.
    desktop.writeSettings("notFirstRun=true\n");
    Keyrill keyrill(desktop);
    const auto assist = [&](const std::vector<std::string>& words) {
        return desktop.run(assistantCall(keyrill.child(), words));
    };
    assist({"press", "What Works Here"});
    assist({"await", "Works: Recording: by XInput"});
    assist({"press", "Copy"});
    const std::string report = checkIn(desktop).text;
    EXPECT_NE(report, "");
    // Nobody may have anything to give yet.
    const auto copied = [&desktop] {
        Child xclip({"xclip", "-selection", "clipboard", "-out"}, desktop.options("copied"));
        xclip.wait();
        return contentOf(desktop.file("copied"));
    };
    // Each try is written behind the one before.
    EXPECT_TRUE(eventually([&] { return copied().ends_with(report); })) << copied() << report;
}

TEST(NoSessionTest, isToldAndCannotWork) {
    const TemporaryFolder folder;
    Child keyrill(
        {programs::keyrill, "--check"},
        {.environment = {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}, {"DBUS_SESSION_BUS_ADDRESS", "disabled:"}},
         .outputFile = folder.file("output")});
    EXPECT_EQ(keyrill.wait(), 1);
    EXPECT_TRUE(contentOf(folder.file("output"))
                    .starts_with("no  Session: The X server of display \"\" cannot be reached.\n"))
        << contentOf(folder.file("output"));
}

TEST(NoSessionTest, aWaylandSessionWithoutAnXServerIsToldWhatToDo) {
    const TemporaryFolder folder;
    Child keyrill({programs::keyrill, "--session=x11"},
                  {.environment = {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", "wayland-0"}},
                   .outputFile = folder.file("output")});
    EXPECT_EQ(keyrill.wait(), 1);
    EXPECT_EQ(
        contentOf(folder.file("output")),
        "keyrill: This is a Wayland session without an X server. Install Xwayland, or switch it on in the "
        "desktop's settings, and log in again; or choose an X11 session when you log in.\n");
}

TEST(NoSessionTest, anUnknownOptionCannotBeChecked) {
    const TemporaryFolder folder;
    Child keyrill({programs::keyrill, "--check", "--now"}, {.outputFile = folder.file("output")});
    EXPECT_EQ(keyrill.wait(), 2);
    EXPECT_EQ(contentOf(folder.file("output")),
              "keyrill: There is no option \"--now\". keyrill --help lists them.\n");
}

}  // namespace
