// SPDX-License-Identifier: MIT
#include "engine/HotKeyCenter.h"

#include "engine/EngineTest.h"
#include "engine/FakeController.h"
#include "platform/Modifiers.h"

namespace {

class HotKeyCenterTest : public EngineTest {
  protected:
    using Calls = std::vector<std::string>;
    using Messages = FakeController::Messages;

    HotKeyStatus status(HotKeyId id) { return platform().hotKeys.state(id).status; }

    FakeController gui{platform().journal};

  private:
    SharedControllerScope m_scope{gui};
};

TEST_F(HotKeyCenterTest, hasARowWithACommandForEachShortcutInTheirOrder) {
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const HotKeyRow& row = hotKeyRows()[i];
        EXPECT_EQ(row.name, shortcutRows[i].name);
        EXPECT_EQ(row.id, shortcutRows[i].id) << row.name;
        EXPECT_EQ(row.action, shortcutRows[i].action) << row.name;
        EXPECT_EQ(row.signature, shortcutRows[i].signature) << row.name;
        EXPECT_TRUE((row.pressed == nullptr) != (row.released == nullptr)) << row.name;
    }
}

TEST_F(HotKeyCenterTest, withdrawsAndRequestsEachRowInOrder) {
    setHotKey("record", 15, modifier::control | modifier::command);
    setHotKey("stop", 1, modifier::functionKey | modifier::shift);
    setHotKey("play", 0, 0);
    registerHotKeys();
    const std::map<HotKeyId, KeyCombo> requested = {{1, {.flags = 0x1100, .code = 15}},
                                                    {2, {.flags = 0x800200, .code = 1}},
                                                    {3, {.flags = 0, .code = 0}}};
    Journal expected;
    for (const ShortcutRow& row : shortcutRows) {
        const auto hotKey = requested.find(row.id);
        noteRegistration(expected, row, hotKey != requested.end() ? hotKey->second : KeyCombo());
    }
    EXPECT_EQ(hotKeyCalls(), expected.lines());
}

TEST_F(HotKeyCenterTest, widensTheCodeWithItsSign) {
    setHotKey("record", -2, 0);
    registerHotKeys();
    EXPECT_EQ(hotKeyCalls()[1], R"(request(1, "record", -2, 0x0))");
}

TEST_F(HotKeyCenterTest, namesThatAreMissingComeIntoTheTable) {
    registerHotKeys();
    EXPECT_EQ(utils::PreferenceManager::instance()->entryCount(), shortcutRows.size());
    for (const HotKeyRow& row : hotKeyRows()) EXPECT_EQ(status(row.id), HotKeyStatus::unset) << row.name;
}

TEST_F(HotKeyCenterTest, aRowWithoutAKeyLosesItsHotKeyAndTheOthersKeepTheirs) {
    setHotKey("record", 15, modifier::control);
    setHotKey("stop", 1, modifier::control);
    setHotKey("play", 35, modifier::control);
    setHotKey("multiplePlay", 46, modifier::control);
    registerHotKeys();
    setHotKey("stop", -1, 0);
    registerHotKeys();
    EXPECT_EQ(platform().hotKeys.registered(),
              (std::map<HotKeyId, std::pair<std::uint32_t, std::uint32_t>>{
                  {1, {15, modifier::control}}, {3, {35, modifier::control}}, {4, {46, modifier::control}}}));
}

TEST_F(HotKeyCenterTest, aRefusedRowIsInertAndTheOldCombinationIsGone) {
    setHotKey("record", 15, modifier::control);
    registerHotKeys();
    platform().hotKeys.otherProgramHolds(46, modifier::control);
    setHotKey("record", 46, modifier::control);
    registerHotKeys();
    EXPECT_EQ(status(1), HotKeyStatus::refused);
    EXPECT_TRUE(platform().hotKeys.registered().empty());
}

TEST_F(HotKeyCenterTest, oneCombinationUnderTwoNamesIsTheFirstRows) {
    setHotKey("stop", 1, modifier::control);
    setHotKey("play", 1, modifier::control);
    registerHotKeys();
    EXPECT_EQ(status(2), HotKeyStatus::registered);
    EXPECT_EQ(status(3), HotKeyStatus::refused);
}

TEST_F(HotKeyCenterTest, onlyTheStopRowCancelsAPlayback) {
    std::vector<HotKeyId> cancelling;
    setHotKey("record", 15, 0);
    setHotKey("stop", 1, 0);
    setHotKey("play", 35, 0);
    setHotKey("multiplePlay", 46, 0);
    registerHotKeys();
    for (const auto& [id, combination] : platform().hotKeys.registered()) {
        platform().scripting.startPlayback();
        platform().scripting.duringEachRun(
            [this, code = combination.first] { platform().keyboard.userPresses(code); });
        platform().scripting.run("");
        if (platform().scripting.isCancelled()) cancelling.push_back(id);
    }
    EXPECT_EQ(cancelling, std::vector<HotKeyId>{2});
}

TEST_F(HotKeyCenterTest, recordAndMultiplePlayActOnPressAndStopToo) {
    onHotKeyPressed(1);
    onHotKeyPressed(2);
    onHotKeyPressed(4);
    EXPECT_EQ(gui.messages(),
              (Messages{"showRecordingGui()", "hideRecordingGui()", "showMultiplePlayGui()"}));
}

TEST_F(HotKeyCenterTest, playActsOnRelease) {
    state().currentMacro = macroWithScript("beep");
    onHotKeyPressed(3);
    EXPECT_EQ(runs().size(), 0U);
    onHotKeyReleased(3);
    EXPECT_EQ(runs().size(), 1U);
    EXPECT_EQ(state().pendingPlayCount, 1U);
}

TEST_F(HotKeyCenterTest, allOtherPressesAndReleasesAreNothing) {
    state().currentMacro = macroWithScript("beep");
    for (const HotKeyId id : {0U, 99U, 0xFFFFFFFFU}) onHotKeyPressed(id);
    for (const HotKeyId id : {0U, 1U, 2U, 4U, 99U, 0xFFFFFFFFU}) onHotKeyReleased(id);
    EXPECT_EQ(gui.messages(), Messages{});
    EXPECT_EQ(runs().size(), 0U);
}

TEST_F(HotKeyCenterTest, disabledHotKeysDoNothingButStayRegistered) {
    state().currentMacro = macroWithScript("beep");
    setHotKey("record", 15, 0);
    registerHotKeys();
    state().hotKeysEnabled = false;
    for (const HotKeyRow& row : hotKeyRows()) {
        onHotKeyPressed(row.id);
        onHotKeyReleased(row.id);
    }
    EXPECT_EQ(gui.messages(), Messages{});
    EXPECT_EQ(runs().size(), 0U);
    EXPECT_EQ(status(1), HotKeyStatus::registered);
}

TEST_F(HotKeyCenterTest, installedHandlersHearTheKeyboard) {
    setHotKey("record", 15, 0);
    registerHotKeys();
    installHotKeyHandlers();
    platform().keyboard.userPresses(15);
    EXPECT_TRUE(state().recording);
}

}  // namespace
