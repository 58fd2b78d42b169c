// SPDX-License-Identifier: MIT
//
// keyrill under a compositor that has virtual keyboards, layers and toplevels, and nothing of a desktop's:
// its user binds `keyrill --action=...` to keys himself. Judged by native programs and by pictures of the
// screen.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <optional>

#include "cli/FieldScript.h"
#include "compositor/Foot.h"
#include "compositor/Phoc.h"
#include "compositor/ScreenPicture.h"
#include "compositor/WaylandHands.h"
#include "support/Keys.h"
#include "wayland/AccessWorld.h"
#include "wayland/ScreenLooks.h"

namespace {

class PhocTest : public testing::Test {
  protected:
    PhocTest() {
        const std::string presets =
            m_phoc.user().put("presets/keyrill/keyrill.conf", contentOf(KEYRILL_PRESETS));
        m_presets = std::filesystem::path(presets).parent_path().parent_path();
        // Nobody is greeted.
        m_phoc.user().put("home/.config/keyrill/keyrill.conf", "[Settings]\nnotFirstRun=true\n");
        for (const char* command : {"serve", "allow"}) m_access.tell(command);
    }

    std::unique_ptr<Child> start(const std::vector<std::string>& command, const std::string& log) {
        return m_phoc.user().start(
            command, log, {{"XDG_CONFIG_DIRS", m_presets}, {"DBUS_SYSTEM_BUS_ADDRESS", m_access.bus()}});
    }
    /// With a macro of these lines.
    void startProgram(const std::string& lines) {
        const std::string macro = m_phoc.user().put(
            "home/macro.keyrill", "tell application \"System Events\"\n" + lines + "\nend tell\n");
        m_program = start({KEYRILL_PRODUCT, macro}, "output");
        // Without a tray a small window appears, once the program is up.
        ASSERT_TRUE(eventually([this] { return m_phoc.shows("Keyrill"); }, std::chrono::seconds(30)))
            << m_phoc.user().log("output");
        m_person = std::make_unique<ShownHands>(m_access, m_hands, m_program->pid());
    }
    /// As the user's own binding would.
    void act(const std::string& action) {
        EXPECT_EQ(start({KEYRILL_PRODUCT, "--action=" + action}, "action")->wait(), 0)
            << m_phoc.user().log("action");
    }
    void play(const std::string& script) {
        const std::string file = m_phoc.user().put("script", script);
        EXPECT_EQ(start({KEYRILL_SCRIPT_TOOL, "run", file}, "script.log")->wait(), 0)
            << m_phoc.user().log("script.log");
    }
    /// The screen, once it has looked the same for half a second: nothing fades any more.
    ScreenPicture settled() const {
        std::optional<ScreenPicture> last;
        EXPECT_TRUE(eventually([&] {
            last.emplace(phoc());
            return !eventually([&] { return ScreenPicture(phoc()).differsFrom(*last).has_value(); },
                               std::chrono::milliseconds(500));
        })) << "it keeps changing";
        return *last;
    }
    bool isKeyboardOpen() { return m_access.isOpenFor(m_program->pid()); }

    const Phoc& phoc() const { return m_phoc; }
    Hands& hands() { return m_hands; }
    ShownHands& person() { return *m_person; }

  private:
    AccessWorld m_access;
    Phoc m_phoc;
    std::string m_presets;
    WaylandHands m_hands{m_phoc.socket()};
    std::unique_ptr<Child> m_program;
    std::unique_ptr<ShownHands> m_person;
};

TEST_F(PhocTest, aMacroIsRecordedStoppedPlayedAndPlayedThreeTimesByTheUsersOwnBindings) {
    startProgram("keystroke \"x\"");
    const Foot foot(phoc());
    const ScreenPicture before = settled();
    act("record");
    ASSERT_TRUE(eventually([this] { return isKeyboardOpen(); }));
    EXPECT_EQ(changedArea([this] { return ScreenPicture(phoc()); }, before),
              (ScreenArea{1024 - 10 - 420, 30, 420, 60}));
    const std::string text = "The quick brown Fox No. 1638 jumps.";
    person().type(text);
    ASSERT_EQ(foot.typed(text.size()), text);
    act("stop");
    ASSERT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    act("play");
    ASSERT_EQ(foot.typed(2 * text.size()), text + text);
    const ScreenPicture rested = settled();
    act("multiple");
    const auto prompt = changedArea([this] { return ScreenPicture(phoc()); }, rested);
    ASSERT_TRUE(prompt);
    EXPECT_LT(prompt->width, 600) << *prompt;
    EXPECT_EQ(prompt->x, (1024 - prompt->width) / 2);
    EXPECT_EQ(prompt->y, (640 - prompt->height) / 3);
    person().type("3");
    person().stroke({xkey::returnKey});
    EXPECT_EQ(foot.typed(5 * text.size()), text + text + text + text + text);
    // Keyrill's small window takes the keys from nobody.
    EXPECT_FALSE(eventually([&] { return !phoc().hasFocus(foot.program()); }, std::chrono::seconds(1)));
    hands().stroke({xkey::z});
    EXPECT_EQ(foot.typed(5 * text.size() + 1), text + text + text + text + text + "z");
}

TEST_F(PhocTest, aScriptTypesAnyCharacter) {
    const Foot foot(phoc());
    play(fieldscript::source);
    EXPECT_EQ(foot.typed(fieldscript::inTerminal().size()), fieldscript::inTerminal());
}

TEST_F(PhocTest, aScriptBringsAProgramToTheFront) {
    const Foot first(phoc());
    const Foot second(phoc());
    play("activate application \"" + first.program() +
         "\"\ntell application \"System Events\"\nkeystroke \"one\"\nend tell");
    EXPECT_EQ(first.typed(3), "one");
    EXPECT_EQ(second.typed(), "");
}

TEST_F(PhocTest, aScriptHasTheClipboard) {
    play("set the clipboard to \"Grüße, 日本\"");
    EXPECT_EQ(outputOf({"wl-paste", "--no-newline"}, phoc().environment()), "Grüße, 日本");
}

TEST_F(PhocTest, theCheckOfTheSessionTellsWhatHasBeenSeenToWork) {
    start({KEYRILL_PRODUCT, "--check"}, "report")->wait();
    const std::string report = phoc().user().log("report");
    for (const char* line : {"ok  Recording: ", "no  Hot keys: ", "ok  Pressing keys: ", "ok  Typing text: ",
                             "ok  Clipboard: ", "ok  Overlay: ", "ok  Windows of other programs: "})
        EXPECT_NE(report.find(std::string("\n") + line), std::string::npos) << line << " in\n" << report;
}

}  // namespace
