// SPDX-License-Identifier: MIT
#include <QPushButton>

#include "app/AppTest.h"
#include "app/controller/BugReport.h"
#include "app/panels/AboutPanel.h"
#include "platform/Addresses.h"
#include "platform/Installation.h"

namespace {

class SupportTest : public AppTest {
  protected:
    using Urls = std::vector<std::string>;
    const Urls& opened() { return platform().workspace.openedUrls(); }
};

TEST_F(SupportTest, fadesTheAboutPanelInAndGivesItTheFocus) {
    controller.aboutKeyrill(nullptr);
    ASSERT_NE(controller.aboutPanel(), nullptr);
    EXPECT_TRUE(isFadingIn(*controller.aboutPanel()));
    EXPECT_FLOAT_EQ(fadeEnd(*controller.aboutPanel()), 0.9F);
    EXPECT_EQ(windows.calls(), std::vector<std::string>{"activate(0)"});
}

TEST_F(SupportTest, opensThePagesOfTheAboutPanelsButtons) {
    controller.aboutKeyrill(nullptr);
    controller.aboutPanel()->documentationButton()->click();
    controller.aboutPanel()->productPageButton()->click();
    controller.aboutPanel()->makersWebsiteButton()->click();
    EXPECT_EQ(opened(), (Urls{documentationPage(), std::string(addresses::productPage),
                              std::string(addresses::makersWebsite)}));
}

TEST_F(SupportTest, opensThePagesOfTheHelpMenu) {
    const StatusMenu& menu = controller.statusMenu;
    for (const std::size_t page : {menuIndex("documentation"), menuIndex("forum"),
                                   menuIndex("keyrillWebsite"), menuIndex("orlenWebsite")}) {
        menu.item(page)->trigger();
    }
    EXPECT_EQ(opened(), (Urls{documentationPage(), std::string(addresses::forumPage),
                              std::string(addresses::productPage), std::string(addresses::makersWebsite)}));
}

TEST_F(SupportTest, opensTheDocumentationInTheLanguageOfTheProgram) {
    ASSERT_TRUE(Installation::ofProcess().manual("de").ends_with("/manual/de/index.html"));
    const StatusMenu& menu = controller.statusMenu;
    for (const char* language : {"de", "eo"}) {
        controller.helpDesk().setLanguage(language);
        menu.item(menuIndex("documentation"))->trigger();
    }
    EXPECT_EQ(opened(), (Urls{documentationPage("de"), documentationPage()}));
    EXPECT_TRUE(opened().front().ends_with("/manual/de/index.html"));
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

}  // namespace
