// SPDX-License-Identifier: MIT
#include "engine/MacroPlayer.h"

#include "engine/EngineTest.h"
#include "engine/FakeController.h"

namespace {

class MacroPlayerTest : public EngineTest {
  protected:
    using Messages = FakeController::Messages;

    static void record(std::uint32_t keyCode) { handleKeyEvent({KeyEventKind::keyDown, keyCode, 0, 0}); }

    FakeController gui{platform().journal};

  private:
    SharedControllerScope m_scope{gui};
};

TEST_F(MacroPlayerTest, aRecordingStartsWithANewNumberedMacro) {
    toggleRecording();
    EXPECT_TRUE(state().recording);
    ASSERT_NE(state().recordingMacro, nullptr);
    EXPECT_EQ(state().recordingMacro, MacroManager::macro(1));
    EXPECT_TRUE(state().recordingMacro->isEmpty());
    EXPECT_EQ(gui.messages(), Messages{"showRecordingGui()"});
}

TEST_F(MacroPlayerTest, whereNoKeysAreShownNoRecordingStartsAndThatIsTold) {
    platform().eventMonitor.blind = Error{"Nothing is shown here.", ""};
    toggleRecording();
    EXPECT_FALSE(state().recording);
    EXPECT_EQ(state().recordingMacro, nullptr);
    EXPECT_EQ(gui.messages(), Messages{R"(cannotRecord("Nothing is shown here."))"});
}

TEST_F(MacroPlayerTest, theSecondRecordEndsTheRecording) {
    toggleRecording();
    record(36);
    toggleRecording();
    EXPECT_FALSE(state().recording);
    EXPECT_EQ(state().recordingMacro, nullptr);
    EXPECT_EQ(state().currentMacro, MacroManager::macro(1));
    EXPECT_EQ(gui.messages(), (Messages{"showRecordingGui()", R"(setMacroString("↩"))", R"(addMacro("↩"))",
                                        "hideRecordingGui()"}));
}

TEST_F(MacroPlayerTest, stopFilesTheMacroAsTheCurrentOne) {
    toggleRecording();
    record(36);
    const auto macro = state().recordingMacro;
    stopRecording();
    EXPECT_EQ(state().currentMacro, macro);
    ASSERT_EQ(gui.history().size(), 1U);
    EXPECT_EQ(gui.history().front(), macro);
}

TEST_F(MacroPlayerTest, anEmptyRecordingIsDroppedAndKeepsItsNumber) {
    const auto before = macroWithScript("before");
    state().currentMacro = before;
    toggleRecording();
    stopRecording();
    EXPECT_EQ(state().currentMacro, before);
    EXPECT_EQ(state().recordingMacro, nullptr);
    EXPECT_EQ(gui.messages(), (Messages{"showRecordingGui()", "hideRecordingGui()"}));
    toggleRecording();
    EXPECT_EQ(state().recordingMacro->macroId(), 3);
}

TEST_F(MacroPlayerTest, stopWhileIdleDoesNothingAtAll) {
    markTable();
    stopRecording();
    EXPECT_TRUE(tableIsMarked());
    EXPECT_EQ(gui.messages(), Messages{});
}

TEST_F(MacroPlayerTest, commandsClearTheMarks) {
    for (void (*command)() : {&toggleRecording, &stopRecording, &promptMultiplePlay}) {
        markTable();
        command();
        EXPECT_FALSE(tableIsMarked());
    }
}

TEST_F(MacroPlayerTest, commandsClearTheMarksAfterTheUserInterfaceHasFollowed) {
    std::vector<bool> marks;
    gui.duringEachChange([&] { marks.push_back(tableIsMarked()); });
    for (void (*command)() : {&toggleRecording, &stopRecording, &promptMultiplePlay}) {
        markTable();
        command();
    }
    EXPECT_EQ(marks, (std::vector<bool>{true, true, true}));
}

TEST_F(MacroPlayerTest, multiplePlayAsksAndDoesNotPlay) {
    state().currentMacro = macroWithScript("beep");
    promptMultiplePlay();
    EXPECT_EQ(gui.messages(), Messages{"showMultiplePlayGui()"});
    EXPECT_EQ(runs().size(), 0U);
}

TEST_F(MacroPlayerTest, aCancelledRecordingRecordsNothing) {
    gui.setFollowsUpdateNotice(true);
    toggleRecording();
    record(36);
    EXPECT_TRUE(state().recording);
    EXPECT_EQ(state().recordingMacro, nullptr);
    EXPECT_EQ(gui.messages(), Messages{"showRecordingGui()"});
}

TEST_F(MacroPlayerTest, stopEndsACancelledRecordingAsAnEmptyOne) {
    const auto before = macroWithScript("before");
    state().currentMacro = before;
    gui.setFollowsUpdateNotice(true);
    toggleRecording();
    stopRecording();
    EXPECT_FALSE(state().recording);
    EXPECT_EQ(state().currentMacro, before);
    EXPECT_EQ(gui.messages(), (Messages{"showRecordingGui()", "hideRecordingGui()"}));
}

TEST_F(MacroPlayerTest, tellsThatTheCurrentMacroHasBecomeAnotherOne) {
    const auto macro = macroWithScript("beep");
    setCurrentMacro(macro);
    EXPECT_EQ(state().currentMacro, macro);
    EXPECT_EQ(gui.messages(), Messages{"currentMacroChanged()"});
}

TEST_F(MacroPlayerTest, recordEndsACancelledRecordingAndTheNextOneStartsAfresh) {
    gui.setFollowsUpdateNotice(true);
    toggleRecording();
    toggleRecording();
    EXPECT_FALSE(state().recording);
    gui.setFollowsUpdateNotice(false);
    toggleRecording();
    record(36);
    stopRecording();
    EXPECT_EQ(gui.history().size(), 1U);
}

TEST_F(MacroPlayerTest, theMonitorKnowsWhetherAMacroIsRecorded) {
    toggleRecording();
    EXPECT_TRUE(platform().eventMonitor.isRecording());
    stopRecording();
    EXPECT_FALSE(platform().eventMonitor.isRecording());
}

}  // namespace
