// SPDX-License-Identifier: MIT
//
// Somebody has the program's name on the session bus and does not answer: whoever calls the program is told
// so, and soon.
#include <signal.h>

#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "desktop/Answer.h"
#include "desktop/DesktopTest.h"
#include "support/Programs.h"

namespace {

/// Takes the name. Then it stands still, or takes each call, prints its method and answers none.
constexpr const char* owner = R"py(
import os, signal, sys
from gi.repository import Gio, GLib
bus = Gio.bus_get_sync(Gio.BusType.SESSION)
interface = """<node><interface name="org.freedesktop.Application">
<method name="Activate"><arg type="a{sv}" direction="in"/></method>
<method name="Open"><arg type="as" direction="in"/><arg type="a{sv}" direction="in"/></method>
</interface></node>"""
taken = []
def take(*call):
    taken.append(call)
    print(call[4], flush=True)
bus.register_object("/example/orlen/Keyrill", Gio.DBusNodeInfo.new_for_xml(interface).interfaces[0],
                    take, None, None)
bus.call_sync("org.freedesktop.DBus", "/", "org.freedesktop.DBus", "RequestName",
              GLib.Variant("(su)", ("example.orlen.Keyrill", 0)), None, Gio.DBusCallFlags.NONE, -1)
print("ready", flush=True)
if sys.argv[1] == "still":
    os.kill(os.getpid(), signal.SIGSTOP)
GLib.MainLoop().run()
)py";

using Arguments = std::vector<std::string>;

class SilentOwnerTest : public DesktopTest {
  protected:
    SilentOwnerTest() { desktop.startBus(); }

    /// Each of these calls is, all at once.
    void expectTold(pid_t silent, const std::vector<Arguments>& calls) const {
        std::vector<std::unique_ptr<Child>> children;
        for (std::size_t i = 0; i < calls.size(); ++i) {
            Arguments command = {programs::keyrill};
            command.insert(command.end(), calls[i].begin(), calls[i].end());
            children.push_back(std::make_unique<Child>(command, desktop.options(nameOf(i))));
        }
        for (std::size_t i = 0; i < calls.size(); ++i) {
            EXPECT_EQ(children[i]->wait(std::chrono::seconds(9)), 1) << i;
            EXPECT_EQ(contentOf(desktop.options(nameOf(i)).outputFile),
                      "keyrill: Process " + std::to_string(silent) +
                          ", which has Keyrill's name on the session bus, does not answer. End it and start "
                          "Keyrill again.\n")
                << i;
        }
    }
    /// The program whose output is the file "other".
    bool hasPrinted(const std::string& text) const {
        return eventually([&] { return contentOf(desktop.file("other")) == text; });
    }
    /// The start that was asked has become the program, which also has the name.
    void expectFollowed() const {
        EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }))
            << contentOf(desktop.file("keyrill"));
        EXPECT_EQ(answerOf(desktop, {programs::keyrill, "--action=stop"}),
                  (Answer{2, "keyrill: Nothing is being recorded or played.\n"}));
    }
    void expectToldBeside(const std::string& kind, const std::vector<Arguments>& calls) const {
        const Child other({"/usr/bin/python3", "-c", owner, kind}, desktop.options("other"));
        ASSERT_TRUE(hasPrinted("ready\n")) << contentOf(desktop.file("other"));
        expectTold(other.pid(), calls);
        EXPECT_FALSE(desktop.isHotKeyTaken(xkey::m));
        other.signal(SIGKILL);
    }

    const std::vector<Arguments> starts{{}, {desktop.file("none.keyrill")}};
    const std::vector<Arguments> all{
        {}, {desktop.file("none.keyrill")}, {"--action=record"}, {"--play", "Greeting"}, {"--show"}};

  private:
    static std::string nameOf(std::size_t call) { return "call" + std::to_string(call); }
};

TEST_F(SilentOwnerTest, isToldOfWhenItStandsStill) { expectToldBeside("still", all); }

TEST_F(SilentOwnerTest, isToldOfWhenItIsTheProgramItself) {
    Child keyrill({programs::keyrill}, desktop.options("keyrill"));
    ASSERT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    keyrill.signal(SIGSTOP);
    expectTold(keyrill.pid(), all);
    keyrill.signal(SIGCONT);
}

/// Somebody else's program is ended while a start asks it.
TEST_F(SilentOwnerTest, isFollowedByAStartWhenItGoes) {
    const Child other({"/usr/bin/python3", "-c", owner, "mute"}, desktop.options("other"));
    ASSERT_TRUE(hasPrinted("ready\n")) << contentOf(desktop.file("other"));
    const Child keyrill({programs::keyrill}, desktop.options("keyrill"));
    ASSERT_TRUE(hasPrinted("ready\nActivate\n")) << contentOf(desktop.file("other"));
    EXPECT_FALSE(desktop.isHotKeyTaken(xkey::m));
    other.signal(SIGKILL);
    expectFollowed();
}

/// The same where it takes no call; what the start does meanwhile cannot be seen, so it gets its time.
TEST_F(SilentOwnerTest, isFollowedByAStartWhenItGoesWhileItStandsStill) {
    const Child other({"/usr/bin/python3", "-c", owner, "still"}, desktop.options("other"));
    ASSERT_TRUE(hasPrinted("ready\n")) << contentOf(desktop.file("other"));
    const Child keyrill({programs::keyrill}, desktop.options("keyrill"));
    std::this_thread::sleep_for(std::chrono::seconds(1));
    EXPECT_FALSE(desktop.isHotKeyTaken(xkey::m));
    other.signal(SIGKILL);
    expectFollowed();
}

/// Those that ask a program which reads its macro folder wait longer for it.
TEST_F(SilentOwnerTest, isToldOfWhenItTakesAStartAndDoesNotAnswer) { expectToldBeside("mute", starts); }

}  // namespace
