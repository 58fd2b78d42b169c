// SPDX-License-Identifier: MIT
#include "engine/EngineTest.h"
#include "engine/FakeController.h"

namespace {

class SaveDelayTest : public EngineTest {
  protected:
    void passes(double seconds) { platform().clock.advance(Clock::Seconds(seconds)); }
    std::string script() { return state().recordingMacro->script(); }

    FakeController gui{platform().journal};

  private:
    SharedControllerScope m_scope{gui};
};

using SaveDelayDeathTest = SaveDelayTest;

TEST_F(SaveDelayTest, addsTheTimeSinceTheStartOfTheRecording) {
    toggleRecording();
    passes(0.5);
    saveDelayToNow();
    EXPECT_EQ(script(), R"(tell application "System Events"
	delay 0.5
delay 0.01
end tell
)");
    EXPECT_EQ(gui.overlayText(), "<⌛ 0.50>");
}

TEST_F(SaveDelayTest, addsTheTimeSinceTheLastRecordedKey) {
    toggleRecording();
    passes(10);
    handleKeyEvent({KeyEventKind::keyDown, 36, '\r', 0});
    passes(1.25);
    saveDelayToNow();
    EXPECT_EQ(gui.overlayText(), "↩<⌛ 1.25>");
}

TEST_F(SaveDelayTest, measuresASecondPauseFromTheFirst) {
    toggleRecording();
    passes(3);
    saveDelayToNow();
    passes(0.125);
    saveDelayToNow();
    EXPECT_EQ(script(),
              R"(tell application "System Events"
	delay 3
delay 0.01
	delay 0.125
delay 0.01
end tell
)");
}

TEST_F(SaveDelayTest, neitherRoundsNorLimits) {
    toggleRecording();
    saveDelayToNow();
    passes(0.000001);
    saveDelayToNow();
    passes(2000000);
    saveDelayToNow();
    EXPECT_EQ(script(),
              R"(tell application "System Events"
	delay 0
delay 0.01
	delay 1e-06
delay 0.01
	delay 2e+06
delay 0.01
end tell
)");
}

TEST_F(SaveDelayTest, doesNothingBeforeTheFirstRecording) {
    state().recordingMacro = MacroManager::createMacro();
    saveDelayToNow();
    EXPECT_TRUE(state().recordingMacro->isEmpty());
    EXPECT_EQ(state().lastEventTime, std::nullopt);
    EXPECT_EQ(gui.messages(), FakeController::Messages{});
}

TEST_F(SaveDelayTest, keepsTheTimeWhenARecordingEnds) {
    toggleRecording();
    const auto start = platform().clock.now();
    passes(1);
    stopRecording();
    EXPECT_EQ(state().lastEventTime, start);
}

TEST_F(SaveDelayDeathTest, endsTheProcessWhenNothingIsRecorded) {
    toggleRecording();
    stopRecording();
    EXPECT_DEATH(saveDelayToNow(), "px != 0");
}

}  // namespace
