// SPDX-License-Identifier: MIT
#include "engine/Scenario.h"

namespace {

/// What a row starts from and ends in.
enum class Mode { idle, recording };

/// A row of the state table: in `mode`, `event` makes the engine say `messages` and run so many scripts.
struct Row {
    const char* name;
    Mode mode;
    void (*event)(User&, Menu&);
    FakeController::Messages messages;
    std::size_t scriptsRun;
    Mode next;
};

/// Every row starts with a current macro; one that starts in a recording has recorded "a".
class StateTableTest : public Scenario, public testing::WithParamInterface<Row> {
  protected:
    void SetUp() override {
        state().currentMacro = macroWithScript("beep");
        if (GetParam().mode == Mode::recording) {
            menu.records();
            user.types("a");
        }
        platform().journal.clear();
    }
};

TEST_P(StateTableTest, holds) {
    GetParam().event(user, menu);
    EXPECT_EQ(gui.messages(), GetParam().messages);
    EXPECT_EQ(scriptsRun(), GetParam().scriptsRun);
    EXPECT_EQ(isRecording(), GetParam().next == Mode::recording);
}

void recordHotKey(User& user, Menu&) { user.strikesRecord(); }
void recordMenu(User&, Menu& menu) { menu.records(); }
void stopHotKey(User& user, Menu&) { user.strikesStop(); }
void stopMenu(User&, Menu& menu) { menu.stops(); }
void playHotKey(User& user, Menu&) { user.strikesPlay(); }
void playMenu(User&, Menu& menu) { menu.plays(); }
void multiplePlayHotKey(User& user, Menu&) { user.strikesMultiplePlay(); }
void multiplePlayMenu(User&, Menu& menu) { menu.asksForMultiplePlay(); }
void keyPress(User& user, Menu&) { user.types("b"); }
void savedPause(User& user, Menu& menu) {
    user.waits(2);
    menu.savesPause();
}

const FakeController::Messages nothing = {};
const FakeController::Messages ended = {R"(addMacro("a"))", "hideRecordingGui()"};

INSTANTIATE_TEST_SUITE_P(
    Rows, StateTableTest,
    testing::Values(
        Row{"IdleRecordHotKey", Mode::idle, recordHotKey, {"showRecordingGui()"}, 0, Mode::recording},
        Row{"IdleRecordMenu", Mode::idle, recordMenu, {"showRecordingGui()"}, 0, Mode::recording},
        Row{"IdleStopHotKey", Mode::idle, stopHotKey, nothing, 0, Mode::idle},
        Row{"IdleStopMenu", Mode::idle, stopMenu, nothing, 0, Mode::idle},
        Row{"IdlePlayHotKey", Mode::idle, playHotKey, nothing, 1, Mode::idle},
        Row{"IdlePlayMenu", Mode::idle, playMenu, nothing, 1, Mode::idle},
        Row{"IdleMultiplePlayHotKey",
            Mode::idle,
            multiplePlayHotKey,
            {"showMultiplePlayGui()"},
            0,
            Mode::idle},
        Row{"IdleMultiplePlayMenu", Mode::idle, multiplePlayMenu, {"showMultiplePlayGui()"}, 0, Mode::idle},
        Row{"IdleKeyPress", Mode::idle, keyPress, nothing, 0, Mode::idle},
        Row{"RecordingRecordHotKey", Mode::recording, recordHotKey, ended, 0, Mode::idle},
        Row{"RecordingStopHotKey", Mode::recording, stopHotKey, ended, 0, Mode::idle},
        Row{"RecordingStopMenu", Mode::recording, stopMenu, ended, 0, Mode::idle},
        Row{"RecordingPlayHotKey", Mode::recording, playHotKey, nothing, 1, Mode::recording},
        Row{"RecordingMultiplePlayHotKey",
            Mode::recording,
            multiplePlayHotKey,
            {"showMultiplePlayGui()"},
            0,
            Mode::recording},
        Row{"RecordingKeyPress", Mode::recording, keyPress, {R"(setMacroString("ab"))"}, 0, Mode::recording},
        Row{"RecordingSavedPause",
            Mode::recording,
            savedPause,
            {R"(setMacroString("a<⌛ 2.00>"))"},
            0,
            Mode::recording}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
