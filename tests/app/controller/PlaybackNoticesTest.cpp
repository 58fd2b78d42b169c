// SPDX-License-Identifier: MIT
#include <QLineEdit>

#include "app/AppTest.h"
#include "app/languages/Catalogues.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/tray/MacroMenuItem.h"
#include "core/MacroManager.h"

namespace {

using Messages = std::vector<FakeNotifications::Message>;

const ScriptFailure broken{.hasBegun = false, .line = 3, .error = {"Expected end.", "Write it."}};

/// What the user is told when a play command was in vain.
class PlaybackNoticesTest : public AppTest {
  protected:
    PlaybackNoticesTest() { state().currentMacro = macroWithScript("script"); }

    const Messages& messages() { return platform().notifications.messages(); }
};

TEST_F(PlaybackNoticesTest, nameLineMessageAndHintOfAScriptThatDoesNotCompile) {
    platform().scripting.refuse("script", broken);
    controller.playMacro(nullptr);
    EXPECT_EQ(messages(), (Messages{{"The macro cannot be played", "Line 3: Expected end.\nWrite it."}}));
}

TEST_F(PlaybackNoticesTest, nameLineAndMessageOfAScriptThatFails) {
    platform().scripting.failNextCall({"Can't divide.", ""});
    controller.playMacro(nullptr);
    EXPECT_EQ(messages(), (Messages{{"The macro was not played to its end", "Line 2: Can't divide."}}));
}

TEST_F(PlaybackNoticesTest, areInTheLanguageOfTheDesktopWhenTheyAreShown) {
    platform().scripting.refuse(
        "script", {.hasBegun = false,
                   .line = 1,
                   .error = {sentence("ScriptErrors", "Can’t divide %1 by zero.").arg("1"), ""}});
    const Catalogues german({"de"});
    controller.playMacro(nullptr);
    EXPECT_EQ(messages(), (Messages{{"Das Makro kann nicht abgespielt werden",
                                     "Zeile 1: 1 kann nicht durch null geteilt werden."}}));
}

TEST_F(PlaybackNoticesTest, comeOnceForAPlayCommandHoweverOftenItPlays) {
    platform().scripting.refuse("script", broken);
    controller.showMultiplePlayGui();
    controller.multiplePlayWindow()->findChild<QLineEdit*>()->setText("5");
    controller.doMultiplePlay(nullptr);
    EXPECT_EQ(platform().scripting.runs().size(), 5U);
    EXPECT_EQ(messages().size(), 1U);
    controller.playMacro(nullptr);
    EXPECT_EQ(messages().size(), 2U);
}

TEST_F(PlaybackNoticesTest, comeAfterAPlayFromTheHistory) {
    platform().scripting.refuse("old", broken);
    const boost::shared_ptr<Macro> macro = MacroManager::createMacro();
    macro->setScript("old");
    MacroMenuItem item("old", nullptr);
    item.setMacroId(macro->macroId());
    controller.runMacro(&item);
    EXPECT_EQ(messages().size(), 1U);
}

TEST_F(PlaybackNoticesTest, doNotComeWhenAllIsPlayedOrThePlaybackIsCancelled) {
    controller.playMacro(nullptr);
    platform().scripting.duringEachRun([this] { platform().desktop.cancelPlayback(); });
    controller.playMacro(nullptr);
    EXPECT_EQ(messages(), Messages{});
}

TEST_F(PlaybackNoticesTest, standAtTheStatusItemWhereNobodyShowsThemUntilAllIsWell) {
    platform().notifications.losePresenter();
    platform().scripting.refuse("script", broken);
    controller.playMacro(nullptr);
    EXPECT_EQ(statusItem.shownNotice, "The macro cannot be played. Line 3: Expected end.\nWrite it.");
    state().currentMacro = macroWithScript("good");
    controller.playMacro(nullptr);
    EXPECT_EQ(statusItem.shownNotice, "");
    EXPECT_TRUE(dialogs.alerts.empty());
}

TEST_F(PlaybackNoticesTest, doNotStandAtTheStatusItemWhereTheyAreShown) {
    platform().scripting.refuse("script", broken);
    controller.playMacro(nullptr);
    EXPECT_EQ(statusItem.shownNotice, "");
}

TEST_F(PlaybackNoticesTest, doNotComeOfTheEmptyScriptThatKeepsTheServiceReady) {
    platform().scripting.failNextCall({"No keys.", ""});
    controller.refreshAppleScript();
    EXPECT_EQ(messages(), Messages{});
}

}  // namespace
