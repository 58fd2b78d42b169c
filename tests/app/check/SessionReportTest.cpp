// SPDX-License-Identifier: MIT
#include "app/check/SessionReport.h"

#include <gtest/gtest.h>

#include <set>

#include "app/check/CapabilityWords.h"

namespace {

constexpr CapabilityState fully(Means means) { return {Extent::fully, means, Lack::nothing}; }

SessionFacts goodSession() {
    SessionFacts facts;
    facts.kind = "x11";
    facts.capabilities = {.recording = fully(Means::xInput),
                          .hotKeys = fully(Means::xGrab),
                          .pressing = fully(Means::xTest),
                          .text = fully(Means::xTest),
                          .clipboard = fully(Means::xSelection),
                          .overlay = fully(Means::xWindow),
                          .windows = fully(Means::windowManager),
                          .tray = fully(Means::dockingTray)};
    facts.details = {.display = ":0",
                     .parts = {{"XInput 2.2", true}, {"XTEST", true}},
                     .layouts = {"us", "ru"},
                     .locksOn = {}};
    facts.hasSessionBus = true;
    facts.isRunning = true;
    facts.hotKeys = {{0, "Ctrl+Super+R", HotKeyFinding::ours},
                     {1, "Ctrl+Super+S", HotKeyFinding::free},
                     {2, "", HotKeyFinding::unset}};
    return facts;
}

std::string textOf(const SessionFacts& facts) { return reportText(sessionReport(facts)); }
int statusOf(const SessionFacts& facts) { return reportStatus(sessionReport(facts)); }
bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

TEST(SessionReportTest, tellsLineByLineWhatWorks) {
    EXPECT_EQ(textOf(goodSession()),
              "ok  Session: x11, display :0\n"
              "ok  Parts: XInput 2.2, XTEST\n"
              "ok  Recording: by XInput\n"
              "ok  Hot keys: by key grabs\n"
              "ok  Pressing keys: by XTEST\n"
              "ok  Typing text: by XTEST\n"
              "ok  Clipboard: the X server's\n"
              "ok  Overlay: above all windows\n"
              "ok  Windows of other programs: by the window manager\n"
              "ok  Tray: a tray that icons dock into\n"
              "ok  Hot key of \"Start Recording\": Ctrl+Super+R, which the running Keyrill has\n"
              "ok  Hot key of \"Stop Recording\": Ctrl+Super+S, which nobody else has\n"
              "ok  Hot key of \"Play\": none is chosen\n"
              "ok  Keyboard: layout us, ru; no lock is on\n"
              "ok  Session bus: there\n"
              "ok  Keyrill: is running\n");
    EXPECT_EQ(statusOf(goodSession()), 0);
}

TEST(SessionReportTest, whatFailsComesWithItsAdvice) {
    SessionFacts facts = goodSession();
    facts.details.parts[1].isThere = false;
    facts.capabilities.pressing = {Extent::nothing, Means::none, Lack::xTest};
    const std::string text = textOf(facts);
    EXPECT_TRUE(contains(text, "no  Parts: missing: XTEST; there: XInput 2.2\n")) << text;
    EXPECT_TRUE(contains(text,
                         "no  Pressing keys: The X server lacks the extension XTEST, which presses keys.\n"
                         "        Use a newer X server, or switch the extension on in its settings.\n"))
        << text;
    EXPECT_EQ(statusOf(facts), 1);
}

TEST(SessionReportTest, whatWorksInPartTellsHowAndWhatIsLost) {
    SessionFacts facts = goodSession();
    facts.capabilities.recording = {Extent::partly, Means::xInput, Lack::nativeWindows};
    const std::string text = textOf(facts);
    EXPECT_TRUE(contains(text,
                         "no  Recording: by XInput. Only with the windows of X11 programs: this is a Wayland "
                         "session.\n        Choose an X11 session when you log in.\n"))
        << text;
    EXPECT_EQ(statusOf(facts), 1);
}

TEST(SessionReportTest, isReadAsItIsPrinted) {
    SessionFacts facts = goodSession();
    facts.hasSessionBus = false;
    facts.capabilities.tray = {Extent::nothing, Means::none, Lack::tray};
    facts.hotKeys[1].finding = HotKeyFinding::uncertain;
    const auto report = sessionReport(facts);
    EXPECT_EQ(reportOf(reportText(report)), report);
    EXPECT_EQ(reportOf("a warning\n" + reportText(report)), report);
    EXPECT_TRUE(reportOf("").empty());
    EXPECT_TRUE(reportOf("        advice without a line\n").empty());
}

TEST(SessionReportTest, aCombinationThatAnotherProgramHoldsFails) {
    SessionFacts facts = goodSession();
    facts.hotKeys[0].finding = HotKeyFinding::taken;
    facts.hotKeys[0].why = {"Ctrl+Super+R cannot be used: another program holds it.", "Choose another."};
    EXPECT_TRUE(contains(textOf(facts),
                         "no  Hot key of \"Start Recording\": Ctrl+Super+R cannot be used: another program "
                         "holds it.\n        Choose another.\n"));
    EXPECT_EQ(statusOf(facts), 1);
}

TEST(SessionReportTest, whatCannotBeToldHasAStatusOfItsOwn) {
    SessionFacts facts = goodSession();
    facts.hotKeys[0].finding = HotKeyFinding::uncertain;
    EXPECT_TRUE(contains(textOf(facts),
                         "?   Hot key of \"Start Recording\": Ctrl+Super+R; the session does "
                         "not tell who has it\n"));
    EXPECT_EQ(statusOf(facts), 2);
    facts.hasSessionBus = false;
    EXPECT_EQ(statusOf(facts), 1);
}

TEST(SessionReportTest, locksAreTold) {
    SessionFacts facts = goodSession();
    facts.details.layouts = {};
    facts.details.locksOn = {"Caps Lock", "Num Lock"};
    EXPECT_TRUE(contains(textOf(facts),
                         "ok  Keyboard: layout unknown; on: Caps Lock, Num Lock, which macros "
                         "do not mind\n"));
    EXPECT_EQ(statusOf(facts), 0);
}

TEST(SessionReportTest, withoutASessionOnlyThatIsTold) {
    SessionFacts facts;
    facts.noSession = Error{"There is no display.", "Log in."};
    EXPECT_EQ(textOf(facts),
              "no  Session: There is no display.\n"
              "        Log in.\n"
              "no  Session bus: There is none: \"keyrill --action\", notifications and many trays need it, "
              "and a locked screen is not noticed at once.\n"
              "        Start Keyrill from within the desktop session.\n"
              "ok  Keyrill: is not running\n");
    EXPECT_EQ(statusOf(facts), 1);
}

TEST(CapabilityWordsTest, eachMeansAndEachLackHasWordsOfItsOwn) {
    std::set<std::string> words;
    for (const Means means : allMeans) {
        if (means == Means::none) continue;
        EXPECT_TRUE(words.insert(meansWords(means).toStdString()).second);
    }
    for (const Lack lack : allLacks) {
        if (lack == Lack::nothing) continue;
        EXPECT_TRUE(words.insert(lackWords(lack).loss.toStdString()).second);
        EXPECT_FALSE(lackWords(lack).advice.isEmpty());
    }
    EXPECT_FALSE(words.contains(""));
}

}  // namespace
