// SPDX-License-Identifier: MIT
#include "engine/SharedController.h"

#include "engine/EngineTest.h"
#include "engine/FakeController.h"

namespace {

class SharedControllerTest : public EngineTest {};

TEST_F(SharedControllerTest, isTheInnermostScopesAndNullOutside) {
    FakeController outer{platform().journal};
    FakeController inner{platform().journal};
    EXPECT_EQ(sharedController(), nullptr);
    {
        const SharedControllerScope outerScope(outer);
        {
            const SharedControllerScope innerScope(inner);
            EXPECT_EQ(sharedController(), &inner);
        }
        EXPECT_EQ(sharedController(), &outer);
    }
    EXPECT_EQ(sharedController(), nullptr);
}

class EngineWithoutControllerTest : public EngineTest {};

TEST_F(EngineWithoutControllerTest, recordsAndPlaysAllTheSame) {
    toggleRecording();
    handleKeyEvent({KeyEventKind::keyDown, 36, '\r', 0});
    saveDelayToNow();
    stopRecording();
    promptMultiplePlay();
    playTimes(1);
    setCurrentMacro(nullptr);
    EXPECT_EQ(runs(), (std::vector<std::string>{R"(tell application "System Events"
	key code (36) using {}
delay 0.01
	delay 0
delay 0.01
end tell
)"}));
}

}  // namespace
