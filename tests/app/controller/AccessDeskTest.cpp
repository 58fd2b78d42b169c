// SPDX-License-Identifier: MIT
#include "app/controller/AccessDesk.h"

#include <QTimer>

#include "app/AppTest.h"
#include "app/RunLoop.h"
#include "app/controller/OverlayDesk.h"
#include "app/controller/Stage.h"
#include "app/overlay/MacroText.h"
#include "app/overlay/RecorderWindow.h"
#include "core/MacroManager.h"
#include "support/Keys.h"

namespace {

using Access = EventMonitor::Access;
using Messages = std::vector<FakeNotifications::Message>;

const Error refused{"Refused.", "Agree."};

/// A recording where the user is asked whether his keys may be seen.
class AccessDeskTest : public AppTest {
  protected:
    AccessDeskTest() {
        platform().settings.put("notFirstRun", 1);
        controller.awakeFromNib();
        controller.recordMacro(nullptr);
    }
    FakeEventMonitor& monitor() { return platform().eventMonitor; }
    QString shown() const { return controller.recorderWindow()->findChild<MacroText*>()->text(); }
    void strikes(std::uint32_t keyCode) {
        platform().keyboard.userPresses(keyCode);
        platform().keyboard.userReleases(keyCode);
    }
    void runLoopFor(int milliseconds) {
        runLoopWith([milliseconds] { QTimer::singleShot(milliseconds, [] { QCoreApplication::exit(0); }); });
    }
};

/// Who is impatient.
class AccessExplanationTest : public AccessDeskTest {
  protected:
    static constexpr int delay = 20;
    static constexpr int longer = 2 * delay;

  private:
    Stage m_stage{windows, [] { return std::vector<QWidget*>(); }};
    OverlayDesk m_overlays{m_stage, platform().clock, platform().hotKeys, platform().layers};
    AccessDesk m_desk{monitor(), platform().notifications, dialogs, m_overlays,
                      std::chrono::milliseconds(delay)};
};

TEST_F(AccessExplanationTest, comesOnceAndOnlyIfTheAnswerTakesAWhile) {
    monitor().accessChanges(Access::asked);
    monitor().accessChanges(Access::given);
    runLoopFor(longer);
    EXPECT_EQ(platform().notifications.messages(), Messages());
    monitor().accessChanges(Access::asked);
    runLoopFor(longer);
    monitor().accessChanges(Access::asked);
    runLoopFor(longer);
    EXPECT_EQ(
        platform().notifications.messages(),
        Messages({{"Keyrill",
                   "To record what you type in other programs, Keyrill has to read the keyboard until the "
                   "recording ends. That is why you are asked for your password."}}));
}

TEST_F(AccessDeskTest, showsThatItWaitsInPlaceOfTheMacro) {
    monitor().accessChanges(Access::asked);
    EXPECT_EQ(shown(), QStringLiteral("Waiting for your permission"));
    monitor().accessChanges(Access::given);
    EXPECT_EQ(shown(), QString());
}

TEST_F(AccessDeskTest, theFirstPauseBeginsWithThePermission) {
    monitor().accessChanges(Access::asked);
    platform().clock.advance(std::chrono::seconds(30));
    monitor().accessChanges(Access::given);
    EXPECT_EQ(state().lastEventTime, platform().clock.now());
}

TEST_F(AccessDeskTest, aRefusalEndsTheRecordingWithItsCause) {
    monitor().accessChanges(Access::refused, refused);
    EXPECT_TRUE(state().recording);
    runLoopFor(0);
    EXPECT_FALSE(state().recording);
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts.front().title, QStringLiteral("Nothing was recorded"));
    EXPECT_EQ(dialogs.alerts.front().message, QStringLiteral("Refused.\n\nAgree."));
}

TEST_F(AccessDeskTest, whatWasRecordedBeforeTheEndIsKept) {
    strikes(key::a);
    monitor().accessChanges(Access::ended, refused);
    runLoopFor(0);
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts.front().title, QStringLiteral("The recording has ended"));
    EXPECT_EQ(dialogs.alerts.front().message,
              QStringLiteral("Refused.\n\nAgree.\n\nWhat was recorded until then is kept."));
    ASSERT_TRUE(state().currentMacro);
    EXPECT_EQ(state().currentMacro->displayText(), "a");
}

TEST_F(AccessDeskTest, aRecordingThatTheUserHasStoppedMeanwhileIsOver) {
    monitor().accessChanges(Access::ended, refused);
    controller.stopMacro(nullptr);
    runLoopFor(0);
    EXPECT_TRUE(dialogs.alerts.empty());
}

}  // namespace
