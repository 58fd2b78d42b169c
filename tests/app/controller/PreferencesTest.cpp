// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <map>
#include <utility>

#include "app/AppTest.h"
#include "app/panels/PreferencesPanel.h"
#include "platform/Features.h"

namespace {

constexpr KeyCombo commandR{.flags = 0x100000, .code = 15};
constexpr KeyCombo optionR{.flags = 0x080000, .code = 15};
constexpr KeyCombo commandShiftP{.flags = 0x120000, .code = 35};

class PreferencesTest : public AppTest {
  protected:
    std::int64_t stored(const std::string& key) {
        const auto& values = platform().settings.stored();
        const auto value = values.find(key);
        return value != values.end() ? value->second : -99;
    }
    KeyCombo table(const std::string& name) {
        return {utils::PreferenceManager::flags(name), utils::PreferenceManager::code(name)};
    }
    void store(const std::string& name, KeyCombo shortcut) {
        platform().settings.put(name + "Code", shortcut.code);
        platform().settings.put(name + "Flags", shortcut.flags);
    }
    void strikes(std::uint32_t keyCode) {
        platform().keyboard.userPresses(keyCode);
        platform().keyboard.userReleases(keyCode);
    }
};

// Start-up

TEST_F(PreferencesTest, takesAStoredCombinationIntoTableAndField) {
    store("record", commandR);
    controller.syncPreferencesDefaults();
    EXPECT_EQ(table("record"), (KeyCombo{.flags = 0x0100, .code = 15}));
    EXPECT_EQ(controller.recordShortcutText.keyCombo(), commandR);
}

TEST_F(PreferencesTest, leavesFieldAndTableWhereAKeyIsMissing) {
    platform().settings.put("playCode", 3);
    controller.syncPreferencesDefaults();
    EXPECT_EQ(controller.playShortcutText.keyCombo(), initialKeyCombo(35));
    EXPECT_EQ(table("play"), (KeyCombo{.flags = 0, .code = -1}));
}

TEST_F(PreferencesTest, keepsUnknownFlagBitsInTheFieldOnly) {
    store("stop", {.flags = 0x8A0000, .code = 1});
    store("play", {.flags = 0x10001, .code = 35});
    controller.syncPreferencesDefaults();
    EXPECT_EQ(table("stop").flags, 0x800A00U);
    EXPECT_EQ(table("play").flags, 0U);
    EXPECT_EQ(controller.playShortcutText.keyCombo().flags, 0x10001U);
}

TEST_F(PreferencesTest, cutsAStoredCodeTo16Bits) {
    platform().settings.put("recordCode", 0x1FFFF);
    platform().settings.put("recordFlags", 0);
    controller.syncPreferencesDefaults();
    EXPECT_EQ(table("record").code, -1);
    EXPECT_EQ(controller.recordShortcutText.keyCombo().code, -1);
}

TEST_F(PreferencesTest, readsEverySwitchThatIsNotZeroAsOn) {
    platform().settings.put("checkForUpdatesOnLaunch", 2);
    platform().settings.put("launchOnLogin", -1);
    controller.syncPreferencesDefaults();
    EXPECT_TRUE(controller.checkForUpdatesOnLaunchButton.isOn());
    EXPECT_TRUE(controller.launchOnLoginButton.isOn());
}

TEST_F(PreferencesTest, readsAbsentSwitchesAsOff) {
    controller.launchOnLoginButton.setOn(true);
    controller.checkForUpdatesOnLaunchButton.setOn(true);
    controller.syncPreferencesDefaults();
    EXPECT_FALSE(controller.checkForUpdatesOnLaunchButton.isOn());
    EXPECT_FALSE(controller.launchOnLoginButton.isOn());
}

TEST_F(PreferencesTest, registersNothingAndTouchesNoLoginItemAtStartUp) {
    store("record", commandR);
    platform().settings.put("launchOnLogin", 1);
    controller.syncPreferencesDefaults();
    EXPECT_TRUE(hotKeyCalls().empty());
    EXPECT_EQ(platform().loginItems.installs(), 0);
}

TEST_F(PreferencesTest, recordsThePausesThatAreStored) {
    controller.syncPreferencesDefaults();
    EXPECT_EQ(state().pauseChoice.kind, PauseRecording::never);
    platform().settings.put("recordPauses", 2);
    platform().settings.put("recordPausesLimit", 700);
    controller.syncPreferencesDefaults();
    EXPECT_EQ(state().pauseChoice, (PauseChoice{.kind = PauseRecording::atMost, .limit = 700}));
    EXPECT_EQ(controller.preferences.pauses.choice(), state().pauseChoice);
}

TEST_F(PreferencesTest, recordsThePausesThatAreChosenOnceThePanelHasClosed) {
    controller.preferences.pauses.setKind(PauseRecording::asTyped);
    EXPECT_EQ(state().pauseChoice.kind, PauseRecording::never);
    controller.savePreferences(nullptr);
    EXPECT_EQ(state().pauseChoice.kind, PauseRecording::asTyped);
    EXPECT_EQ(stored("recordPauses"), 1);
}

TEST_F(PreferencesTest, recordsModifierKeysWhereThatIsStoredOrChosen) {
    controller.syncPreferencesDefaults();
    EXPECT_FALSE(state().recordsModifierKeys);
    platform().settings.put("recordModifierKeys", 1);
    controller.syncPreferencesDefaults();
    EXPECT_TRUE(state().recordsModifierKeys);
    controller.preferences.recordModifierKeys.setOn(false);
    controller.savePreferences(nullptr);
    EXPECT_FALSE(state().recordsModifierKeys);
    EXPECT_EQ(stored("recordModifierKeys"), 0);
}

// Saving

class SaveOrderTest : public EngineTest {};

TEST_F(SaveOrderTest, writesInThisOrder) {
    Journal& journal = platform().journal;
    FakeWindows windows(journal);
    FakeDialogs dialogs(journal);
    FakeStatusItem item(journal);
    FakeLibrary library(platform());
    AppController controller(platform().services, windows, item, dialogs, library.controller);
    controller.stopShortcutText.setKeyCombo({});
    controller.launchOnLoginButton.setOn(true);
    controller.savePreferences(nullptr);
    Journal expected;
    for (const ShortcutRow& row : shortcutRows) {
        const KeyCombo saved = row.name == "stop" ? KeyCombo() : row.preset;
        expected.note("write", std::string(row.name) + "Code", saved.code);
        expected.note("write", std::string(row.name) + "Flags", saved.flags);
    }
    for (const ToggleRow& row : toggleRows) {
        const std::string key = row.key;
        const bool on = key == "launchOnLogin" || row.initiallyOn;
        if (key == "checkForUpdatesOnLaunch" && !features::updateCheck) continue;
        if (key == "writeHotKeys") continue;
        expected.note("write", key, on);
    }
    expected.note("write", "recordPauses", 0);
    expected.note("write", "recordPausesLimit", 1000);
    expected.note("installLoginItem", true);
    expected.note("synchronize");
    for (const ShortcutRow& row : shortcutRows) {
        noteRegistration(expected, row, row.name == "stop" ? KeyCombo() : presetHotKey(row));
    }
    EXPECT_EQ(journal.lines(), expected.lines());
}

TEST_F(PreferencesTest, leavesTheStoredSwitchOfAnUpdateCheckThatItDoesNotOffer) {
    platform().settings.put("checkForUpdatesOnLaunch", 1);
    controller.preferences.offersUpdateCheck = false;
    controller.savePreferences(nullptr);
    EXPECT_EQ(stored("checkForUpdatesOnLaunch"), 1);
    EXPECT_EQ(stored("recordCode"), 15);
}

TEST_F(PreferencesTest, writesTheFileOnce) {
    controller.savePreferences(nullptr);
    platform().settings.endTurn();
    EXPECT_EQ(platform().settings.writes(), 1);
}

TEST_F(PreferencesTest, goesOnFiringAClearedShortcutUntilTheNextStart) {
    store("stop", {.flags = 0x140000, .code = 1});
    controller.awakeFromNib();
    controller.showPreferences(nullptr);
    controller.stopShortcutText.record({});
    EXPECT_EQ(stored("stopCode"), -1);
    EXPECT_EQ(stored("stopFlags"), 0);
    EXPECT_EQ(table("stop"), (KeyCombo{.flags = 0x1100, .code = 1}));
    EXPECT_EQ(platform().hotKeys.registered().at(2), (std::pair<std::uint32_t, std::uint32_t>{1, 0x1100}));

    utils::PreferenceManager::instance().reset();
    controller.awakeFromNib();
    EXPECT_EQ(table("stop").code, -1);
    EXPECT_FALSE(platform().hotKeys.registered().contains(2));
}

TEST_F(PreferencesTest, leavesOneLoginItemAfterTwoSaves) {
    controller.launchOnLoginButton.setOn(true);
    controller.savePreferences(nullptr);
    controller.savePreferences(nullptr);
    EXPECT_EQ(platform().loginItems.installs(), 2);
    EXPECT_EQ(platform().loginItems.state(), LoginItems::State::on);
}

TEST_F(PreferencesTest, takesTheLoginItemAwayWithTheSwitchOff) {
    controller.launchOnLoginButton.setOn(true);
    controller.savePreferences(nullptr);
    controller.launchOnLoginButton.setOn(false);
    controller.savePreferences(nullptr);
    EXPECT_EQ(platform().loginItems.state(), LoginItems::State::off);
}

TEST_F(PreferencesTest, tellsOnceWhyTheSettingsWereNotSaved) {
    controller.showPreferences(nullptr);
    for (int i = 0; i < 2; ++i) {
        platform().settings.failNextCall({"No space left on device.", "Free some."});
        controller.recordShortcutText.record({.flags = 0x100000, .code = static_cast<std::int16_t>(i)});
        QCoreApplication::processEvents();
    }
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0], (AlertText{.kind = AlertText::Kind::warning,
                                            .title = "Your settings were not saved.",
                                            .message = "No space left on device.\n\nFree some.",
                                            .defaultButton = "OK"}));
}

TEST_F(PreferencesTest, tellsAgainWhenThePanelIsOpenedAnew) {
    for (int i = 0; i < 2; ++i) {
        controller.showPreferences(nullptr);
        platform().settings.failNextCall({"No space left on device.", ""});
        controller.preferencesWindow()->close();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(dialogs.alerts.size(), 2U);
}

TEST_F(PreferencesTest, tellsWhyTheLoginItemWasNotSet) {
    platform().loginItems.failNextCall({"A path with % cannot be started at login.", ""});
    controller.savePreferences(nullptr);
    QCoreApplication::processEvents();
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0].message, "A path with % cannot be started at login.");
}

// The panel

TEST_F(PreferencesTest, fadesThePanelInAndGivesItTheFocus) {
    controller.showPreferences(nullptr);
    EXPECT_TRUE(isFadingIn(*controller.preferencesWindow()));
    EXPECT_FLOAT_EQ(fadeEnd(*controller.preferencesWindow()), 0.9F);
    EXPECT_EQ(windows.calls(), std::vector<std::string>{"activate(0)"});
}

TEST_F(PreferencesTest, switchesHotKeysOffWhileThePanelIsOpen) {
    store("record", {.flags = 0, .code = 122});
    controller.awakeFromNib();
    controller.showPreferences(nullptr);
    strikes(122);
    EXPECT_FALSE(state().recording);
    controller.recordShortcutText.record({.flags = 0, .code = 120});
    controller.preferencesWindow()->close();
    strikes(122);
    EXPECT_FALSE(state().recording);
    strikes(120);
    EXPECT_TRUE(state().recording);
}

TEST_F(PreferencesTest, savesWhenThePanelClosesButNotWhenItIsHidden) {
    controller.showPreferences(nullptr);
    controller.launchOnLoginButton.setOn(true);
    controller.preferencesWindow()->hide();
    EXPECT_EQ(platform().settings.writes(), 0);
    EXPECT_FALSE(state().hotKeysEnabled);
    controller.preferencesWindow()->show();
    controller.preferencesWindow()->close();
    EXPECT_EQ(stored("launchOnLogin"), 1);
    EXPECT_TRUE(state().hotKeysEnabled);
}

TEST_F(PreferencesTest, showsALoginItemThatTheUserHidAsOff) {
    platform().loginItems.put({FakeLoginItems::programPath, true});
    controller.launchOnLoginButton.setOn(true);
    controller.showPreferences(nullptr);
    EXPECT_FALSE(controller.launchOnLoginButton.isOn());
}

TEST_F(PreferencesTest, emptiesTheFieldThatHadTheCombinationBefore) {
    store("stop", commandShiftP);
    controller.awakeFromNib();
    controller.showPreferences(nullptr);
    controller.playShortcutText.record(commandShiftP);
    EXPECT_EQ(controller.stopShortcutText.keyCombo(), KeyCombo());
    EXPECT_EQ(controller.playShortcutText.keyCombo(), commandShiftP);
    EXPECT_EQ(stored("stopCode"), -1);
    EXPECT_EQ(stored("stopFlags"), 0);
    EXPECT_EQ(stored("playCode"), 35);
    // The table keeps the combination under both names.
    EXPECT_EQ(table("stop"), table("play"));
}

TEST_F(PreferencesTest, emptiesAllOthersWithTheCombination) {
    controller.showPreferences(nullptr);
    controller.stopShortcutText.setKeyCombo(commandR);
    controller.multiplePlayShortcutText.setKeyCombo(commandR);
    controller.recordShortcutText.record(commandR);
    EXPECT_EQ(controller.stopShortcutText.keyCombo(), KeyCombo());
    EXPECT_EQ(controller.multiplePlayShortcutText.keyCombo(), KeyCombo());
    EXPECT_EQ(controller.playShortcutText.keyCombo(), initialKeyCombo(35));
}

TEST_F(PreferencesTest, takesTheSameKeyWithOtherModifiersForNoConflict) {
    controller.showPreferences(nullptr);
    controller.stopShortcutText.setKeyCombo(commandR);
    controller.recordShortcutText.record(optionR);
    EXPECT_EQ(controller.stopShortcutText.keyCombo(), commandR);
}

TEST_F(PreferencesTest, clearsNothingElseWithAClearedFieldAndSaves) {
    controller.showPreferences(nullptr);
    controller.stopShortcutText.setKeyCombo({});
    controller.recordShortcutText.record({});
    EXPECT_EQ(controller.playShortcutText.keyCombo(), initialKeyCombo(35));
    EXPECT_EQ(stored("recordCode"), -1);
}

TEST_F(PreferencesTest, visitsTheOthersInTheirOrder) {
    using Names = std::vector<std::string>;
    const std::array<std::pair<ShortcutModel*, std::string>, 4> fields = {
        {{&controller.recordShortcutText, "record"},
         {&controller.stopShortcutText, "stop"},
         {&controller.playShortcutText, "play"},
         {&controller.multiplePlayShortcutText, "multiplePlay"}}};
    Names emptied;
    std::map<std::string, bool> wasEmpty;
    for (const auto& [field, name] : fields) {
        QObject::connect(field, &ShortcutModel::changed, field, [&, field = field, name = name] {
            const bool isEmpty = field->keyCombo() == KeyCombo();
            if (isEmpty && !std::exchange(wasEmpty[name], isEmpty)) emptied.push_back(name);
            wasEmpty[name] = isEmpty;
        });
    }
    const std::array<Names, 4> expected = {{{"stop", "play", "multiplePlay"},
                                            {"record", "play", "multiplePlay"},
                                            {"stop", "record", "multiplePlay"},
                                            {"record", "stop", "play"}}};
    controller.showPreferences(nullptr);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        for (const auto& [field, name] : fields) field->setKeyCombo(commandR);
        emptied.clear();
        fields.at(i).first->record(commandR);
        EXPECT_EQ(emptied, expected.at(i)) << fields.at(i).second;
    }
}

TEST_F(PreferencesTest, dropsAChangeWhileThePanelIsHiddenOrMinimised) {
    controller.recordShortcutText.record(commandR);
    controller.showPreferences(nullptr);
    controller.preferencesWindow()->hide();
    controller.recordShortcutText.record(optionR);
    controller.preferencesWindow()->showMinimized();
    controller.recordShortcutText.record(commandR);
    EXPECT_TRUE(platform().settings.keysSet().empty());
}

// Notices beside the fields

TEST_F(PreferencesTest, saysBesideTheFieldWhatAnotherProgramHolds) {
    platform().hotKeys.otherProgramHolds(15, 0x0100);
    controller.showPreferences(nullptr);
    controller.recordShortcutText.record(commandR);
    EXPECT_TRUE(controller.recordShortcutText.isRefused());
    EXPECT_EQ(controller.recordShortcutText.notice().toStdString(),
              platform().hotKeys.state(1).error->message);
    controller.recordShortcutText.record(optionR);
    EXPECT_FALSE(controller.recordShortcutText.isRefused());
    EXPECT_EQ(controller.recordShortcutText.notice(), "");
}

TEST_F(PreferencesTest, saysThatAClearedShortcutGoesOnWorking) {
    store("stop", {.flags = 0x140000, .code = 1});
    controller.awakeFromNib();
    controller.showPreferences(nullptr);
    controller.stopShortcutText.record({});
    EXPECT_EQ(controller.stopShortcutText.notice(), "Ctrl+Super+S still works until Keyrill restarts.");
}

TEST_F(PreferencesTest, saysWhichClearedShortcutStillHasTheCombination) {
    store("stop", {.flags = 0x140000, .code = 1});
    controller.awakeFromNib();
    controller.showPreferences(nullptr);
    controller.playShortcutText.record({.flags = 0x140000, .code = 1});
    EXPECT_EQ(controller.playShortcutText.notice(), "Still used by Stop Recording until Keyrill restarts.");
}

}  // namespace
