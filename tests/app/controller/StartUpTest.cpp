// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QEventLoop>

#include "app/AppTest.h"
#include "app/RunLoop.h"
#include "app/panels/PreferencesPanel.h"
#include "app/panels/WelcomePanel.h"
#include "app/widgets/NoticeLine.h"
#include "platform/Installation.h"

namespace {

class StartUpTest : public AppTest {
  protected:
    static const Error& noXtest() {
        static const Error error{"The X server must have the XTEST extension, but it has not.",
                                 "Switch it on."};
        return error;
    }

    /// The state-driven items that are shown, in the menu's order.
    std::string stateItems() const {
        const StatusMenu& items = controller.statusMenu;
        std::string shown;
        for (const QAction* item :
             {items.recordMenuItem, items.stopMenuItem, items.saveDelayMenuItem, items.playMenuItem,
              items.multiplePlayMenuItem, items.saveMacroMenuItem}) {
            if (item->isVisible()) shown += (shown.empty() ? "" : ", ") + item->text().toStdString();
        }
        return shown;
    }

    /// The intervals of the controller's running timers.
    std::vector<int> timers() const {
        std::vector<int> intervals;
        for (const QTimer* timer : controller.findChildren<QTimer*>()) {
            if (timer->isActive()) intervals.push_back(timer->interval());
        }
        return intervals;
    }

    /// As if that time had passed for the running timer of that interval.
    void runDown(int interval) const {
        for (QTimer* timer : controller.findChildren<QTimer*>()) {
            if (!timer->isActive() || timer->interval() != interval) continue;
            QTimerEvent event(timer->timerId());
            QCoreApplication::sendEvent(timer, &event);
        }
    }
};

/// Starts up on the fake platform and writes down what is asked of it.
class StartUpOrderTest : public EngineTest {
  protected:
    void startUp() {
        Journal& journal = platform().journal;
        FakeWindows windows(journal);
        FakeDialogs dialogs(journal);
        FakeStatusItem item(journal);
        FakeLibrary library(platform());
        AppController controller(platform().services, windows, item, dialogs, library.controller);
        controller.awakeFromNib();
    }

    /// Of hot keys of which nothing is stored.
    static void noteEmptyRegistrations(Journal& journal) {
        for (const ShortcutRow& row : shortcutRows) noteRegistration(journal, row, KeyCombo());
    }
};

TEST_F(StartUpOrderTest, asksThePlatformInThisOrder) {
    Journal expected;
    for (const char* call : {"checkVersion", "installHotKeys", "checkAccess", "installMonitor"}) {
        expected.note(call);
    }
    noteEmptyRegistrations(expected);
    expected.note("showStatusItem");
    expected.note("write", "notFirstRun", true);
    noteEmptyRegistrations(expected);
    startUp();
    // What is read of the settings, and how often, is of no matter; only when.
    EXPECT_EQ(
        platform().journal.of({"checkVersion", "checkAccess", "installHotKeys", "installMonitor", "request",
                               "withdraw", "showStatusItem", "write", "synchronize", "installLoginItem"}),
        expected.lines());
}

TEST_F(StartUpOrderTest, readsTheSettingsBetweenTheStatusItemAndTheSecondRegistration) {
    startUp();
    const auto position = [&lines = platform().journal.lines()](const std::string& line) {
        return std::find(lines.begin(), lines.end(), line) - lines.begin();
    };
    EXPECT_LT(position("showStatusItem()"), position(R"(read("recordCode"))"));
    EXPECT_LT(position(R"(read("recordCode"))"), position(R"(read("multiplePlayCode"))"));
    EXPECT_LT(position(R"(read("multiplePlayCode"))"), position(R"(read("checkForUpdatesOnLaunch"))"));
    EXPECT_LT(position(R"(read("checkForUpdatesOnLaunch"))"), position(R"(read("notFirstRun"))"));
    EXPECT_LT(position(R"(read("notFirstRun"))"), position(R"(write("notFirstRun", true))"));
}

TEST_F(StartUpTest, saysOnceWhatTheDesktopLacksAndWhatIsLost) {
    platform().settings.put("notFirstRun", 1);
    platform().eventMonitor.lacking = Error{"There are no repeats.", "A held key counts once."};
    controller.awakeFromNib();
    EXPECT_EQ(platform().notifications.messages(),
              (std::vector<FakeNotifications::Message>{
                  {"Keyrill", "There are no repeats. A held key counts once."}}));
}

TEST_F(StartUpTest, endsAfterTheAlertInASessionThatIsTooOld) {
    platform().sessionCheck.failVersion({"XInput 2.2 is needed.", "Use a newer X server."});
    EXPECT_EQ(runLoopWith([this] { controller.awakeFromNib(); }), 0);
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0], (AlertText{.kind = AlertText::Kind::stop,
                                            .title = "XInput 2.2 is needed.",
                                            .message = "Use a newer X server.",
                                            .defaultButton = "OK"}));
    EXPECT_TRUE(hotKeyCalls().empty());
    EXPECT_EQ(statusItem.shownMenu, nullptr);
    EXPECT_TRUE(timers().empty());
}

TEST_F(StartUpTest, saysThatItNeedsAccess) {
    platform().sessionCheck.failAccess(noXtest());
    EXPECT_EQ(runLoopWith([this] { controller.awakeFromNib(); }), 0);
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0],
              (AlertText{.kind = AlertText::Kind::critical,
                         .title = "The X server must have the XTEST extension, but it has not.",
                         .message = "Keyrill requires that programs can see and press keys in this session. "
                                    "Switch it on. Please see the 'Configuration' section of the "
                                    "documentation for more information.\n\nKeyrill must close, please "
                                    "restart it once this is possible.\n",
                         .defaultButton = "Open Documentation now",
                         .alternateButton = "Quit"}));
}

TEST_F(StartUpTest, quitsWithoutAccessAtOnce) {
    platform().sessionCheck.failAccess(noXtest());
    dialogs.answerNextAlert(AlertAnswer::alternateButton);
    EXPECT_EQ(runLoopWith([this] { controller.awakeFromNib(); }), 0);
    EXPECT_TRUE(platform().workspace.openedUrls().empty());
    EXPECT_TRUE(timers().empty());
}

TEST_F(StartUpTest, opensTheDocumentationWithoutAccessAndEndsASecondLater) {
    platform().sessionCheck.failAccess(noXtest());
    dialogs.answerNextAlert(AlertAnswer::defaultButton);
    controller.awakeFromNib();
    EXPECT_EQ(platform().workspace.openedUrls(), std::vector<std::string>{documentationPage()});
    EXPECT_EQ(timers(), std::vector<int>{1000});
    EXPECT_EQ(stateItems(),
              "Start Recording, Stop Recording, Save Pause, Play, Play Multiple Times..., "
              "Save Macro...");
    EXPECT_TRUE(hotKeyCalls().empty());
    EXPECT_EQ(statusItem.shownMenu, nullptr);
}

TEST_F(StartUpTest, showsOnlyRecordOfTheSixItems) {
    controller.awakeFromNib();
    EXPECT_EQ(stateItems(), "Start Recording");
}

TEST_F(StartUpTest, runsTheTimersOfTheSplashAndOfTheScriptingService) {
    controller.awakeFromNib();
    EXPECT_EQ(timers(), (std::vector<int>{500, 30000}));
    EXPECT_TRUE(controller.timer.isSingleShot());
    EXPECT_TRUE(runs().empty());
}

TEST_F(StartUpTest, refreshesTheScriptingServiceEachTimeThatItsTimerRunsDown) {
    controller.awakeFromNib();
    runDown(30000);
    runDown(30000);
    EXPECT_EQ(runs(), (std::vector<std::string>{"", ""}));
}

TEST_F(StartUpTest, runsTheSplashWhenItsTimerRunsDown) {
    platform().settings.put("notFirstRun", 1);
    controller.awakeFromNib();
    platform().settings.addFault({"The disk is full.", ""});
    runDown(500);
    // The splash tells what nobody was told.
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0].message, "The disk is full.");
}

TEST_F(StartUpTest, leavesTheSplashOutWhenToldSo) {
    controller.noSplash = true;
    controller.awakeFromNib();
    EXPECT_EQ(timers(), std::vector<int>{30000});
}

TEST_F(StartUpTest, greetsAtTheFirstRun) {
    controller.awakeFromNib();
    platform().settings.endTurn();
    EXPECT_EQ(platform().settings.stored().at("notFirstRun"), 1);
    ASSERT_NE(controller.welcomePanel(), nullptr);
    EXPECT_TRUE(controller.welcomePanel()->isVisible());
    EXPECT_FLOAT_EQ(fadeEnd(*controller.welcomePanel()), 0.9F);
}

TEST_F(StartUpTest, takesAStoredZeroForTheFirstRun) {
    platform().settings.put("notFirstRun", 0);
    controller.awakeFromNib();
    EXPECT_TRUE(controller.runPreferencesOnLaunch);
    EXPECT_NE(controller.welcomePanel(), nullptr);
}

TEST_F(StartUpTest, doesNotGreetAtTheSecondRun) {
    platform().settings.put("notFirstRun", 1);
    controller.awakeFromNib();
    EXPECT_FALSE(controller.runPreferencesOnLaunch);
    EXPECT_EQ(controller.welcomePanel(), nullptr);
    EXPECT_TRUE(platform().settings.keysSet().empty());
}

TEST_F(StartUpTest, opensThePreferencesEachTimeThatTheWelcomePanelCloses) {
    controller.awakeFromNib();
    for (int i = 0; i < 2; ++i) {
        controller.welcomePanel()->show();
        controller.welcomePanel()->close();
        EXPECT_FALSE(controller.welcomePanel()->isVisible());
        ASSERT_NE(controller.preferencesWindow(), nullptr);
        EXPECT_TRUE(controller.preferencesWindow()->isVisible());
        controller.preferencesWindow()->close();
    }
}

TEST_F(StartUpTest, replacesWhatWasRegisteredBeforeTheSettingsWereRead) {
    platform().settings.put("recordCode", 15);
    platform().settings.put("recordFlags", 0x140000);
    controller.awakeFromNib();
    const std::map<HotKeyId, std::pair<std::uint32_t, std::uint32_t>> expected = {{1, {15, 0x1100}}};
    EXPECT_EQ(platform().hotKeys.registered(), expected);
}

TEST_F(StartUpTest, tellsOfASettingsFileThatCouldNotBeRead) {
    platform().settings.put("notFirstRun", 1);
    platform().settings.addFault({"keyrill.conf is not a key file.", "It was renamed."});
    controller.awakeFromNib();
    EXPECT_TRUE(dialogs.alerts.empty());
    QCoreApplication::processEvents();
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0].kind, AlertText::Kind::warning);
    EXPECT_EQ(dialogs.alerts[0].message, "keyrill.conf is not a key file.\n\nIt was renamed.");
}

TEST_F(StartUpTest, tellsThatTheMarkOfTheFirstRunCouldNotBeStored) {
    controller.awakeFromNib();
    platform().settings.failNextCall({"The disk is full.", ""});
    platform().settings.endTurn();
    controller.runSplash();
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0].message, "The disk is full.");
}

TEST_F(StartUpTest, showsTheControlWindowWhenStartedOnceMore) {
    controller.awakeFromNib();
    controller.showControlWindow();
    EXPECT_EQ(statusItem.windowRequests, 1);
}

TEST_F(StartUpTest, saysInTheFirstWindowThatNotAllWindowsAreSeen) {
    platform().sessionCheck.hideSomeWindows();
    controller.awakeFromNib();
    const auto hints = controller.welcomePanel()->findChildren<NoticeLine*>();
    ASSERT_EQ(hints.size(), 1);
    EXPECT_TRUE(
        hints.first()->notice().startsWith("In this session Keyrill sees and reaches only the windows"));
    EXPECT_EQ(statusItem.shownNotice, hints.first()->notice().toStdString());
}

TEST_F(StartUpTest, saysNothingWhereAllWindowsAreSeen) {
    controller.awakeFromNib();
    EXPECT_TRUE(controller.welcomePanel()->findChildren<NoticeLine*>().isEmpty());
    EXPECT_EQ(statusItem.shownNotice, "");
}

}  // namespace
