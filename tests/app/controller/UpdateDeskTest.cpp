// SPDX-License-Identifier: MIT
#include "app/controller/UpdateDesk.h"

#include "app/AppTest.h"
#include "platform/Addresses.h"

namespace {

class UpdateDeskTest : public EngineTest {
  protected:
    FakeDialogs dialogs{platform().journal};
    UpdateDesk desk{platform().updateService, platform().workspace, dialogs};
};

TEST_F(UpdateDeskTest, offersOnceWhatTheSilentCheckFound) {
    platform().updateService.makerPublishes("99.0");
    desk.checkSilently();
    EXPECT_TRUE(dialogs.alerts.empty());
    dialogs.answerNextAlert(AlertAnswer::defaultButton);
    EXPECT_TRUE(desk.offerFound());
    EXPECT_FALSE(desk.offerFound());
    EXPECT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(platform().workspace.openedUrls(),
              std::vector<std::string>{std::string(addresses::downloadPage)});
}

TEST_F(UpdateDeskTest, goesOnWithoutTheDownloadThatTheUserDeclines) {
    platform().updateService.makerPublishes("99.0");
    desk.checkSilently();
    dialogs.answerNextAlert(AlertAnswer::alternateButton);
    EXPECT_FALSE(desk.offerFound());
    EXPECT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_TRUE(platform().workspace.openedUrls().empty());
}

TEST_F(UpdateDeskTest, answersANoOnlyToAUserWhoWaits) {
    desk.checkNow(nullptr, false);
    EXPECT_TRUE(dialogs.alerts.empty());
    desk.checkNow(nullptr, true);
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0].title, "No Update Available");
}

TEST_F(UpdateDeskTest, asksOnThePanelWhereThereIsOne) {
    platform().updateService.makerPublishes("99.0");
    QWidget panel;
    desk.checkNow(&panel, false);
    ASSERT_EQ(dialogs.sheets.size(), 1U);
    EXPECT_EQ(dialogs.sheets[0].panel, &panel);
    EXPECT_TRUE(dialogs.alerts.empty());
}

}  // namespace
