// SPDX-License-Identifier: MIT
#include "app/AppTest.h"
#include "core/MacroManager.h"

namespace {

using Messages = std::vector<FakeNotifications::Message>;

class ScriptQuestionsTest : public AppTest {
  protected:
    ScriptDialogs& questions() { return controller.scriptDialogs(); }
};

TEST_F(ScriptQuestionsTest, answersWithWhatTheUserAnswered) {
    dialogs.answerNextScript({1, "Ann"});
    const auto answer = questions().ask({.text = "Name?", .buttons = {"Cancel", "OK"}});
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer.value().button, 1U);
    EXPECT_EQ(answer.value().text, "Ann");
    EXPECT_EQ(dialogs.scriptTexts, std::vector<std::string>{"Name?"});
}

TEST_F(ScriptQuestionsTest, leavesTheKeyboardToTheUserBeforeItAsks) {
    dialogs.whileOpen(
        [this] { EXPECT_EQ(platform().keyInjector.postedKeys(), std::vector<std::string>{"rest"}); });
    dialogs.answerNextScript({0, ""});
    EXPECT_TRUE(questions().ask({.text = "Go on?", .buttons = {"OK"}}));
    EXPECT_FALSE(platform().keyInjector.isCancelled());
}

TEST_F(ScriptQuestionsTest, aQuestionThatGoesUnansweredEndsThePlayback) {
    const auto answer = questions().ask({.text = "Go on?", .buttons = {"OK"}});
    ASSERT_FALSE(answer);
    EXPECT_EQ(answer.error().message, "The question was not answered.");
    EXPECT_TRUE(platform().keyInjector.isCancelled());
}

TEST_F(ScriptQuestionsTest, theGateIsShutWhileAQuestionIsOpen) {
    platform().settings.put("notFirstRun", 1);
    controller.awakeFromNib();
    dialogs.whileOpen([this] {
        controller.statusMenu.recordMenuItem->trigger();
        controller.openMacroFile(QStringLiteral("/tmp/other.keyrill"));
    });
    dialogs.answerNextScript({0, ""});
    EXPECT_TRUE(questions().ask({.text = "Go on?", .buttons = {"OK"}}));
    EXPECT_FALSE(state().recording);
    EXPECT_EQ(platform().notifications.messages(),
              Messages({{R"("other.keyrill" was not loaded)", "Answer Keyrill's question first."}}));
    controller.statusMenu.recordMenuItem->trigger();
    EXPECT_TRUE(state().recording);
}

TEST_F(ScriptQuestionsTest, postsNotifications) {
    EXPECT_TRUE(questions().notify({.text = "Done & <b>gone</b>", .title = "Report", .subtitle = ""}));
    EXPECT_TRUE(questions().notify({.text = "Done", .title = "", .subtitle = "Weekly"}));
    EXPECT_TRUE(questions().notify({.text = "", .title = "Report", .subtitle = "Weekly"}));
    EXPECT_EQ(
        platform().notifications.messages(),
        Messages({{"Report", "Done & <b>gone</b>"}, {"Keyrill", "Weekly\nDone"}, {"Report", "Weekly"}}));
}

}  // namespace
