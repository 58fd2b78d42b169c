// SPDX-License-Identifier: MIT
#include <QPropertyAnimation>

#include "app/AppTest.h"
#include "app/overlay/MacroText.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/RecorderWindow.h"
#include "app/overlay/SplashAnimation.h"
#include "app/overlay/SplashWindow.h"
#include "app/panels/PreferencesPanel.h"
#include "platform/Addresses.h"
#include "support/Keys.h"

namespace {

class OverlaysTest : public AppTest {
  protected:
    QWidget& overlay() const { return *controller.recorderWindow(); }
    void findUpdateAtStart() {
        platform().updateService.makerPublishes("99.0");
        controller.backgroundCheckForUpdates();
    }
    std::string shownItems() const {
        const StatusMenu& items = controller.statusMenu;
        std::string shown;
        for (const QAction* item : {items.recordMenuItem, items.stopMenuItem, items.saveDelayMenuItem,
                                    items.playMenuItem, items.multiplePlayMenuItem}) {
            if (item->isVisible()) shown += (shown.empty() ? "" : ", ") + item->text().toStdString();
        }
        return shown;
    }
};

// Fades

TEST_F(OverlaysTest, startsEachFadeInFromNothing) {
    QWidget window;
    window.setWindowOpacity(1);
    window.show();
    controller.fadeInPanel(&window, 0.9);
    EXPECT_TRUE(isFadingIn(window));
    const auto* fade = window.findChild<QPropertyAnimation*>();
    EXPECT_EQ(fade->duration(), 350);
    EXPECT_FLOAT_EQ(fadeEnd(window), 0.9F);
}

TEST_F(OverlaysTest, hasOneFadeAtATime) {
    QWidget window;
    controller.fadeInPanel(&window, 0.9);
    controller.fadeInPanel(&window, 0.8);
    EXPECT_EQ(window.findChildren<QPropertyAnimation*>().size(), 1);
    EXPECT_FLOAT_EQ(fadeEnd(window), 0.8F);
}

TEST_F(OverlaysTest, hidesInTheSameCallWhenFadingOut) {
    QWidget window;
    controller.fadeInPanel(&window, 0.9);
    controller.fadeOutPanel(&window);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(window.findChild<QPropertyAnimation*>(), nullptr);
}

TEST_F(OverlaysTest, leadsToNothingWhenAnimatingOut) {
    QWidget window;
    window.show();
    controller.animatePanelOut(&window);
    EXPECT_EQ(fadeEnd(window), 0);
    controller.alphaZero(&window);
    EXPECT_EQ(window.windowOpacity(), 0);
    EXPECT_EQ(window.findChild<QPropertyAnimation*>(), nullptr);
}

TEST_F(OverlaysTest, bringsAMinimisedWindowBackWhenFadingIn) {
    QWidget window;
    window.showMinimized();
    controller.fadeInPanel(&window, 0.9);
    EXPECT_FALSE(window.isMinimized());
}

// Recording

TEST_F(OverlaysTest, fadesTheOverlayInWhenARecordingStarts) {
    controller.recordMacro(nullptr);
    EXPECT_TRUE(isFadingIn(overlay()));
    EXPECT_FLOAT_EQ(fadeEnd(overlay()), 0.8F);
    EXPECT_EQ(state().lastEventTime, platform().clock.now());
}

TEST_F(OverlaysTest, fadesThePromptInToTheSameOpacity) {
    controller.showMultiplePlayGui();
    EXPECT_TRUE(isFadingIn(*controller.multiplePlayWindow()));
    EXPECT_FLOAT_EQ(fadeEnd(*controller.multiplePlayWindow()), 0.8F);
}

TEST_F(OverlaysTest, showsTheKeysOfTheRecordingAndNoneOfTheOneBefore) {
    controller.recordMacro(nullptr);
    const auto* text = overlay().findChild<MacroText*>();
    ASSERT_NE(text, nullptr);
    type(key::returnKey);
    EXPECT_EQ(text->text(), QStringLiteral("↩"));
    type(key::one);
    EXPECT_EQ(text->text(), QStringLiteral("↩1"));
    controller.stopMacro(nullptr);
    controller.recordMacro(nullptr);
    EXPECT_EQ(text->text(), QString());
}

TEST_F(OverlaysTest, takesTheOverlayAwayWhenTheRecordingEnds) {
    controller.recordMacro(nullptr);
    controller.stopMacro(nullptr);
    EXPECT_FALSE(overlay().isVisible());
}

TEST_F(OverlaysTest, leavesTheOverlayWhenTheOtherWindowsAreHidden) {
    controller.recordMacro(nullptr);
    controller.hide();
    EXPECT_TRUE(overlay().isVisible());
}

// The update question

TEST_F(OverlaysTest, opensTheDownloadPageInPlaceOfARecording) {
    findUpdateAtStart();
    dialogs.answerNextAlert(AlertAnswer::defaultButton);
    controller.recordMacro(nullptr);
    EXPECT_EQ(platform().workspace.openedUrls(),
              std::vector<std::string>{std::string(addresses::downloadPage)});
    EXPECT_EQ(controller.recorderWindow(), nullptr);
    EXPECT_EQ(shownItems(), "Stop Recording");
    EXPECT_FALSE(state().recordingMacro);
    EXPECT_FALSE(controller.checkForUpdateCompleted);
    EXPECT_FALSE(controller.updateAvailable);
}

TEST_F(OverlaysTest, putsTheMenuBackWithTheNextStopAfterTheDownload) {
    findUpdateAtStart();
    dialogs.answerNextAlert(AlertAnswer::defaultButton);
    controller.recordMacro(nullptr);
    type(key::returnKey);
    controller.stopMacro(nullptr);
    EXPECT_EQ(shownItems(), "Start Recording, Play, Play Multiple Times...");
    EXPECT_FALSE(state().currentMacro);
    controller.recordMacro(nullptr);
    EXPECT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_TRUE(overlay().isVisible());
}

TEST_F(OverlaysTest, goesOnRecordingWhenTheDownloadIsDeclined) {
    findUpdateAtStart();
    controller.recordMacro(nullptr);
    EXPECT_TRUE(overlay().isVisible());
    EXPECT_EQ(shownItems(), "Stop Recording, Save Pause");
    EXPECT_TRUE(platform().workspace.openedUrls().empty());
}

// Hiding and bringing back

TEST_F(OverlaysTest, hidesThePanelsThatAreShownDuringAMultiplePlayAndBringsThemBack) {
    state().currentMacro = macroWithScript("script");
    controller.showPreferences(nullptr);
    controller.showMultiplePlayGui();
    bool visibleMeanwhile = true;
    platform().scripting.duringEachRun(
        [&] { visibleMeanwhile = controller.preferencesWindow()->isVisible(); });
    platform().journal.clear();
    controller.doMultiplePlay(nullptr);
    EXPECT_FALSE(visibleMeanwhile);
    EXPECT_TRUE(controller.preferencesWindow()->isVisible());
    EXPECT_FALSE(controller.multiplePlayWindow()->isVisible());
    // Nothing asks for the focus (PanelsAfterPlayTest asks others who has it then), and nothing has been
    // closed: hot keys are still off, nothing is saved.
    EXPECT_EQ(windows.calls(), std::vector<std::string>{"awaitFocusElsewhere(hidden)"});
    EXPECT_FALSE(state().hotKeysEnabled);
    EXPECT_TRUE(platform().settings.keysSet().empty());
}

TEST_F(OverlaysTest, hidesThePanelsAndThePromptBeforeTheHalfSecondThatTheDesktopGets) {
    state().currentMacro = macroWithScript("script");
    controller.showPreferences(nullptr);
    controller.showMultiplePlayGui();
    std::vector<bool> visible;
    platform().clock.duringEachSleep([&] {
        visible.push_back(controller.preferencesWindow()->isVisible());
        visible.push_back(controller.multiplePlayWindow()->isVisible());
    });
    platform().scripting.duringEachRun([this] { platform().clock.duringEachSleep({}); });
    controller.doMultiplePlay(nullptr);
    EXPECT_EQ(visible, (std::vector<bool>{false, false}));
    EXPECT_EQ(platform().clock.sleeps().front(), Clock::Seconds(0.5));
}

TEST_F(OverlaysTest, leavesAMinimisedPanelMinimised) {
    controller.showPreferences(nullptr);
    controller.preferencesWindow()->showMinimized();
    controller.hide();
    controller.unhide();
    EXPECT_TRUE(controller.preferencesWindow()->isMinimized());
}

// Splash

TEST_F(OverlaysTest, hidesTheSplashWindowAndStopsItsAnimation) {
    controller.hideSplashScreen();
    EXPECT_EQ(controller.splashWindow(), nullptr);
    SplashWindow& splash = controller.builtSplashWindow();
    splash.show();
    EXPECT_TRUE(splash.splashAnim().isRendering());
    controller.hideSplashScreen();
    EXPECT_FALSE(splash.isVisible());
    EXPECT_FALSE(splash.splashAnim().isRendering());
}

}  // namespace
