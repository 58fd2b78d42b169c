// SPDX-License-Identifier: MIT
#include "app/controller/ConsentDesk.h"

#include <gtest/gtest.h>

#include "app/FakeDialogs.h"
#include "app/shortcuts/ToggleModel.h"
#include "platform/fake/FakePlatform.h"

namespace {

/// A desktop that has hot keys only in its user's settings.
class ConsentDeskTest : public testing::Test {
  protected:
    ConsentDeskTest() { platform.hotKeys.requireConsent(); }

    std::optional<std::int64_t> stored() const { return platform.settings.integer("writeHotKeys"); }

    FakePlatform platform;
    FakeDialogs dialogs{platform.journal};
    ToggleModel toggle;
    ConsentDesk desk{platform.settings, platform.hotKeys, dialogs, toggle};
};

TEST_F(ConsentDeskTest, yesHoldsAtOnceAndFromThenOn) {
    dialogs.answerNextAlert(AlertAnswer::defaultButton);
    desk.ask();
    EXPECT_EQ(stored(), 1);
    EXPECT_TRUE(toggle.isOn());
    EXPECT_TRUE(platform.hotKeys.hasConsent());
    desk.ask();
    EXPECT_EQ(dialogs.alerts.size(), 1U);
}

TEST_F(ConsentDeskTest, noIsKeptAsWell) {
    dialogs.answerNextAlert(AlertAnswer::otherButton);
    desk.ask();
    EXPECT_EQ(stored(), 0);
    EXPECT_FALSE(toggle.isOn());
    EXPECT_FALSE(platform.hotKeys.hasConsent());
    desk.ask();
    EXPECT_EQ(dialogs.alerts.size(), 1U);
}

TEST_F(ConsentDeskTest, whoDecidesLaterIsAskedAgain) {
    dialogs.answerNextAlert(AlertAnswer::alternateButton);
    desk.ask();
    EXPECT_EQ(stored(), std::nullopt);
    EXPECT_FALSE(platform.hotKeys.hasConsent());
    desk.ask();
    EXPECT_EQ(dialogs.alerts.size(), 2U);
}

TEST_F(ConsentDeskTest, theQuestionNamesWhatIsWrittenAndWhereItIsChanged) {
    desk.ask();
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    const AlertText& text = dialogs.alerts.front();
    EXPECT_EQ(text.title.toStdString(), "May Keyrill write its hot keys into GNOME's settings?");
    EXPECT_EQ(
        text.message.toStdString(),
        "This version of GNOME has hot keys for programs only as custom shortcuts in your own settings. "
        "Keyrill would write one there for each of its combinations, and take them out when it ends. It "
        "does not touch what is yours.\n\nYou can change your mind in Keyrill's preferences.");
    EXPECT_EQ(text.defaultButton.toStdString(), "Write Them");
    EXPECT_EQ(text.alternateButton.toStdString(), "Not Now");
    EXPECT_EQ(text.otherButton.toStdString(), "Never");
}

TEST(ConsentElsewhereTest, nobodyIsAskedWhereHotKeysNeedNoConsent) {
    FakePlatform platform;
    FakeDialogs dialogs{platform.journal};
    ToggleModel toggle;
    ConsentDesk(platform.settings, platform.hotKeys, dialogs, toggle).ask();
    EXPECT_TRUE(dialogs.alerts.empty());
    EXPECT_EQ(platform.settings.integer("writeHotKeys"), std::nullopt);
}

}  // namespace
