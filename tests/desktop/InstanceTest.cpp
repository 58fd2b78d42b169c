// SPDX-License-Identifier: MIT
#include <signal.h>

#include <algorithm>
#include <fstream>
#include <memory>

#include "desktop/Answer.h"
#include "desktop/DesktopTest.h"
#include "support/Programs.h"

namespace {

/// Several starts of the program in one session, with a session bus or without one.
class InstanceTest : public testing::TestWithParam<bool> {
  protected:
    InstanceTest() {
        if (GetParam()) desktop.startBus();
        desktop.startWindowManager();
    }

    std::unique_ptr<Child> start(const std::vector<std::string>& arguments = {}) {
        std::vector<std::string> command = {programs::keyrill};
        command.insert(command.end(), arguments.begin(), arguments.end());
        return std::make_unique<Child>(command, desktop.options("start" + std::to_string(++m_starts)));
    }
    void awaitReady() {
        ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    }

    Desktop desktop;

  private:
    int m_starts = 0;
};

TEST_P(InstanceTest, eightStartsAtOnceEndInOneProgram) {
    std::vector<std::unique_ptr<Child>> starts(8);
    std::generate(starts.begin(), starts.end(), [this] { return start(); });
    const auto running = [&starts] {
        return std::count_if(starts.begin(), starts.end(),
                             [](const std::unique_ptr<Child>& program) { return program->isRunning(); });
    };
    ASSERT_TRUE(eventually([&running] { return running() == 1; }));
    awaitReady();
    EXPECT_EQ(running(), 1);
    for (const auto& program : starts) {
        if (program->isRunning()) continue;
        EXPECT_EQ(program->wait(), 0);
    }
}

TEST_P(InstanceTest, aSecondStartWithoutAFileEndsAndLeavesTheFirstAtWork) {
    const auto first = start();
    awaitReady();
    EXPECT_EQ(start()->wait(std::chrono::seconds(5)), 0);
    EXPECT_TRUE(first->isRunning());
    EXPECT_TRUE(desktop.isHotKeyTaken(xkey::m));
}

TEST_P(InstanceTest, theNextStartAfterAKilledProgramRuns) {
    const auto first = start();
    awaitReady();
    first->signal(SIGKILL);
    first->wait();
    const auto second = start();
    awaitReady();
    EXPECT_TRUE(second->isRunning());
}

INSTANTIATE_TEST_SUITE_P(Buses, InstanceTest, testing::Bool(),
                         [](const auto& bus) { return std::string(bus.param ? "withABus" : "withoutABus"); });

class HandOverTest : public DesktopTest {
  protected:
    HandOverTest() {
        desktop.startBus();
        std::ofstream(file) << "tell application \"System Events\" to keystroke \"loaded\"\n";
    }

    int startAndWait(const std::vector<std::string>& arguments) {
        std::vector<std::string> command = {programs::keyrill};
        command.insert(command.end(), arguments.begin(), arguments.end());
        Child program(command, desktop.options("second"));
        return program.wait(std::chrono::seconds(5));
    }

    // A name that has to be escaped on the way.
    const std::string file = desktop.file("a b%20#\xC3\xA9.keyrill");
};

TEST_F(HandOverTest, aSecondStartsFileIsLoadedAndNotPlayed) {
    Child first({programs::keyrill}, desktop.options("first"));
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    const Terminal terminal(desktop.display());
    EXPECT_EQ(startAndWait({file}), 0);
    press("x");
    EXPECT_EQ(terminal.typed(1), "x");
    play();
    EXPECT_EQ(terminal.typed(7), "xloaded");
    EXPECT_TRUE(first.isRunning());
}

TEST_F(HandOverTest, afterItsBusHasDiedAndComeBackThereIsStillOneWhichTakesFiles) {
    Child first({programs::keyrill}, desktop.options("first"));
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    const Terminal terminal(desktop.display());
    desktop.bus().daemon().signal(SIGKILL);
    desktop.bus().daemon().wait();
    desktop.bus().restart();
    // At once, and once the first has found it.
    EXPECT_NE(startAndWait({}), -1);
    EXPECT_TRUE(eventually([this] { return startAndWait({file}) == 0; }));
    play();
    EXPECT_EQ(terminal.typed(6), "loaded");
    EXPECT_TRUE(first.isRunning());
}

TEST_F(HandOverTest, anArgumentsFileIsLoadedAndNotPlayed) {
    Child first({programs::keyrill, file}, desktop.options("first"));
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    const Terminal terminal(desktop.display());
    press("x");
    EXPECT_EQ(terminal.typed(1), "x");
    play();
    EXPECT_EQ(terminal.typed(7), "xloaded");
}

/// Owns the name of the program on the session bus, and has nothing of what that is asked for.
constexpr const char* impostor = R"py(
from gi.repository import Gio, GLib
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
bus.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "RequestName",
              GLib.Variant("(su)", ("example.orlen.Keyrill", 0)), None, Gio.DBusCallFlags.NONE, -1)
print("ready", flush=True)
GLib.MainLoop().run()
)py";

TEST_F(HandOverTest, aStartBesideAnotherProgramOfItsNameSaysSo) {
    const Child other({"/usr/bin/python3", "-c", impostor}, desktop.options("other"));
    ASSERT_TRUE(eventually([this] { return contentOf(desktop.file("other")) == "ready\n"; }))
        << contentOf(desktop.file("other"));
    EXPECT_EQ(startAndWait({file}), 1);
    const std::string said = contentOf(desktop.file("second"));
    EXPECT_TRUE(said.starts_with("keyrill: Another program has Keyrill's name on the session bus")) << said;
}

TEST_F(HandOverTest, whileAMacroPlaysAFileIsTakenForLater) {
    const std::string slow = desktop.file("slow.keyrill");
    std::ofstream(slow) << "tell application \"System Events\"\n"
                           "keystroke \"begun\"\ndelay 1000\nend tell\n";
    Child first({programs::keyrill, slow}, desktop.options("first"));
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    const Terminal terminal(desktop.display());
    play();
    ASSERT_EQ(terminal.typed(5), "begun");
    EXPECT_EQ(startAndWait({file}), 0) << contentOf(desktop.file("second"));
    EXPECT_EQ(startAndWait({}), 0) << contentOf(desktop.file("second"));
    stop();
    // It takes them once the run is over.
    const Answer idle{2, "keyrill: Nothing is being recorded or played.\n"};
    ASSERT_TRUE(eventually([&] { return answerOf(desktop, {programs::keyrill, "--action=stop"}) == idle; }));
    play();
    EXPECT_EQ(terminal.typed(11), "begunloaded");
}

TEST_F(HandOverTest, aSecondStartShowsTheControlWindowBesideATray) {
    desktop.startTray();
    Child first({programs::keyrill}, desktop.options("first"));
    ASSERT_TRUE(eventually([this] { return desktop.tray().icon().has_value(); }));
    EXPECT_FALSE(desktop.shows(title::control));
    EXPECT_EQ(startAndWait({}), 0);
    desktop.awaitWindow(title::control);
}

}  // namespace
