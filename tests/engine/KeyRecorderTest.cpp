// SPDX-License-Identifier: MIT
#include "engine/KeyRecorder.h"

#include "engine/EngineTest.h"
#include "engine/FakeController.h"
#include "platform/Modifiers.h"

namespace {

class KeyRecorderTest : public EngineTest {
  protected:
    void startRecording() { state().recordingMacro = MacroManager::createMacro(); }
    static void keyGoesDown(std::uint32_t keyCode, char character) {
        handleKeyEvent({KeyEventKind::keyDown, keyCode, character, 0});
    }
    static void modifiersBecome(std::uint32_t mask) {
        handleKeyEvent({KeyEventKind::modifiersChanged, 0, 0, mask});
    }
    std::string recorded() { return state().recordingMacro->fullDisplayText(); }

    FakeController gui{platform().journal};

  private:
    SharedControllerScope m_scope{gui};
};

TEST_F(KeyRecorderTest, recordsAKeyPressAndShowsTheMacro) {
    startRecording();
    keyGoesDown(36, '\r');
    keyGoesDown(18, '1');
    EXPECT_EQ(recorded(), "↩1");
    EXPECT_EQ(gui.messages(),
              (FakeController::Messages{R"(setMacroString("↩"))", R"(setMacroString("↩1"))"}));
}

TEST_F(KeyRecorderTest, namesASmallLetterSmall) {
    startRecording();
    keyGoesDown(0, 'a');
    keyGoesDown(6, 'z');
    EXPECT_EQ(recorded(), "az");
}

TEST_F(KeyRecorderTest, makesTheWholeNameSmallForASmallLetter) {
    platform().keyboardLayout.renameKey(0, "Key A");
    startRecording();
    keyGoesDown(0, 'a');
    EXPECT_EQ(recorded(), "key a");
}

TEST_F(KeyRecorderTest, leavesTheNameOfAnyOtherKeyAlone) {
    platform().keyboardLayout.renameKey(1, "Name");
    startRecording();
    for (const char character : {'A', 'Z', '`', '{', '\0', static_cast<char>(0xE4)})
        keyGoesDown(1, character);
    EXPECT_EQ(recorded(), "NameNameNameNameNameName");
}

TEST_F(KeyRecorderTest, namesTheKeyOfASpaceWithASpace) {
    startRecording();
    keyGoesDown(49, ' ');
    EXPECT_EQ(recorded(), " ");
}

TEST_F(KeyRecorderTest, recordsEachRepeat) {
    startRecording();
    keyGoesDown(0, 'a');
    handleKeyEvent({KeyEventKind::autoRepeat, 0, 'a', 0});
    handleKeyEvent({KeyEventKind::autoRepeat, 0, 'a', 0});
    EXPECT_EQ(recorded(), "aaa");
}

TEST_F(KeyRecorderTest, ignoresKeyReleases) {
    startRecording();
    handleKeyEvent({KeyEventKind::keyUp, 0, 'a', 0});
    EXPECT_TRUE(state().recordingMacro->isEmpty());
    EXPECT_EQ(platform().keyboardLayout.lookups(), 0);
}

TEST_F(KeyRecorderTest, ignoresEventsOfAnUnknownKind) {
    startRecording();
    handleKeyEvent({static_cast<KeyEventKind>(5), 0, 'a', modifier::shift});
    EXPECT_TRUE(state().recordingMacro->isEmpty());
    EXPECT_EQ(state().currentModifiers, 0U);
}

TEST_F(KeyRecorderTest, looksTheNameUpOncePerPressAlsoWhileIdle) {
    keyGoesDown(0, 'a');
    handleKeyEvent({KeyEventKind::autoRepeat, 0, 'a', 0});
    EXPECT_EQ(platform().keyboardLayout.lookups(), 2);
    startRecording();
    keyGoesDown(0, 'a');
    EXPECT_EQ(platform().keyboardLayout.lookups(), 3);
}

TEST_F(KeyRecorderTest, whileIdleAPressChangesNothing) {
    keyGoesDown(0, 'a');
    EXPECT_EQ(state().lastEventTime, std::nullopt);
    EXPECT_EQ(state().recordingMacro, nullptr);
    EXPECT_EQ(gui.messages(), FakeController::Messages{});
}

TEST_F(KeyRecorderTest, takesTheModifiersFromTheLastChangeAndNotFromTheEvent) {
    startRecording();
    modifiersBecome(modifier::control);
    handleKeyEvent({KeyEventKind::keyDown, 0, 'a', modifier::command});
    EXPECT_EQ(recorded(), "<⌃+a>");
}

TEST_F(KeyRecorderTest, anUpperCaseLetterKeepsItsNameAndItsShift) {
    startRecording();
    modifiersBecome(modifier::shift);
    keyGoesDown(0, 'A');
    EXPECT_EQ(recorded(), "A");
    EXPECT_EQ(state().recordingMacro->script(),
              R"(tell application "System Events"
	key code (0) using {shift down}
delay 0.01
end tell
)");
}

TEST_F(KeyRecorderTest, recordsTheWholeKeyCodeButNamesItByItsLower16Bits) {
    startRecording();
    keyGoesDown(0x10000, 'a');
    keyGoesDown(0x10B7, 0);
    EXPECT_EQ(recorded(), "aKey 4279");
    EXPECT_EQ(state().recordingMacro->script(),
              R"(tell application "System Events"
	key code (65536) using {}
delay 0.01
	key code (4279) using {}
delay 0.01
end tell
)");
}

TEST_F(KeyRecorderTest, storesTheMaskAsDelivered) {
    modifiersBecome(0x80008400);
    EXPECT_EQ(state().currentModifiers, 0x80008400U);
    EXPECT_TRUE(state().modifiersDown);
    modifiersBecome(0);
    EXPECT_EQ(state().currentModifiers, 0U);
    EXPECT_FALSE(state().modifiersDown);
}

TEST_F(KeyRecorderTest, aModifierAloneRecordsNothing) {
    startRecording();
    modifiersBecome(modifier::shift);
    modifiersBecome(0);
    EXPECT_TRUE(state().recordingMacro->isEmpty());
    EXPECT_EQ(state().currentModifiers, 0U);
}

TEST_F(KeyRecorderTest, aRecordedPressRestartsTheTimeOfPauses) {
    startRecording();
    platform().clock.advance(Clock::Seconds(5));
    keyGoesDown(0, 'a');
    EXPECT_EQ(state().lastEventTime, platform().clock.now());
}

TEST_F(KeyRecorderTest, installingListensAndRegistersTheHotKeys) {
    setHotKey("record", 15, modifier::control);
    installKeyRecorder();
    platform().keyboard.userPresses(56);
    EXPECT_EQ(state().currentModifiers, modifier::shift);
    EXPECT_EQ(platform().hotKeys.state(1).status, HotKeyStatus::registered);
}

TEST_F(KeyRecorderTest, installingPassesOverAMonitorThatRefuses) {
    setHotKey("record", 15, modifier::control);
    platform().eventMonitor.failNextCall({"XInput 2.2 is missing.", ""});
    installKeyRecorder();
    EXPECT_EQ(platform().hotKeys.state(1).status, HotKeyStatus::registered);
}

}  // namespace
