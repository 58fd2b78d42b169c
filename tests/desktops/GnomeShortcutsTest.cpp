// SPDX-License-Identifier: MIT
//
// Hot keys as entries in the settings of GNOME's user, judged by what other programs read there, and pressed
// by a stand-in for GNOME that starts what is bound.
#include "platform/desktops/GnomeShortcuts.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <fstream>
#include <ostream>

#include "desktops/Woken.h"
#include "linux/desktop/PrivateBus.h"

// NOLINTNEXTLINE(readability-identifier-naming): the name is the test framework's
void PrintTo(const HotKeyBinder::Event& event, std::ostream* stream) {
    *stream << "event " << static_cast<int>(event.kind) << " key " << int{event.keycode} << " modifiers "
            << event.modifiers << " refusal " << event.answer.refusal.value_or("-");
}

namespace {

using Event = HotKeyBinder::Event;
using Kind = Event::Kind;
using namespace std::chrono_literals;

constexpr KeyGrab controlR{.keycode = 27, .modifiers = 4};
constexpr KeyGrab controlP{.keycode = 33, .modifiers = 4};
constexpr KeyGrab unnamed{.keycode = 200, .modifiers = 4};

constexpr const char* schema = "org.gnome.settings-daemon.plugins.media-keys";
const std::string folder = "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/";

/// With settings in a file of their own, to which other programs write as well.
class GnomeShortcutsTest : public testing::Test {
  protected:
    // GSettings chooses once in a process where it looks, and in whose loop it notices changes.
    struct World {
        World() {
            setenv("GSETTINGS_BACKEND", "keyfile", 1);
            // A test that ends a process has another one, with the same settings.
            setenv("KEYRILL_TEST_SETTINGS", folder.path().c_str(), 0);
            setenv("XDG_CONFIG_HOME", std::getenv("KEYRILL_TEST_SETTINGS"), 1);
            std::ofstream(program()) << "#!/bin/sh\nfor word; do :; done\nexec gdbus call --address "
                                     << bus.address() << " --dest " << GnomeShortcuts::service
                                     << " --object-path " << GnomeShortcuts::object << " --method "
                                     << GnomeShortcuts::face << "." << GnomeShortcuts::member
                                     << " \"${word#--hot-key=}\"\n";
            chmod(program().c_str(), 0700);
        }
        /// Tells of a press as the program does that is started anew.
        std::string program() const { return folder.file("pro gram"); }

        TemporaryFolder folder;
        PrivateBus bus;
        SessionBus session{bus.address()};
    };
    static void SetUpTestSuite() { world() = std::make_unique<World>(); }
    static void TearDownTestSuite() { world().reset(); }
    GnomeShortcutsTest() { gsettings({"reset-recursively", schema}); }
    ~GnomeShortcutsTest() override { close(); }

    void open(bool isAllowed = true) {
        // What other programs have written meanwhile is read by now.
        settle();
        m_shortcuts = std::make_unique<GnomeShortcuts>(
            world()->session,
            GnomeShortcuts::Words{.acceleratorsOf = [this](const KeyGrab& grab) { return namesOf(grab); },
                                  .program = "'" + world()->program() + "'",
                                  .repeatDelay = [] { return 500ms; }});
        m_shortcuts->setConsent(isAllowed);
    }
    void close() { m_shortcuts.reset(); }
    std::optional<std::string> ask(const std::string& name, const KeyGrab& grab) {
        return m_shortcuts->grab(
            grab, {.id = 1, .name = name, .title = "It's " + name, .arguments = {"--action=" + name}});
    }
    /// The next event, as the loop of a program would find it: it looks when it is woken, and not before.
    Event next() {
        std::optional<Event> event = m_shortcuts->nextEvent();
        while (!event && isWoken(m_shortcuts->fileDescriptor())) event = m_shortcuts->nextEvent();
        EXPECT_TRUE(event.has_value());
        return event.value_or(Event{});
    }
    bool isQuiet() { return !m_shortcuts->nextEvent().has_value(); }
    /// Takes in all that is there to be taken in.
    static void settle() {
        const std::string mark = std::to_string(++marks());
        gsettings({"set", "org.gnome.desktop.wm.keybindings", "begin-move", "['<Hyper>F" + mark + "']"});
        const BusLoop::Context::Scope scope(world()->session.loop());
        GSettings* const settings = g_settings_new("org.gnome.desktop.wm.keybindings");
        EXPECT_TRUE(eventually([&] {
            world()->session.update();
            const GTexts texts(g_settings_get_strv(settings, "begin-move"));
            return texts.get()[0] != nullptr && texts.get()[0] == "<Hyper>F" + mark;
        }));
        g_object_unref(settings);
    }

    // What another program finds and does.
    static std::string gsettings(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "gsettings");
        std::string output = outputOf(arguments);
        while (output.ends_with('\n')) output.pop_back();
        return output;
    }
    static std::string at(const std::string& path, const std::string& key) {
        return gsettings({"get", std::string(schema) + ".custom-keybinding:" + folder + path, key});
    }
    static std::string list() { return gsettings({"get", schema, "custom-keybindings"}); }
    static bool lists(const std::string& paths) {
        return eventually([&] {
            world()->session.update();
            return list() == paths;
        });
    }
    static void putEntry(const std::string& path, const std::string& name, const std::string& command,
                         const std::string& binding) {
        const std::string entry = std::string(schema) + ".custom-keybinding:" + folder + path;
        gsettings({"set", entry, "name", name});
        gsettings({"set", entry, "command", command});
        gsettings({"set", entry, "binding", binding});
    }
    static void putList(const std::string& paths) { gsettings({"set", schema, "custom-keybindings", paths}); }
    static std::string storedText() { return contentOf(world()->folder.file("glib-2.0/settings/keyfile")); }
    /// Neither in the list nor beside it; the file keeps the names of empty sections.
    static bool holdsNothingOfOurs() {
        const std::string text = storedText();
        return text.find("--hot-key") == std::string::npos && text.find("Keyrill") == std::string::npos &&
               text.find("binding='<Control>r'") == std::string::npos;
    }
    static std::unique_ptr<Child> userPresses(const std::string& accelerator, int times = 1) {
        return std::make_unique<Child>(
            std::vector<std::string>{KEYRILL_MEDIA_KEYS, accelerator, std::to_string(times)});
    }

    GnomeShortcuts& shortcuts() { return *m_shortcuts; }
    static SessionBus& bus() { return world()->session; }
    static Event press(const KeyGrab& grab) { return {Kind::press, grab.keycode, grab.modifiers}; }
    static Event release(const KeyGrab& grab) { return {Kind::release, grab.keycode, grab.modifiers}; }

    /// Another layout is in force.
    bool isSwitched = false;

    static constexpr const char* ofRecord =
        "['/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/keyrill-record/']";
    static constexpr const char* none = "@as []";

  private:
    /// Of all tests: a bus and its settings take their time.
    static std::unique_ptr<World>& world() {
        static std::unique_ptr<World> world;
        return world;
    }
    static int& marks() {
        static int marks = 0;
        return marks;
    }
    /// As a keyboard has it whose R is 27 and whose P is 33, and whose R types a sign in another layout.
    std::vector<std::string> namesOf(const KeyGrab& grab) const {
        if (grab == controlP) return {"<Control>p"};
        if (grab != controlR) return {};
        return isSwitched ? std::vector<std::string>{"<Control>ssharp"}
                          : std::vector{std::string("<Control>r")};
    }

    std::unique_ptr<GnomeShortcuts> m_shortcuts;
};

TEST_F(GnomeShortcutsTest, whatIsAskedForStandsInTheUsersSettings) {
    open();
    EXPECT_EQ(ask("record", controlR), std::nullopt);
    ASSERT_TRUE(lists(ofRecord)) << list();
    EXPECT_EQ(at("keyrill-record/", "name"), "\"Keyrill: It's record\"");
    EXPECT_EQ(at("keyrill-record/", "binding"), "'<Control>r'");
    const std::string command = at("keyrill-record/", "command");
    EXPECT_TRUE(command.ends_with("/pro gram' '--action=record' '--hot-key=record'\"")) << command;
}

TEST_F(GnomeShortcutsTest, nothingIsWrittenWithoutConsent) {
    open(false);
    EXPECT_EQ(ask("record", controlR),
              "GNOME has hot keys only in your own settings, which Keyrill may not change.");
    settle();
    EXPECT_TRUE(isQuiet());
    EXPECT_EQ(list(), none);
    EXPECT_TRUE(holdsNothingOfOurs()) << storedText();
}

TEST_F(GnomeShortcutsTest, whatHasNoNameIsRefused) {
    open();
    EXPECT_EQ(ask("record", unnamed), "GNOME has no name for it");
}

TEST_F(GnomeShortcutsTest, aPressComesByTheProgramThatIsStartedAndItsReleaseIsGuessed) {
    open();
    ask("record", controlR);
    ASSERT_TRUE(lists(ofRecord));
    const auto user = userPresses("<Ctrl>r");
    EXPECT_EQ(next(), press(controlR));
    EXPECT_EQ(next(), release(controlR));
    EXPECT_EQ(user->wait(), 0);
    EXPECT_TRUE(isQuiet());
}

TEST_F(GnomeShortcutsTest, aHeldCombinationIsReleasedOnceAfterItsLastPress) {
    open();
    ask("record", controlR);
    ASSERT_TRUE(lists(ofRecord));
    const auto user = userPresses("<Ctrl>r", 12);
    for (int i = 0; i < 12; ++i) ASSERT_EQ(next(), press(controlR)) << i;
    EXPECT_EQ(next(), release(controlR));
    EXPECT_EQ(user->wait(), 0);
    EXPECT_TRUE(isQuiet());
}

TEST_F(GnomeShortcutsTest, anotherCombinationTakesThePlaceAtOnce) {
    open();
    ask("record", controlR);
    ASSERT_TRUE(lists(ofRecord));
    shortcuts().release(controlR);
    ask("record", controlP);
    EXPECT_TRUE(eventually([] {
        bus().update();
        return at("keyrill-record/", "binding") == "'<Control>p'";
    }));
    EXPECT_EQ(list(), ofRecord);
    EXPECT_EQ(userPresses("<Control>r")->wait(), 3);
    const auto user = userPresses("<Control>p");
    EXPECT_EQ(next(), press(controlP));
}

TEST_F(GnomeShortcutsTest, whatIsAskedForOnceMoreIsNotWrittenAgain) {
    open();
    ask("record", controlR);
    ASSERT_TRUE(lists(ofRecord));
    settle();
    int changes = 0;
    const auto count = [](GSettings*, const char*, void* number) { ++*static_cast<int*>(number); };
    GSettings* const settings = g_settings_new(schema);
    const gulong handler = g_signal_connect(settings, "changed", G_CALLBACK(+count), &changes);
    shortcuts().release(controlR);
    ask("record", controlR);
    settle();
    EXPECT_EQ(list(), ofRecord);
    // What has been told is on its way to this thread.
    while (g_main_context_iteration(nullptr, FALSE) != FALSE) {
    }
    EXPECT_EQ(changes, 0);
    g_signal_handler_disconnect(settings, handler);
    g_object_unref(settings);
}

TEST_F(GnomeShortcutsTest, whatIsGivenFreeIsTakenOut) {
    open();
    ask("record", controlR);
    ASSERT_TRUE(lists(ofRecord));
    shortcuts().release(controlR);
    EXPECT_TRUE(lists("@as []")) << list();
    EXPECT_TRUE(holdsNothingOfOurs()) << storedText();
}

TEST_F(GnomeShortcutsTest, atTheEndAllAreTakenOutAndTheUsersStay) {
    const std::string users = "['" + folder + "custom0/', '" + folder + "keyrill-mine/']";
    putEntry("custom0/", "Editor", "gedit", "<Control><Alt>e");
    putEntry("keyrill-mine/", "Mine", "keyrill --action=record", "<Control><Alt>k");
    putList(users);
    open();
    ask("record", controlR);
    ask("play", controlP);
    ASSERT_TRUE(lists("['" + folder + "custom0/', '" + folder + "keyrill-mine/', '" + folder +
                      "keyrill-play/', '" + folder + "keyrill-record/']"))
        << list();
    close();
    EXPECT_EQ(list(), users);
    EXPECT_TRUE(holdsNothingOfOurs()) << storedText();
    EXPECT_EQ(at("custom0/", "name") + at("custom0/", "command") + at("custom0/", "binding"),
              "'Editor''gedit''<Control><Alt>e'");
    EXPECT_EQ(at("keyrill-mine/", "command"), "'keyrill --action=record'");
}

TEST_F(GnomeShortcutsTest, allAreTakenOutWhereTheToolkitEndsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            open();
            ask("record", controlR);
            std::exit(lists(ofRecord) ? 7 : 1);
        },
        testing::ExitedWithCode(7), "");
    EXPECT_EQ(list(), none);
    EXPECT_TRUE(holdsNothingOfOurs()) << storedText();
}

TEST_F(GnomeShortcutsTest, whatAKilledProgramHasLeftIsTakenOutAtTheNextStart) {
    putEntry("keyrill-record/", "Keyrill: Record", "keyrill --action=record --hot-key=record", "<Control>r");
    putEntry("keyrill-macro-1/", "Keyrill: 1", "keyrill --play /1 --hot-key=macro-1", "<Control>1");
    putEntry("custom0/", "Editor", "gedit", "<Control><Alt>e");
    putList("['" + folder + "keyrill-record/', '" + folder + "custom0/', '" + folder + "keyrill-macro-1/']");
    open(false);
    EXPECT_EQ(list(), "['" + folder + "custom0/']");
    EXPECT_TRUE(holdsNothingOfOurs()) << storedText();
    EXPECT_EQ(at("custom0/", "command"), "'gedit'");
}

TEST_F(GnomeShortcutsTest, anEntryOfTheUsersUnderOurNameStaysHis) {
    putEntry("keyrill-record/", "Mine", "keyrill --action=record", "<Control><Alt>k");
    putList(ofRecord);
    open();
    EXPECT_EQ(ask("record", controlR), "your settings of GNOME have another entry in its place");
    close();
    EXPECT_EQ(list(), ofRecord);
    EXPECT_EQ(at("keyrill-record/", "binding"), "'<Control><Alt>k'");
}

TEST_F(GnomeShortcutsTest, entriesThatAreNoPathsDoNoHarmAndStay) {
    const std::string odd = "['custom0', '" + folder + "keyrill-//', '" + folder + "keyrill-a/b/', '/']";
    putList(odd);
    open();
    ask("record", controlR);
    ASSERT_TRUE(eventually([] {
        bus().update();
        return list().find("keyrill-record/") != std::string::npos;
    }));
    close();
    EXPECT_EQ(list(), odd);
}

TEST_F(GnomeShortcutsTest, whoHasTheCombinationIsNamed) {
    putEntry("custom0/", "Editor", "gedit", "<Primary>R");
    putList("['" + folder + "custom0/']");
    gsettings({"set", "org.gnome.desktop.wm.keybindings", "show-desktop", "['<Super>d', '<Ctrl>p']"});
    open();
    EXPECT_EQ(ask("record", controlR), "your own shortcut “Editor” in GNOME's settings has it");
    EXPECT_EQ(ask("play", controlP), "GNOME has it for “Hide all normal windows”");
    gsettings({"reset", "org.gnome.desktop.wm.keybindings", "show-desktop"});
    EXPECT_EQ(list(), "['" + folder + "custom0/']");
}

TEST_F(GnomeShortcutsTest, whatIsGivenFreeByOthersIsAskedForAgain) {
    gsettings({"set", schema, "home", "['<Control>r']"});
    open();
    EXPECT_EQ(ask("record", controlR), "GNOME has it for “Home folder”");
    gsettings({"reset", schema, "home"});
    EXPECT_EQ(next(), Event{.kind = Kind::reload});
    EXPECT_EQ(ask("record", controlR), std::nullopt);
}

TEST_F(GnomeShortcutsTest, theUserMayTakeOneOut) {
    open();
    ask("record", controlR);
    ask("play", controlP);
    ASSERT_TRUE(lists("['" + folder + "keyrill-play/', '" + folder + "keyrill-record/']"));
    settle();
    putList("['" + folder + "keyrill-play/']");
    EXPECT_EQ(next(), (Event{Kind::answer,
                             controlR.keycode,
                             controlR.modifiers,
                             {.refusal = "it has been taken out of GNOME's settings"}}));
    EXPECT_EQ(list(), "['" + folder + "keyrill-play/']");
}

TEST_F(GnomeShortcutsTest, inAnotherLayoutItIsTheSameKeyUnderAnotherName) {
    open();
    ask("record", controlR);
    ASSERT_TRUE(lists(ofRecord));
    shortcuts().layoutChanged();
    settle();
    EXPECT_TRUE(isQuiet());
    isSwitched = true;
    shortcuts().layoutChanged();
    EXPECT_EQ(next(), Event{.kind = Kind::reload});
    shortcuts().release(controlR);
    ask("record", controlR);
    EXPECT_TRUE(eventually([] {
        bus().update();
        return at("keyrill-record/", "binding") == "'<Control>ssharp'";
    }));
}

TEST_F(GnomeShortcutsTest, anotherDesktopIsNotGnome) {
    EXPECT_FALSE(GnomeShortcuts::isThere(bus()));
    EXPECT_TRUE(GnomeKeyBindings::areKnown(bus()));
}

}  // namespace
