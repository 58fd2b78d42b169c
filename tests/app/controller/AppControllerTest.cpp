// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPropertyAnimation>
#include <QScreen>

#include "app/AppTest.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/panels/PreferencesPanel.h"
#include "app/tray/Actions.h"
#include "app/tray/MacroMenuItem.h"
#include "engine/MacroPlayer.h"
#include "platform/Features.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

namespace {

class AppControllerTest : public AppTest {
  protected:
    void recordKey(std::uint32_t keyCode) {
        controller.recordMacro(nullptr);
        type(keyCode);
        controller.stopMacro(nullptr);
    }

    QList<QAction*> history() const { return controller.statusMenu.historyMenu->actions(); }
};

TEST_F(AppControllerTest, startsWithTheBusyImageAndOnlyRecordToChoose) {
    controller.awakeFromNib();
    EXPECT_EQ(statusItem.shownMenu, &controller.statusMenu);
    EXPECT_EQ(statusItem.shownImage, StatusImage::busy);
    EXPECT_EQ(menu(),
              "Start Recording, -, [History], Load Macro..., Macros..., -, Preferences..., Help, -, Quit");
}

TEST_F(AppControllerTest, theHistoryOfEarlierRunsIsInTheMenuWhereItIsKept) {
    using namespace std::chrono_literals;
    for (const auto& [time, name] : {std::pair(2ms, "later"), std::pair(1ms, "earlier")}) {
        EXPECT_TRUE(
            platform().recordings.keep({.recordedAt = RecordedAt(time), .title = name, .script = name}));
    }
    platform().settings.put("keepHistory", 1);
    controller.awakeFromNib();
    recordKey(key::a);
    ASSERT_EQ(history().size(), 3);
    EXPECT_EQ(history()[0]->text(), "A");
    EXPECT_EQ(history()[1]->text(), "later");
    EXPECT_EQ(history()[2]->text(), "earlier");
    history()[2]->trigger();
    EXPECT_EQ(runs(), std::vector<std::string>{"earlier"});
    EXPECT_EQ(state().currentMacro->script(), "earlier");
}

TEST_F(AppControllerTest, theHistoryOfEarlierRunsIsNotReadWhereItIsNotKept) {
    EXPECT_TRUE(platform().recordings.keep({.title = "earlier", .script = "earlier"}));
    controller.awakeFromNib();
    EXPECT_TRUE(history().isEmpty());
    EXPECT_FALSE(controller.statusMenu.item(menuIndex("history"))->isEnabled());
    // It is not for a start to delete what the user has not forgotten.
    EXPECT_EQ(platform().recordings.titles(), std::vector<std::string>{"earlier"});
}

TEST_F(AppControllerTest, whatIsForgottenLeavesTheMenu) {
    controller.awakeFromNib();
    recordKey(key::a);
    recordKey(key::b);
    const int earlier = library.controller.history().entries()[1].macroId;
    EXPECT_TRUE(library.controller.history().forget(earlier));
    ASSERT_EQ(history().size(), 1);
    EXPECT_EQ(history()[0]->text(), "B");
    EXPECT_TRUE(library.controller.history().forgetAll());
    EXPECT_TRUE(history().isEmpty());
    EXPECT_FALSE(controller.statusMenu.item(menuIndex("history"))->isEnabled());
}

TEST_F(AppControllerTest, showsTheNormalImageAfterTheSplash) {
    controller.awakeFromNib();
    controller.runSplash();
    EXPECT_EQ(statusItem.shownImage, StatusImage::normal);
}

TEST_F(AppControllerTest, registersTheHotKeysOfTheSettings) {
    platform().settings.put("playCode", 35);
    platform().settings.put("playFlags", controlflag::control | controlflag::command);
    controller.awakeFromNib();
    const std::map<HotKeyId, std::pair<std::uint32_t, std::uint32_t>> expected = {
        {3, {35, modifier::control | modifier::command}}};
    EXPECT_EQ(platform().hotKeys.registered(), expected);
}

TEST_F(AppControllerTest, showsWhichHotKeyIsRefusedAndWhy) {
    platform().hotKeys.otherProgramHolds(35, modifier::control);
    platform().settings.put("playCode", 35);
    platform().settings.put("playFlags", controlflag::control);
    controller.awakeFromNib();
    EXPECT_EQ(statusItem.shownNotice,
              "Play has no shortcut. " + platform().hotKeys.state(3).error->message.text());
}

TEST_F(AppControllerTest, saysWhyNothingCanBeRecordedHere) {
    controller.awakeFromNib();
    platform().eventMonitor.blind = Error{"Keys are shown to nobody.", "Log in elsewhere."};
    controller.recordMacro(nullptr);
    ASSERT_EQ(dialogs.alerts.size(), 1U);
    EXPECT_EQ(dialogs.alerts[0].title, "Recording is not possible in this session yet");
    EXPECT_EQ(dialogs.alerts[0].message, "Keys are shown to nobody.\n\nLog in elsewhere.");
    EXPECT_FALSE(engineState().recording);
}

TEST_F(AppControllerTest, showsStopAndSavePauseWhileRecording) {
    controller.recordMacro(nullptr);
    EXPECT_EQ(menu(),
              "Stop Recording, Save Pause, -, [History], [Load Macro...], Macros..., -, Preferences..., "
              "Help, -, Quit");
}

TEST_F(AppControllerTest, offersPlayingWhenAMacroWasRecorded) {
    recordKey(key::returnKey);
    EXPECT_EQ(menu(),
              "Start Recording, Play, Play Multiple Times..., -, History, Save Macro..., Load Macro..., "
              "Macros..., -, "
              "Preferences..., Help, -, Quit");
}

TEST_F(AppControllerTest, greysPlayingAfterAnEmptyRecording) {
    controller.recordMacro(nullptr);
    controller.stopMacro(nullptr);
    EXPECT_EQ(menu(),
              "Start Recording, [Play], [Play Multiple Times...], -, [History], [Save Macro...], Load "
              "Macro..., Macros..., -, "
              "Preferences..., Help, -, Quit");
}

TEST_F(AppControllerTest, filesTheNewestMacroOnTop) {
    recordKey(key::returnKey);
    recordKey(key::escape);
    ASSERT_EQ(history().size(), 2);
    EXPECT_EQ(history().at(0)->text().toStdString(), MacroManager::macro(2)->displayText());
    EXPECT_EQ(history().at(1)->text().toStdString(), MacroManager::macro(1)->displayText());
}

TEST_F(AppControllerTest, playsAnOlderMacroFromTheHistoryAndMakesItTheCurrentOne) {
    recordKey(key::returnKey);
    recordKey(key::escape);
    history().at(1)->trigger();
    EXPECT_EQ(state().currentMacro, MacroManager::macro(1));
    EXPECT_EQ(runs(), std::vector<std::string>{MacroManager::macro(1)->script()});
    EXPECT_EQ(windows.calls(), std::vector<std::string>{"awaitFocusElsewhere(none)"});
}

TEST_F(AppControllerTest, runsNothingForASenderThatIsNoMacroMenuItem) {
    recordKey(key::returnKey);
    controller.runMacro(controller.statusMenu.playMenuItem);
    controller.runMacro(nullptr);
    EXPECT_TRUE(runs().empty());
}

TEST_F(AppControllerTest, playsFromTheMenuOnceTheFocusIsBack) {
    recordKey(key::returnKey);
    controller.playMacro(nullptr);
    EXPECT_EQ(windows.calls(), std::vector<std::string>{"awaitFocusElsewhere(none)"});
    EXPECT_EQ(runs().size(), 1U);
}

TEST_F(AppControllerTest, savesThePauseSinceTheRecordingStarted) {
    controller.recordMacro(nullptr);
    platform().clock.advance(Clock::Seconds(1.5));
    controller.statusMenu.saveDelayMenuItem->trigger();
    controller.stopMacro(nullptr);
    EXPECT_NE(state().currentMacro->script().find("delay 1.5\n"), std::string::npos)
        << state().currentMacro->script();
}

TEST_F(AppControllerTest, refreshesTheScriptingServiceWithAnEmptyScript) {
    controller.refreshAppleScript();
    EXPECT_EQ(runs(), std::vector<std::string>{""});
}

TEST_F(AppControllerTest, opensThePromptWithThePermissionOfTheHotKey) {
    controller.showMultiplePlayGui();
    EXPECT_TRUE(controller.multiplePlayWindow()->isVisible());
    EXPECT_EQ(windows.calls(), std::vector<std::string>{
                                   "activate(" + std::to_string(platform().hotKeys.lastPressTime()) + ")"});
}

TEST_F(AppControllerTest, fadesInFromNothing) {
    QWidget window;
    window.setWindowOpacity(1);
    controller.fadeInPanel(&window, 0.9);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.windowOpacity(), 0);
    auto* fade = window.findChild<QPropertyAnimation*>();
    ASSERT_NE(fade, nullptr);
    EXPECT_EQ(fade->duration(), 350);
    EXPECT_FLOAT_EQ(fade->endValue().toFloat(), 0.9F);
}

TEST_F(AppControllerTest, hidesAtOnceWhenFadingOut) {
    QWidget window;
    controller.fadeInPanel(&window, 0.9);
    controller.fadeOutPanel(&window);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AppControllerTest, hidesTheStandInWindowAndBringsItBack) {
    QWidget standIn;
    standIn.show();
    statusItem.standIn = &standIn;
    controller.hide();
    EXPECT_FALSE(standIn.isVisible());
    controller.unhide();
    EXPECT_TRUE(standIn.isVisible());
}

TEST_F(AppControllerTest, hidesEveryWindowOfItsOwnAndBringsItBack) {
    controller.showPreferences(nullptr);
    controller.aboutKeyrill(nullptr);
    controller.showStatus(nullptr);
    controller.showMacros(nullptr);
    std::vector<QWidget*> shown;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) shown.push_back(window);
    }
    EXPECT_EQ(shown.size(), 4U);
    controller.hide();
    for (const QWidget* window : shown)
        EXPECT_FALSE(window->isVisible()) << window->windowTitle().toStdString();
    controller.unhide();
    for (const QWidget* window : shown)
        EXPECT_TRUE(window->isVisible()) << window->windowTitle().toStdString();
}

TEST_F(AppControllerTest, leavesAHiddenStandInWindowHidden) {
    QWidget standIn;
    statusItem.standIn = &standIn;
    controller.hide();
    controller.unhide();
    EXPECT_FALSE(standIn.isVisible());
}

TEST_F(AppControllerTest, tellsTwoMacrosOfTheSameTextApart) {
    recordKey(key::returnKey);
    recordKey(key::returnKey);
    ASSERT_EQ(history().at(0)->text(), history().at(1)->text());
    MacroManager::macro(1)->setScript("first");
    MacroManager::macro(2)->setScript("second");
    history().at(1)->trigger();
    history().at(0)->trigger();
    EXPECT_EQ(runs(), (std::vector<std::string>{"first", "second"}));
}

TEST_F(AppControllerTest, filesThreeRecordingsWithTheLastOnTop) {
    for (const std::uint32_t code : {key::returnKey, key::escape, key::returnKey}) recordKey(code);
    std::vector<int> numbers;
    for (const QAction* item : history()) {
        numbers.push_back(static_cast<const MacroMenuItem*>(item)->macroId());
    }
    EXPECT_EQ(numbers, (std::vector<int>{3, 2, 1}));
}

TEST_F(AppControllerTest, filesNoEmptyRecordingAndOffersPlayingAllTheSame) {
    recordKey(key::returnKey);
    controller.recordMacro(nullptr);
    controller.stopMacro(nullptr);
    EXPECT_EQ(history().size(), 1);
    EXPECT_TRUE(controller.statusMenu.playMenuItem->isVisible());
    EXPECT_TRUE(controller.statusMenu.multiplePlayMenuItem->isVisible());
    EXPECT_TRUE(controller.statusMenu.saveMacroMenuItem->isVisible());
}

TEST_F(AppControllerTest, leavesSaveAsItWasWhenARecordingStarts) {
    controller.awakeFromNib();
    controller.recordMacro(nullptr);
    EXPECT_FALSE(controller.statusMenu.saveMacroMenuItem->isVisible());
    controller.stopMacro(nullptr);
    controller.recordMacro(nullptr);
    EXPECT_TRUE(controller.statusMenu.saveMacroMenuItem->isVisible());
}

TEST_F(AppControllerTest, showsAnAmpersandOfATitleAsItIs) {
    const MacroMenuItem item(QStringLiteral("a&b"));
    EXPECT_EQ(item.text(), "a&&b");
    EXPECT_EQ(item.macroId(), 0);
}

TEST_F(AppControllerTest, hasTheHelpMenuInItsOrder) {
    QStringList titles;
    for (const QAction* item : controller.statusMenu.helpMenu->actions()) {
        titles.append(item->isSeparator() ? QStringLiteral("-") : item->text());
    }
    const std::string updates = features::updateCheck ? "Check for Updates..., " : "";
    EXPECT_EQ(titles.join(QStringLiteral(", ")).toStdString(),
              "Documentation, Forum, Product Page, Maker's Website, -, Get Support, Send Feedback, Report a "
              "Bug, What Works Here, -, " +
                  updates + "About Keyrill");
}

TEST_F(AppControllerTest, aHistoryOf500HasTheNewestFirstAndScrollsToTheOldest) {
    for (int number = 1; number <= 500; ++number) recordKey(key::returnKey);
    QMenu& history = *controller.statusMenu.historyMenu;
    ASSERT_EQ(history.actions().size(), 500);
    const auto numberOf = [](const QAction* entry) {
        return dynamic_cast<const MacroMenuItem&>(*entry).macroId();
    };
    for (int line = 1; line < 500; ++line)
        EXPECT_EQ(numberOf(history.actions()[line - 1]), numberOf(history.actions()[line]) + 1);
    history.popup({0, 0});
    EXPECT_LE(history.height(), history.screen()->geometry().height());
    EXPECT_TRUE(history.rect().contains(history.actionGeometry(history.actions().first())));
    EXPECT_FALSE(history.rect().contains(history.actionGeometry(history.actions().last())));
    QKeyEvent end(QEvent::KeyPress, Qt::Key_End, Qt::NoModifier);
    QCoreApplication::sendEvent(&history, &end);
    EXPECT_TRUE(history.rect().contains(history.actionGeometry(history.actions().last())));
    history.hide();
    history.actions().last()->trigger();
    EXPECT_EQ(state().currentMacro->macroId(), numberOf(history.actions().last()));
}

TEST_F(AppControllerTest, carriesOutWhatIsAskedFromOutside) {
    EXPECT_TRUE(controller.carryOut(*actionNamed("record")));
    type(key::a);
    EXPECT_TRUE(controller.carryOut(*actionNamed("stop")));
    EXPECT_TRUE(controller.carryOut(*actionNamed("play")));
    EXPECT_EQ(platform().scripting.runs(), std::vector<std::string>());
    QCoreApplication::processEvents();
    EXPECT_EQ(platform().scripting.runs().size(), 1U);
}

TEST_F(AppControllerTest, playsWhatIsAskedFromOutsideAndLeavesTheCurrentMacro) {
    recordKey(key::a);
    const std::string mine = state().currentMacro->script();
    bool hasBegun = false;
    EXPECT_TRUE(controller.askedPlays().ask(
        {.script = "beep", .options = {.times = {2}, .speed = 4}, .begins = [&] { hasBegun = true; }}));
    EXPECT_FALSE(hasBegun);
    QCoreApplication::processEvents();
    EXPECT_TRUE(hasBegun);
    EXPECT_EQ(runs(), (std::vector<std::string>{"beep", "beep"}));
    EXPECT_EQ(platform().scripting.speeds(), (std::vector<double>{4, 4}));
    EXPECT_EQ(windows.calls(), Journal::Lines{"awaitFocusElsewhere(none)"});
    EXPECT_EQ(state().currentMacro->script(), mine);
}

TEST_F(AppControllerTest, aPlayFromOutsideNeedsNoCurrentMacroButThatNothingIsRecorded) {
    EXPECT_TRUE(controller.askedPlays().ask({.script = "beep"}));
    QCoreApplication::processEvents();
    EXPECT_EQ(runs().size(), 1U);
    controller.recordMacro(nullptr);
    EXPECT_EQ(controller.askedPlays().ask({.script = "beep"}).error().message, "A macro is being recorded.");
}

TEST_F(AppControllerTest, nobodyFromOutsideTypesIntoItsOwnWindows) {
    recordKey(key::a);
    controller.showPreferences(nullptr);
    EXPECT_EQ(controller.askedPlays().ask({.script = "beep"}).error().message,
              "Keyrill's hot keys are off while they are being chosen in a window of its own.");
    EXPECT_FALSE(controller.carryOut(*actionNamed("record")));
    controller.preferencesWindow()->close();
    controller.showMultiplePlayGui();
    EXPECT_EQ(controller.askedPlays().ask({.script = "beep"}).error().message,
              "Keyrill is asking how often to play.");
    controller.multiplePlayWindow()->close();
    EXPECT_TRUE(controller.askedPlays().ask({.script = "beep"}));
}

TEST_F(AppControllerTest, aPlayFromOutsideIsForgottenWhenAQuestionOpensBeforeItBegins) {
    controller.awakeFromNib();
    EXPECT_TRUE(controller.askedPlays().ask({.script = "beep"}));
    platform().screenLock.userLocksScreen();
    QCoreApplication::processEvents();
    EXPECT_EQ(runs(), std::vector<std::string>());
    EXPECT_EQ(controller.askedPlays().ask({.script = "beep"}).error().message, "The screen is locked.");
}

TEST_F(AppControllerTest, aPlayFromOutsideIsForgottenWhenThePromptOpensBeforeItBegins) {
    recordKey(key::a);
    EXPECT_TRUE(controller.askedPlays().ask({.script = "beep"}));
    controller.showMultiplePlayGui();
    QCoreApplication::processEvents();
    EXPECT_EQ(runs(), std::vector<std::string>());
    controller.multiplePlayWindow()->close();
    EXPECT_TRUE(controller.askedPlays().ask({.script = "beep"}));
    QCoreApplication::processEvents();
    EXPECT_EQ(runs(), std::vector<std::string>{"beep"});
}

TEST_F(AppControllerTest, aPlayFromOutsideIsForgottenWhenARecordingStartsBeforeItBegins) {
    EXPECT_TRUE(controller.askedPlays().ask({.script = "beep"}));
    controller.recordMacro(nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(runs(), std::vector<std::string>());
}

TEST_F(AppControllerTest, aPlayFromOutsideIsForgottenWhenHotKeysAreChosenBeforeItBegins) {
    EXPECT_TRUE(controller.askedPlays().ask({.script = "beep"}));
    controller.showPreferences(nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(runs(), std::vector<std::string>());
}

TEST_F(AppControllerTest, aStopFromOutsideTakesBackAPlayThatHasNotBegun) {
    recordKey(key::a);
    EXPECT_TRUE(controller.carryOut(*actionNamed("play")));
    EXPECT_TRUE(controller.carryOut(*actionNamed("stop")));
    QCoreApplication::processEvents();
    EXPECT_EQ(platform().scripting.runs(), std::vector<std::string>());
    EXPECT_EQ(controller.carryOut(*actionNamed("stop")).error().message,
              "Nothing is being recorded or played.");
}

}  // namespace
