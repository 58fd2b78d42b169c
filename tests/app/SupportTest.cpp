// SPDX-License-Identifier: MIT
#include <QPushButton>

#include "app/AboutPanel.h"
#include "app/AppTest.h"
#include "app/BugReport.h"
#include "app/PreferencesPanel.h"
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

class SupportTest : public AppTest {
  protected:
    using Urls = std::vector<std::string>;
    const Urls& opened() { return platform().workspace.openedUrls(); }
    Urls downloadPage() { return {std::string(addresses::downloadPage)}; }
    void publishUpdate() { platform().updateService.makerPublishes("99.0"); }
};

TEST_F(SupportTest, fadesTheAboutPanelInAndGivesItTheFocus) {
    controller.aboutKeyrill(nullptr);
    ASSERT_NE(controller.aboutPanel(), nullptr);
    EXPECT_TRUE(isFadingIn(*controller.aboutPanel()));
    EXPECT_FLOAT_EQ(fadeEnd(*controller.aboutPanel()), 0.9F);
    EXPECT_EQ(windows.calls, std::vector<std::string>{"activate 0"});
}

TEST_F(SupportTest, opensThePagesOfTheAboutPanelsButtons) {
    controller.aboutKeyrill(nullptr);
    controller.aboutPanel()->documentationButton()->click();
    controller.aboutPanel()->productPageButton()->click();
    controller.aboutPanel()->makersWebsiteButton()->click();
    EXPECT_EQ(opened(), (Urls{std::string(addresses::documentationPage), std::string(addresses::productPage),
                              std::string(addresses::makersWebsite)}));
}

TEST_F(SupportTest, opensThePagesOfTheHelpMenu) {
    const StatusMenu& menu = controller.statusMenu;
    for (QAction* item : {menu.documentationMenuItem, menu.forumMenuItem, menu.keyrillWebsiteMenuItem,
                          menu.orlenWebsiteMenuItem}) {
        item->trigger();
    }
    EXPECT_EQ(opened(), (Urls{std::string(addresses::documentationPage), std::string(addresses::forumPage),
                              std::string(addresses::productPage), std::string(addresses::makersWebsite)}));
}

TEST_F(SupportTest, writesToSupportAndFeedback) {
    controller.getSupport(nullptr);
    controller.sendFeedback(nullptr);
    EXPECT_EQ(opened(), (Urls{"mailto:support@orlen.example?subject=Support&body=",
                              "mailto:feedback@orlen.example?subject=Keyrill%20Feedback&body="}));
}

TEST_F(SupportTest, describesTheMachineInABugReport) {
    platform().systemFacts.put({.systemVersion = "Debian GNU/Linux 12 (bookworm)",
                                .name = "Caf\xC3\xA9 \xE2\x82\xAC#1",
                                .processorClock = 2400,
                                .processors = 2,
                                .memory = 4096});
    controller.reportABug(nullptr);
    EXPECT_EQ(opened(), Urls{"mailto:bugs@orlen.example?subject=Keyrill%20Bug&body=Version:%091.0%0A"
                             "System:%09Debian%20GNU/Linux%2012%20(bookworm)%0AMac:%09Caf%E9%20?%231%0A"
                             "CPU:%092x2400MHz%0ARAM:%094096MB%0A%0ADetails:%0A"});
}

TEST_F(SupportTest, cutsASubjectAtAnAmpersand) {
    controller.sendEmail("a@b.example", "this & that", "");
    EXPECT_EQ(opened(), Urls{"mailto:a@b.example?subject=this%20&%20that&body="});
}

TEST_F(SupportTest, reportsUnknownFactsByTheirFailureValues) {
    FakeSystemFacts facts;
    facts.put(
        {.systemVersion = "Linux", .name = std::nullopt, .processorClock = 0, .processors = 0, .memory = 0});
    EXPECT_EQ(bugReportBody(facts),
              "Version:\t1.0\nSystem:\tLinux\nMac:\tmachineType: machine name cannot be determined\n"
              "CPU:\t0x0MHz\nRAM:\t0MB\n\nDetails:\n");
}

TEST_F(SupportTest, asksTheFacts) {
    EXPECT_EQ(controller.systemVersionString(), "Debian GNU/Linux 12 (bookworm)");
    EXPECT_EQ(controller.machineType(), "ThinkPad X220");
    EXPECT_EQ(controller.processorClockSpeed(), 2400);
    EXPECT_EQ(controller.countProcessors(), 2U);
}

TEST_F(SupportTest, saysNothingWhenNoProgramTakesAPage) {
    platform().workspace.failNextCall({"No browser.", ""});
    controller.openForum(nullptr);
    EXPECT_TRUE(dialogs.alerts.empty());
}

// The update check

TEST_F(SupportTest, saysNothingToOthersThanTheButtonWhenThereIsNoUpdate) {
    controller.checkForUpdates(nullptr);
    controller.checkForUpdates(controller.statusMenu.aboutMenuItem);
    EXPECT_TRUE(dialogs.alerts.empty());
    EXPECT_TRUE(dialogs.sheets.empty());
    EXPECT_EQ(platform().updateService.questions().size(), 2U);
}

TEST_F(SupportTest, answersTheMenuItemAlways) {
    controller.statusMenu.updateMenuItem->trigger();
    EXPECT_EQ(dialogs.alerts, std::vector<AlertText>{noUpdateAlert});
}

TEST_F(SupportTest, answersTheButtonOnThePanel) {
    controller.showPreferences(nullptr);
    controller.checkForUpdatesNowButton()->click();
    ASSERT_EQ(dialogs.sheets.size(), 1U);
    EXPECT_EQ(dialogs.sheets[0].panel, controller.preferencesWindow());
    EXPECT_EQ(dialogs.sheets[0].text, noUpdateAlert);
    dialogs.endSheet(AlertAnswer::defaultButton);
    EXPECT_TRUE(opened().empty());
}

TEST_F(SupportTest, offersAnUpdateInAnAlertWithoutThePanel) {
    publishUpdate();
    controller.checkForUpdates(nullptr);
    EXPECT_EQ(dialogs.alerts, std::vector<AlertText>{updateAlert("YES", "NO")});
    EXPECT_TRUE(opened().empty());
    dialogs.answerNextAlert(AlertAnswer::defaultButton);
    controller.checkForUpdates(nullptr);
    EXPECT_EQ(opened(), downloadPage());
}

TEST_F(SupportTest, takesAMinimisedPanelForHidden) {
    publishUpdate();
    controller.showPreferences(nullptr);
    controller.preferencesWindow()->showMinimized();
    controller.checkForUpdates(nullptr);
    EXPECT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_TRUE(dialogs.sheets.empty());
}

TEST_F(SupportTest, offersAnUpdateInASheetOnThePanel) {
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

TEST_F(SupportTest, doesNotTouchTheStateOfTheStartUpCheckByHand) {
    publishUpdate();
    controller.checkForUpdates(nullptr);
    EXPECT_FALSE(controller.checkForUpdateCompleted);
    EXPECT_FALSE(controller.updateAvailable);
}

TEST_F(SupportTest, takesAFailedCheckForNoUpdate) {
    publishUpdate();
    platform().updateService.failNextCall({"No route to host.", ""});
    EXPECT_FALSE(controller.doCheckForUpdate());
    EXPECT_TRUE(controller.doCheckForUpdate());
}

// The check at start-up

TEST_F(SupportTest, checksAtTheSplashIfTheSettingIsOn) {
    controller.runSplash();
    EXPECT_TRUE(platform().updateService.questions().empty());
    controller.runCheckForUpdates = true;
    controller.runSplash();
    EXPECT_EQ(platform().updateService.questions().size(), 1U);
    EXPECT_TRUE(controller.checkForUpdateCompleted);
    EXPECT_FALSE(controller.updateAvailable);
    EXPECT_EQ(statusItem.shownImage, StatusImage::normal);
}

TEST_F(SupportTest, asksAtTheFirstRecordingAfterAnUpdateWasFound) {
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

TEST_F(SupportTest, neverShowsANegativeAnswerOfTheStartUpCheck) {
    controller.backgroundCheckForUpdates();
    controller.recordMacro(nullptr);
    EXPECT_TRUE(dialogs.alerts.empty());
    EXPECT_TRUE(controller.checkForUpdateCompleted);
}

}  // namespace
