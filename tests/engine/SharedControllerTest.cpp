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
    EXPECT_EQ(runs(), (std::vector<std::string>{"tell application \"System Events\"\n"
                                                "\tkey code (36) using {}\ndelay 0.01\n"
                                                "\tdelay 0\ndelay 0.01\n"
                                                "end tell\n"}));
}

}  // namespace
