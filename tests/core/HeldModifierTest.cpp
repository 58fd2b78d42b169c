// SPDX-License-Identifier: MIT
#include "core/HeldModifier.h"

#include <gtest/gtest.h>

#include "core/KeyCode.h"
#include "core/Macro.h"
#include "platform/Modifiers.h"

namespace {

using Move = actionpack::HeldModifier::Move;

std::string textsOf(std::uint32_t modifier, Move move) {
    const auto action = createHeldModifier(modifier, move);
    return action->displayText() + action->scriptLine();
}

TEST(HeldModifierTest, goesDownAndComesUp) {
    EXPECT_EQ(textsOf(modifier::option, Move::down), "<⌥▼>\tkey down option\n");
    EXPECT_EQ(textsOf(modifier::option, Move::up), "<⌥▲>\tkey up option\n");
    EXPECT_EQ(textsOf(modifier::command, Move::down), "<⌘▼>\tkey down command\n");
    EXPECT_EQ(textsOf(modifier::shift, Move::down), "<⇧▼>\tkey down shift\n");
    EXPECT_EQ(textsOf(modifier::control, Move::up), "<⌃▲>\tkey up control\n");
}

TEST(HeldModifierTest, isPutInBeforeWhatWasShownAlready) {
    Macro macro;
    macro.addAction(createKeyCode(0, "a", 'a'));
    macro.addAction(createKeyCode(11, "b", 'b'));
    EXPECT_EQ(macro.fullDisplayText(), "ab");
    macro.insertAction(1, createHeldModifier(modifier::option, Move::down));
    EXPECT_EQ(macro.fullDisplayText(), "a<⌥▼>b");
    macro.insertAction(3, createHeldModifier(modifier::option, Move::up));
    EXPECT_EQ(macro.fullDisplayText(), "a<⌥▼>b<⌥▲>");
    EXPECT_EQ(macro.displayText(), "a<⌥▼>b<⌥▲>");
    EXPECT_EQ(macro.actionCount(), 4U);
    EXPECT_EQ(macro.script(), R"(tell application "System Events"
	key code (0) using {}
delay 0.01
	key down option
delay 0.01
	key code (11) using {}
delay 0.01
	key up option
delay 0.01
end tell
)");
}

}  // namespace
