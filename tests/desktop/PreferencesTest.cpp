// SPDX-License-Identifier: MIT
#include <filesystem>
#include <map>
#include <sstream>

#include "desktop/DesktopTest.h"
#include "desktop/StatusMenuClicks.h"
#include "support/Programs.h"

namespace {

using Settings = std::map<std::string, std::string>;

/// The assignments in a file, by name.
Settings settingsIn(const std::string& file) {
    std::istringstream lines(contentOf(file));
    Settings found;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t sign = line.find('=');
        if (sign != std::string::npos) found[line.substr(0, sign)] = line.substr(sign + 1);
    }
    return found;
}

/// The program with a tray, its preferences opened by the user and closed by the window manager's key.
class PreferencesTest : public DesktopTest {
  protected:
    PreferencesTest() { desktop.startTray(); }

    void start() { keyrill.emplace(desktop); }
    void restart() {
        keyrill.reset();
        start();
    }
    void openPreferences() const {
        StatusMenuClicks menu(desktop);
        menu.open();
        // Above Quit and Help.
        menu.chooseByKeys(0, {"Up", "Up", "Up", "Return"});
        giveFocus(title::preferences);
    }
    /// The stored settings, by name.
    Settings settings() const { return settingsIn(desktop.home() + "/.config/keyrill/keyrill.conf"); }
    /// Expects all combinations as they are preset, and the switches of a first run.
    void expectThePresets() const {
        Settings combinations = settings();
        const Settings switches = {{"checkForUpdatesOnLaunch", "false"},
                                   {"launchOnLogin", "false"},
                                   {"recordModifierKeys", "false"},
                                   {"keepHistory", "false"},
                                   {"recordPauses", "0"},
                                   {"notFirstRun", "true"}};
        for (const auto& [name, value] : switches) EXPECT_EQ(combinations[name], value) << name;
        std::erase_if(combinations, [](const auto& setting) {
            return !setting.first.ends_with("Code") && !setting.first.ends_with("Flags");
        });
        EXPECT_EQ(combinations, settingsIn(programs::presets));
    }
    bool isStored(const std::string& name, const std::string& value) const {
        return eventually([&] { return settings()[name] == value; });
    }
    bool overlayComes() const {
        return eventually([this] { return desktop.shows(title::overlay); });
    }

    std::optional<Keyrill> keyrill;
};

TEST_F(PreferencesTest, theFirstRunGreetsAndLeadsToThePreferencesAndTheSecondDoesNot) {
    std::filesystem::remove_all(desktop.home() + "/.config");
    start();
    EXPECT_TRUE(desktop.isHotKeyTaken(xkey::r));
    close(title::welcome);
    EXPECT_TRUE(isStored("notFirstRun", "true"));
    EXPECT_EQ(settings().size(), 1U);
    close(title::preferences);
    expectThePresets();
    record();
    EXPECT_TRUE(overlayComes());

    restart();
    record();
    EXPECT_TRUE(overlayComes());
    EXPECT_FALSE(desktop.shows(title::welcome));
}

TEST_F(PreferencesTest, aStoredZeroIsAFirstRun) {
    desktop.writeSettings("notFirstRun=0\n");
    start();
    close(title::welcome);
    desktop.awaitWindow(title::preferences);
    EXPECT_TRUE(isStored("notFirstRun", "true"));
}

TEST_F(PreferencesTest, withoutPresetsTheFieldsBecomeTheHotKeysWhenThePanelCloses) {
    std::filesystem::remove_all(desktop.home() + "/.config");
    std::filesystem::create_directories(desktop.file("empty"));
    desktop.setEnvironment("XDG_CONFIG_DIRS", desktop.file("empty"));
    // No hot key tells that it is ready.
    const Child unset({programs::keyrill}, desktop.options("product.log"));
    desktop.awaitWindow(title::welcome);
    for (const std::uint8_t keycode : {xkey::r, xkey::s, xkey::p, xkey::m})
        EXPECT_FALSE(desktop.isHotKeyTaken(keycode));
    close(title::welcome);
    close(title::preferences);
    expectThePresets();
    for (const std::uint8_t keycode : {xkey::r, xkey::s, xkey::p, xkey::m})
        EXPECT_TRUE(desktop.isHotKeyTaken(keycode));
}

TEST_F(PreferencesTest, aClearedCombinationWorksUntilTheNextStart) {
    start();
    openPreferences();
    press("alt+s");
    press("BackSpace");
    EXPECT_TRUE(isStored("stopCode", "-1"));
    EXPECT_EQ(settings()["stopFlags"], "0");
    close(title::preferences);
    record();
    EXPECT_TRUE(overlayComes());
    stop();
    EXPECT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));

    restart();
    EXPECT_FALSE(desktop.isHotKeyTaken(xkey::s));
    EXPECT_TRUE(desktop.isHotKeyTaken(xkey::r));
}

TEST_F(PreferencesTest, aCombinationIsTakenFromTheShortcutThatHadIt) {
    start();
    openPreferences();
    press("alt+s");
    press("space");
    press("ctrl+super+r");
    EXPECT_TRUE(isStored("stopCode", "15"));
    EXPECT_EQ(settings()["stopFlags"], "1310720");
    EXPECT_EQ(settings()["recordCode"], "-1");
    close(title::preferences);
    // Until the next start the combination is known under both names, and the first keeps it.
    record();
    EXPECT_TRUE(overlayComes());
    record();
    EXPECT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));

    restart();
    EXPECT_TRUE(desktop.isHotKeyTaken(xkey::r));
    EXPECT_FALSE(desktop.isHotKeyTaken(xkey::s));
    record();
    // What comes after it has been worked off.
    press("ctrl+super+m");
    desktop.awaitWindow(title::prompt);
    EXPECT_FALSE(desktop.shows(title::overlay));
}

TEST_F(PreferencesTest, thePausesThatAreRecordedAreChosenByTheKeyboardAlone) {
    start();
    openPreferences();
    press("alt+a");
    press("End");
    press("Tab");
    press("ctrl+a");
    desktop.run({"xdotool", "type", "2.5"});
    close(title::preferences);
    EXPECT_TRUE(isStored("recordPausesLimit", "2500"));
    EXPECT_EQ(settings()["recordPauses"], "2");

    restart();
    openPreferences();
    press("alt+a");
    press("Home");
    close(title::preferences);
    EXPECT_TRUE(isStored("recordPauses", "0"));
    EXPECT_EQ(settings()["recordPausesLimit"], "2500");
}

TEST_F(PreferencesTest, whileTheyAreOpenHotKeysDoNothing) {
    const Terminal terminal(desktop.display());
    start();
    openPreferences();
    terminal.focus();
    record();
    press("x");
    EXPECT_EQ(terminal.typed(1), "x");
    close(title::preferences);
    // Had the first press begun a recording, this one would end it.
    record();
    EXPECT_TRUE(overlayComes());
}

}  // namespace
