// SPDX-License-Identifier: MIT
#include <QPushButton>

#include "app/AppTest.h"
#include "app/panels/PreferencesPanel.h"
#include "platform/Addresses.h"

namespace {

AlertText updateAlert(const QString& yes, const QString& no) {
    return {.kind = AlertText::Kind::informational,
            .title = "Keyrill Update Available",
            .message = "There is a new update available for Keyrill, would you like to download it now?",
            .defaultButton = yes,
            .alternateButton = no};
}

const AlertText noUpdateAlert{.kind = AlertText::Kind::informational,
                              .title = "No Update Available",
                              .message = "You're currently running the latest version of Keyrill",
                              .defaultButton = "OK"};

/// Only in builds that have the check.
class UpdateCheckTest : public AppTest {
  protected:
    using Urls = std::vector<std::string>;
    const Urls& opened() { return platform().workspace.openedUrls(); }
    Urls downloadPage() { return {std::string(addresses::downloadPage)}; }
    void publishUpdate() { platform().updateService.makerPublishes("99.0"); }
};

// By hand

TEST_F(UpdateCheckTest, saysNothingToOthersThanTheButtonWhenThereIsNoUpdate) {
    controller.checkForUpdates(nullptr);
    controller.checkForUpdates(controller.statusMenu.item(menuIndex("about")));
    EXPECT_TRUE(dialogs.alerts.empty());
    EXPECT_TRUE(dialogs.sheets.empty());
    EXPECT_EQ(platform().updateService.questions().size(), 2U);
}

TEST_F(UpdateCheckTest, answersTheMenuItemAlways) {
    controller.statusMenu.item(menuIndex("update"))->trigger();
    EXPECT_EQ(dialogs.alerts, std::vector<AlertText>{noUpdateAlert});
}

TEST_F(UpdateCheckTest, answersTheButtonOnThePanel) {
    controller.showPreferences(nullptr);
    controller.checkForUpdatesNowButton()->click();
    ASSERT_EQ(dialogs.sheets.size(), 1U);
    EXPECT_EQ(dialogs.sheets[0].panel, controller.preferencesWindow());
    EXPECT_EQ(dialogs.sheets[0].text, noUpdateAlert);
    dialogs.endSheet(AlertAnswer::defaultButton);
    EXPECT_TRUE(opened().empty());
}

TEST_F(UpdateCheckTest, offersAnUpdateInAnAlertWithoutThePanel) {
    publishUpdate();
    controller.checkForUpdates(nullptr);
    EXPECT_EQ(dialogs.alerts, std::vector<AlertText>{updateAlert("YES", "NO")});
    EXPECT_TRUE(opened().empty());
    dialogs.answerNextAlert(AlertAnswer::defaultButton);
    controller.checkForUpdates(nullptr);
    EXPECT_EQ(opened(), downloadPage());
}

TEST_F(UpdateCheckTest, takesAMinimisedPanelForHidden) {
    publishUpdate();
    controller.showPreferences(nullptr);
    controller.preferencesWindow()->showMinimized();
    controller.checkForUpdates(nullptr);
    EXPECT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_TRUE(dialogs.sheets.empty());
}

TEST_F(UpdateCheckTest, offersAnUpdateInASheetOnThePanel) {
    publishUpdate();
    controller.showPreferences(nullptr);
    controller.checkForUpdates(nullptr);
    ASSERT_EQ(dialogs.sheets.size(), 1U);
    EXPECT_EQ(dialogs.sheets[0].text, updateAlert("Yes", "No"));
    dialogs.endSheet(AlertAnswer::alternateButton);
    EXPECT_TRUE(opened().empty());
    controller.checkForUpdates(nullptr);
    dialogs.endSheet(AlertAnswer::defaultButton);
    EXPECT_EQ(opened(), downloadPage());
}

TEST_F(UpdateCheckTest, doesNotTouchTheStateOfTheStartUpCheckByHand) {
    publishUpdate();
    controller.checkForUpdates(nullptr);
    EXPECT_FALSE(controller.checkForUpdateCompleted);
    EXPECT_FALSE(controller.updateAvailable);
}

TEST_F(UpdateCheckTest, takesAFailedCheckForNoUpdate) {
    publishUpdate();
    platform().updateService.failNextCall({"No route to host.", ""});
    EXPECT_FALSE(controller.doCheckForUpdate());
    EXPECT_TRUE(controller.doCheckForUpdate());
}

// The check at start-up

TEST_F(UpdateCheckTest, checksForUpdatesOnlyWhenTheSettingIsThereAndNotZero) {
    controller.awakeFromNib();
    EXPECT_FALSE(controller.runCheckForUpdates);
    platform().settings.put("checkForUpdatesOnLaunch", 0);
    controller.awakeFromNib();
    EXPECT_FALSE(controller.runCheckForUpdates);
    platform().settings.put("checkForUpdatesOnLaunch", 2);
    controller.awakeFromNib();
    EXPECT_TRUE(controller.runCheckForUpdates);
}

TEST_F(UpdateCheckTest, checksAtTheSplashIfTheSettingIsOn) {
    controller.runSplash();
    EXPECT_TRUE(platform().updateService.questions().empty());
    controller.runCheckForUpdates = true;
    controller.runSplash();
    EXPECT_EQ(platform().updateService.questions().size(), 1U);
    EXPECT_TRUE(controller.checkForUpdateCompleted);
    EXPECT_FALSE(controller.updateAvailable);
    EXPECT_EQ(statusItem.shownImage, StatusImage::normal);
}

TEST_F(UpdateCheckTest, asksAtTheFirstRecordingAfterAnUpdateWasFound) {
    publishUpdate();
    controller.backgroundCheckForUpdates();
    EXPECT_TRUE(dialogs.alerts.empty());
    dialogs.answerNextAlert(AlertAnswer::alternateButton);
    controller.recordMacro(nullptr);
    EXPECT_EQ(dialogs.alerts, std::vector<AlertText>{updateAlert("YES", "NO")});
    EXPECT_TRUE(state().recordingMacro);
    controller.stopMacro(nullptr);
    controller.recordMacro(nullptr);
    EXPECT_EQ(dialogs.alerts.size(), 1U);
}

TEST_F(UpdateCheckTest, neverShowsANegativeAnswerOfTheStartUpCheck) {
    controller.backgroundCheckForUpdates();
    controller.recordMacro(nullptr);
    EXPECT_TRUE(dialogs.alerts.empty());
    EXPECT_TRUE(controller.checkForUpdateCompleted);
}

}  // namespace
