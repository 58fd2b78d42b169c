// SPDX-License-Identifier: MIT
#include "platform/monitor/KeyInterpreter.h"

#include <gtest/gtest.h>

#include "keymap/NamedKeymap.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

namespace {

class ClockAtRest final : public Clock {
  public:
    Time now() const override { return {}; }
    void sleepFor(Seconds) override {}
};

constexpr std::uint16_t laptop = 6;
constexpr std::uint16_t desk = 7;

class KeyInterpreterTest : public testing::Test {
  protected:
    void press(std::uint8_t keycode, std::uint16_t source = laptop, const KeyOrigin& origin = {}) {
        m_interpreter.key({.keycode = keycode, .press = true, .source = source, .time = 100}, origin);
    }
    void release(std::uint8_t keycode, std::uint16_t source = laptop, ServerTime time = 200) {
        m_interpreter.key({.keycode = keycode, .press = false, .source = source, .time = time}, {});
    }
    std::vector<KeyEvent> keyEvents() {
        std::vector<KeyEvent> events;
        for (const Delivery& delivery : m_interpreter.deliveries()) {
            if (const auto* event = std::get_if<KeyEvent>(&delivery)) events.push_back(*event);
        }
        m_interpreter.deliveries().clear();
        return events;
    }

    ClockAtRest m_clock;
    KeyboardState m_keyboard{namedKeymap("us"), {}};
    CancelWatch m_cancel{m_clock};
    KeyInterpreter m_interpreter{m_keyboard, m_cancel};
};

constexpr KeyEvent aDown{KeyEventKind::keyDown, 0, 'a', 0};
constexpr KeyEvent aUp{KeyEventKind::keyUp, 0, 0, 0};

TEST_F(KeyInterpreterTest, aKeyThatIsDownOnTwoKeyboardsIsDownUntilTheFirstLetsGo) {
    press(xkey::a, laptop);
    press(xkey::a, laptop);
    press(xkey::a, desk);
    EXPECT_EQ(keyEvents(), std::vector{aDown});
    release(xkey::a, laptop);
    EXPECT_EQ(keyEvents(), std::vector{aUp});
    release(xkey::a, laptop);
    release(xkey::a, desk);
    EXPECT_EQ(keyEvents(), std::vector<KeyEvent>{});
}

TEST_F(KeyInterpreterTest, aKeyHeldOnOneKeyboardIsUpOnceItIsTappedOnTheOther) {
    press(xkey::a, laptop);
    press(xkey::a, desk);
    release(xkey::a, desk);
    EXPECT_EQ(keyEvents(), (std::vector{aDown, aUp}));
    press(xkey::a, desk);
    release(xkey::a, laptop);
    EXPECT_EQ(keyEvents(), (std::vector{aDown, aUp}));
}

TEST_F(KeyInterpreterTest, escapeThatIsUpForTheApplicationsCountsByItsOwnKeyboard) {
    press(xkey::escape, laptop);
    m_interpreter.key({.keycode = xkey::escape, .press = false, .source = 5, .synthetic = true, .time = 150},
                      {});
    release(xkey::escape, laptop, 100 + 299);
    EXPECT_FALSE(m_cancel.deadline());
    EXPECT_FALSE(m_cancel.isCancelled());
}

TEST_F(KeyInterpreterTest, aKeyThatWasDownAtTheStartIsReleasedByWhicheverKeyboard) {
    m_interpreter.startWith({xkey::shift});
    keyEvents();
    release(xkey::shift, desk);
    EXPECT_EQ(keyEvents(), (std::vector{KeyEvent{KeyEventKind::modifiersChanged, 0, 0, 0}}));
}

TEST_F(KeyInterpreterTest, aKeyboardThatIsUnpluggedReleasesItsKeys) {
    press(xkey::shift, desk);
    press(xkey::a, desk);
    keyEvents();
    m_interpreter.keyboardGone(desk, 300);
    const auto events = keyEvents();
    EXPECT_EQ(events.size(), 2U);
    EXPECT_EQ(events.back().modifiers & 0x200U, 0U);
    EXPECT_FALSE(m_interpreter.held().mayHaveRepeated(1000));
}

TEST_F(KeyInterpreterTest, aRepeatOfAKeyThatIsUpIsNothing) {
    m_interpreter.repeat(xkey::a, 90);
    press(xkey::a);
    m_interpreter.repeat(xkey::a, 150);
    release(xkey::a);
    m_interpreter.repeat(xkey::a, 210);
    EXPECT_EQ(keyEvents(), (std::vector{aDown, KeyEvent{KeyEventKind::autoRepeat, 0, 'a', 0}, aUp}));
}

TEST_F(KeyInterpreterTest, nothingRepeatsBeforeTheDelay) {
    m_interpreter.setRepeatDelay(250);
    press(xkey::a);
    EXPECT_FALSE(m_interpreter.held().mayHaveRepeated(340));
    m_interpreter.repeat(xkey::a, 340);
    EXPECT_EQ(keyEvents(), std::vector{aDown});
    EXPECT_TRUE(m_interpreter.held().mayHaveRepeated(350));
    m_interpreter.repeat(xkey::a, 350);
    EXPECT_EQ(keyEvents(), (std::vector{KeyEvent{KeyEventKind::autoRepeat, 0, 'a', 0}}));
}

TEST_F(KeyInterpreterTest, aPressThatWasNotReportedHasNoRelease) {
    m_interpreter.setMuted(true);
    press(xkey::a);
    m_interpreter.setMuted(false);
    m_interpreter.repeat(xkey::a, 150);
    release(xkey::a);
    EXPECT_EQ(keyEvents(), std::vector<KeyEvent>{});
}

TEST_F(KeyInterpreterTest, aHotKeyThatWasDroppedHasNoRelease) {
    m_interpreter.setMuted(true);
    press(xkey::a, laptop, {.own = false, .grabbed = true, .hotKey = 2});
    m_interpreter.setMuted(false);
    release(xkey::a);
    EXPECT_TRUE(m_interpreter.deliveries().empty());
}

TEST_F(KeyInterpreterTest, hotKeysThatAreTakenBackAreNeitherPressedNorReleased) {
    press(xkey::p, laptop, {.own = false, .grabbed = true, .hotKey = 3});
    release(xkey::p);
    press(xkey::p, laptop, {.own = false, .grabbed = true, .hotKey = 3});
    press(xkey::s, laptop, {.own = false, .grabbed = true, .hotKey = 2});
    m_interpreter.dropHotKeys([](HotKeyId id) { return id == 3; });
    release(xkey::s);
    release(xkey::p);
    EXPECT_EQ(m_interpreter.deliveries(),
              (WipedQueue<Delivery>{HotKeyEvent{2, true, 100}, HotKeyEvent{2, false, 200}}));
}

TEST_F(KeyInterpreterTest, aHotKeyAfterItsRawPressPassedIsStillPressedAndReleased) {
    press(xkey::a);
    keyEvents();
    m_interpreter.lateHotKey(2, xkey::a, 100);
    release(xkey::a);
    EXPECT_EQ(m_interpreter.deliveries(),
              (WipedQueue<Delivery>{HotKeyEvent{2, true, 100}, HotKeyEvent{2, false, 200}}));
}

TEST_F(KeyInterpreterTest, aStrokeThatShowsAnotherConsoleIsNothing) {
    constexpr std::uint8_t f2 = 68;
    press(xkey::control);
    press(xkey::alt);
    keyEvents();
    press(f2);
    release(f2);
    EXPECT_EQ(keyEvents(), std::vector<KeyEvent>{});
    release(xkey::alt);
    keyEvents();
    press(f2);
    EXPECT_EQ(keyEvents().size(), 1U) << "Control and F2 show no other console";
}

TEST_F(KeyInterpreterTest, escapeReadLateCountsByTheServersTime) {
    press(xkey::escape);
    release(xkey::escape, laptop, 100 + 299);
    EXPECT_FALSE(m_cancel.isCancelled());
    press(xkey::escape);
    release(xkey::escape, laptop, 100 + 300);
    EXPECT_TRUE(m_cancel.isCancelled());
}

/// Two layouts, us and ru, and what switches between them.
class LayoutSwitchingTest : public KeyInterpreterTest {
  protected:
    void begin(const std::string& options) {
        m_keyboard.replaceKeymap(namedKeymap("us,ru", options));
        m_interpreter.setRecording(true);
    }
    void tap(std::uint8_t keycode) {
        press(keycode);
        release(keycode);
    }
    /// The key presses: code and modifiers.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> strokes() {
        std::vector<std::pair<std::uint32_t, std::uint32_t>> strokes;
        for (const KeyEvent& event : keyEvents()) {
            if (event.kind == KeyEventKind::keyDown) strokes.emplace_back(event.keyCode, event.modifiers);
        }
        return strokes;
    }
    void lock(xkb_layout_index_t layout) {
        XkbComponents components = m_keyboard.components();
        components.lockedLayout = layout;
        m_keyboard.confirm(components, 0, false);
    }
    using Strokes = std::vector<std::pair<std::uint32_t, std::uint32_t>>;
};

TEST_F(LayoutSwitchingTest, aPairOfModifiersIsAStrokeOfTheSecondOne) {
    begin("grp:alt_shift_toggle");
    press(xkey::alt);
    tap(xkey::shift);
    release(xkey::alt);
    tap(xkey::a);
    EXPECT_EQ(strokes(), (Strokes{{key::shift, modifier::option}, {key::a, 0}}));
    press(xkey::shift);
    tap(xkey::alt);
    release(xkey::shift);
    tap(xkey::a);
    EXPECT_EQ(strokes(), (Strokes{{key::alt, modifier::shift}, {key::a, 0}}));
}

TEST_F(LayoutSwitchingTest, aLayoutThatNoStrokeHasChosenIsNamed) {
    begin("");
    tap(xkey::a);
    lock(1);
    tap(xkey::a);
    tap(xkey::space);
    lock(0);
    tap(xkey::a);
    EXPECT_EQ(strokes(), (Strokes{{key::a, 0}, {0x4000 + key::a, 0}, {key::space, 0}, {key::a, 0}}));
}

TEST_F(LayoutSwitchingTest, aRecordingBeginsInTheLayoutThatIsInForce) {
    begin("");
    lock(1);
    m_interpreter.setRecording(true);
    tap(xkey::a);
    lock(0);
    tap(xkey::a);
    m_interpreter.setRecording(false);
    lock(1);
    tap(xkey::a);
    EXPECT_EQ(strokes(), (Strokes{{key::a, 0}, {0x2000 + key::a, 0}, {key::a, 0}}));
}

TEST_F(LayoutSwitchingTest, aLayoutThatIsHeldIsNamed) {
    begin("grp:switch");
    press(xkey::altGr);
    tap(xkey::a);
    release(xkey::altGr);
    tap(xkey::a);
    EXPECT_EQ(strokes(), (Strokes{{0x4000 + key::a, 0}, {key::a, 0}}));
}

TEST_F(LayoutSwitchingTest, aKeyThatSwitchesIsAStrokeLikeOthers) {
    begin("grp:sclk_toggle");
    tap(xkey::scrollLock);
    tap(xkey::a);
    EXPECT_EQ(strokes(), (Strokes{{107, 0}, {key::a, 0}}));
}

/// With modifier keys shown.
class ModifierKeyTest : public KeyInterpreterTest {
  protected:
    ModifierKeyTest() {
        m_interpreter.setShowsModifierKeys(true);
        m_interpreter.setRecording(true);
    }
    static KeyEvent modifierKey(KeyEventKind kind, std::uint32_t keyCode, std::uint32_t holds) {
        return {kind, keyCode, 0, holds};
    }
    static KeyEvent mask(std::uint32_t modifiers) {
        return {KeyEventKind::modifiersChanged, 0, 0, modifiers};
    }
};

TEST_F(ModifierKeyTest, isShownBesideItsChange) {
    press(xkey::super);
    release(xkey::super);
    EXPECT_EQ(keyEvents(),
              (std::vector{modifierKey(KeyEventKind::modifierKeyDown, key::super, modifier::command),
                           mask(modifier::command), mask(0),
                           modifierKey(KeyEventKind::modifierKeyUp, key::super, modifier::command)}));
}

TEST_F(ModifierKeyTest, isShownWhileAMacroIsRecordedOnly) {
    m_interpreter.setRecording(false);
    press(xkey::super);
    release(xkey::super);
    EXPECT_EQ(keyEvents(), (std::vector{mask(modifier::command), mask(0)}));
}

TEST_F(ModifierKeyTest, thatWentDownBeforeTheRecordingIsNotShownComingUp) {
    m_interpreter.setRecording(false);
    press(xkey::super);
    m_interpreter.setRecording(true);
    release(xkey::super);
    EXPECT_EQ(keyEvents(), (std::vector{mask(modifier::command), mask(0)}));
}

TEST_F(ModifierKeyTest, ofALockIsNotShown) {
    press(xkey::capsLock);
    release(xkey::capsLock);
    EXPECT_EQ(keyEvents(), std::vector<KeyEvent>{});
}

TEST_F(ModifierKeyTest, isNotShownWhileKeysAreDropped) {
    m_interpreter.setMuted(true);
    press(xkey::super);
    release(xkey::super);
    EXPECT_EQ(keyEvents(), (std::vector{mask(modifier::command), mask(0)}));
}

TEST_F(ModifierKeyTest, ofARunThatIsNotToBeSeenIsNotShown) {
    press(xkey::super, laptop, {.own = true});
    EXPECT_EQ(keyEvents(), std::vector<KeyEvent>{});
}

TEST_F(ModifierKeyTest, isTakenBackWithTheKeys) {
    press(xkey::super);
    EXPECT_TRUE(m_interpreter.hasPresses());
    m_interpreter.dropPresses();
    EXPECT_EQ(keyEvents(), std::vector{mask(modifier::command)});
}

TEST_F(KeyInterpreterTest, allEventsTellWhenTheyHappened) {
    press(xkey::shift);
    press(xkey::a);
    m_interpreter.repeat(xkey::a, 5000);
    release(xkey::a, laptop, 5100);
    release(xkey::shift, laptop, 5200);
    std::vector<std::uint32_t> times;
    for (const KeyEvent& event : keyEvents()) times.push_back(event.time);
    EXPECT_EQ(times, (std::vector<std::uint32_t>{100, 100, 5000, 5100, 5200}));
}

}  // namespace
