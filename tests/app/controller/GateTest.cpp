// SPDX-License-Identifier: MIT
#include "app/controller/Gate.h"

#include <QPushButton>

#include "app/AppTest.h"
#include "app/controller/GatedDialogs.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/RecorderWindow.h"
#include "app/panels/PreferencesPanel.h"
#include "support/Keys.h"

namespace {

/// The controller with record on F1 and play on F2, and a user who acts while a question is open.
class GateTest : public AppTest {
  protected:
    GateTest() {
        put("record", key::f1, 0);
        put("play", key::f2, 0x20000);
        platform().settings.put("notFirstRun", 1);
        controller.awakeFromNib();
    }

    void put(const std::string& name, std::uint32_t code, std::uint32_t flags) {
        platform().settings.put(name + "Code", code);
        platform().settings.put(name + "Flags", flags);
    }
    void strikes(std::uint32_t keyCode) {
        platform().keyboard.userPresses(keyCode);
        platform().keyboard.userReleases(keyCode);
    }
    /// A question that stays open while the user acts.
    void askWhile(const std::function<void()>& acts) {
        dialogs.whileOpen(acts);
        platform().settings.addFault({"The disk is full.", ""});
        controller.runSplash();
        ASSERT_EQ(dialogs.alerts.size(), 1U);
    }
    std::string recorded() { return state().recordingMacro ? state().recordingMacro->displayText() : "-"; }
};

TEST_F(GateTest, recordsNothingOfWhatIsTypedIntoAQuestion) {
    controller.recordMacro(nullptr);
    strikes(key::a);
    const std::string before = recorded();
    askWhile([this] { strikes(key::a); });
    EXPECT_EQ(recorded(), before);
    strikes(key::a);
    EXPECT_NE(recorded(), before);
}

TEST_F(GateTest, dropsHotKeysWhileAQuestionIsOpen) {
    askWhile([this] { strikes(key::f1); });
    EXPECT_FALSE(state().recording);
    strikes(key::f1);
    EXPECT_TRUE(state().recording);
}

TEST_F(GateTest, followsModifiersWhileAQuestionIsOpen) {
    platform().keyboard.userPresses(key::shift);
    askWhile([this] {
        EXPECT_TRUE(state().modifiersDown);
        platform().keyboard.userReleases(key::shift);
        EXPECT_FALSE(state().modifiersDown);
    });
}

TEST_F(GateTest, dropsAPlayThatWaitsForModifiersWhenAQuestionOpens) {
    state().currentMacro = macroWithScript("script");
    platform().keyboard.userPresses(key::shift);
    strikes(key::f2);
    EXPECT_TRUE(state().playPending);
    askWhile([this] { platform().keyboard.userReleases(key::shift); });
    EXPECT_TRUE(runs().empty());
    EXPECT_FALSE(state().playPending);
}

TEST_F(GateTest, dropsTheMenusCommandsWhileAQuestionIsOpen) {
    state().currentMacro = macroWithScript("script");
    controller.recordMacro(nullptr);
    type(key::a);
    controller.stopMacro(nullptr);
    askWhile([this] {
        const StatusMenu& items = controller.statusMenu;
        items.historyMenu->actions().first()->trigger();
        for (std::size_t i = 0; i < menuRows.size(); ++i) {
            if (items.item(i) != nullptr && menuRows.at(i).name != "quit") items.item(i)->trigger();
        }
    });
    EXPECT_FALSE(state().recording);
    EXPECT_TRUE(runs().empty());
    EXPECT_TRUE(dialogs.filePanels.empty());
    EXPECT_EQ(controller.multiplePlayWindow(), nullptr);
    EXPECT_EQ(controller.aboutPanel(), nullptr);
    EXPECT_TRUE(platform().workspace.openedUrls().empty());
    EXPECT_TRUE(state().hotKeysEnabled);
}

TEST_F(GateTest, greysTheMenuButForQuitWhileAQuestionIsOpen) {
    const std::string before = menu();
    std::string meanwhile;
    askWhile([&] { meanwhile = menu(); });
    EXPECT_EQ(meanwhile,
              "[Start Recording], -, [History], [Load Macro...], [Macros...], -, [Preferences...], [Help], "
              "-, Quit");
    EXPECT_EQ(menu(), before);
}

TEST_F(GateTest, playsNothingFromThePromptWhileAQuestionIsOpen) {
    state().currentMacro = macroWithScript("script");
    controller.showMultiplePlayGui();
    askWhile([this] { emit controller.multiplePlayWindow()->confirmed(); });
    EXPECT_TRUE(runs().empty());
    emit controller.multiplePlayWindow()->confirmed();
    EXPECT_EQ(runs().size(), 1U);
}

TEST_F(GateTest, isShutUntilASheetIsAnswered) {
    controller.showPreferences(nullptr);
    state().hotKeysEnabled = true;
    controller.checkForUpdatesNowButton()->click();
    strikes(key::f1);
    EXPECT_FALSE(state().recording);
    dialogs.endSheet(AlertAnswer::defaultButton);
    strikes(key::f1);
    EXPECT_TRUE(state().recording);
}

TEST_F(GateTest, isShutWhileAFileIsChosen) {
    dialogs.whileOpen([this] { strikes(key::f1); });
    controller.loadMacro(nullptr);
    EXPECT_FALSE(state().recording);
    strikes(key::f1);
    EXPECT_TRUE(state().recording);
}

TEST_F(GateTest, leavesTheSwitchOfTheHotKeysAlone) {
    askWhile([this] { EXPECT_TRUE(state().hotKeysEnabled); });
    platform().screenLock.userLocksScreen();
    EXPECT_TRUE(state().hotKeysEnabled);
}

TEST_F(GateTest, recordsNothingOfWhatIsTypedIntoTheMenu) {
    controller.recordMacro(nullptr);
    strikes(key::a);
    const std::string before = recorded();
    controller.statusMenu.popup(QPoint());
    strikes(key::a);
    strikes(key::f1);
    EXPECT_EQ(recorded(), before);
    controller.statusMenu.saveDelayMenuItem->trigger();
    EXPECT_NE(recorded(), before);
    controller.statusMenu.hide();
    const std::string paused = recorded();
    strikes(key::a);
    EXPECT_NE(recorded(), paused);
}

TEST_F(GateTest, staysShutWhenTheMenuClosesBehindAQuestion) {
    controller.statusMenu.popup(QPoint());
    askWhile([this] {
        controller.statusMenu.hide();
        strikes(key::f1);
        EXPECT_FALSE(state().recording);
    });
}

// The lock

TEST_F(GateTest, recordsNothingAndHidesTheOverlayWhileTheScreenIsLocked) {
    controller.recordMacro(nullptr);
    const std::string before = recorded();
    platform().screenLock.userLocksScreen();
    EXPECT_FALSE(controller.recorderWindow()->isVisible());
    strikes(key::a);
    strikes(key::f1);
    EXPECT_EQ(recorded(), before);
    EXPECT_TRUE(state().recording);
    platform().screenLock.userUnlocksScreen();
    EXPECT_TRUE(controller.recorderWindow()->isVisible());
    strikes(key::a);
    EXPECT_NE(recorded(), before);
}

TEST_F(GateTest, doesNotShowTheOverlayAtTheUnlockWithoutARecording) {
    controller.recordMacro(nullptr);
    controller.stopMacro(nullptr);
    platform().screenLock.userLocksScreen();
    platform().screenLock.userUnlocksScreen();
    EXPECT_FALSE(controller.recorderWindow()->isVisible());
}

TEST_F(GateTest, dropsAPlayThatWaitsWhenTheScreenIsLocked) {
    state().currentMacro = macroWithScript("script");
    platform().keyboard.userPresses(key::shift);
    strikes(key::f2);
    platform().screenLock.userLocksScreen();
    platform().keyboard.userReleases(key::shift);
    EXPECT_TRUE(runs().empty());
}

TEST_F(GateTest, staysShutWhenTheScreenIsUnlockedBehindAQuestion) {
    askWhile([this] {
        platform().screenLock.userLocksScreen();
        platform().screenLock.userUnlocksScreen();
        strikes(key::f1);
        EXPECT_FALSE(state().recording);
    });
}

TEST_F(GateTest, forgetsNoPlayThatIsRequestedWhileItIsOpen) {
    state().currentMacro = macroWithScript("script");
    platform().keyboard.userPresses(key::shift);
    strikes(key::f2);
    platform().keyboard.userReleases(key::shift);
    EXPECT_EQ(runs().size(), 1U);
}

}  // namespace
