// SPDX-License-Identifier: MIT
//
// The user, at a keyboard that is none of XTEST's, ends scripts that would go on for ever.
#include <gtest/gtest.h>

#include "cli/Play.h"
#include "display/KeyboardProbe.h"
#include "display/NestedServers.h"
#include "support/Keys.h"
#include "support/Terminal.h"

namespace {

/// Escape counts when it has been held for 0.3 s, and then within 0.5 s; the rest is for machines that have
/// more to do.
constexpr std::chrono::seconds generous{5};

struct Endless {
    const char* name;
    const char* script;
    bool holdsKeys = false;
};

class EscapeTest : public testing::TestWithParam<Endless> {
  protected:
    /// What is there without another client's asking may lie in the inner server until somebody asks.
    bool ends(Child& program) const {
        return eventually(
            [&] {
                servers.finish();
                return !program.isRunning();
            },
            generous);
    }

    NestedServers servers;
    KeyboardProbe probe{servers.display()};
    Terminal terminal{servers.display()};
};

TEST_P(EscapeTest, aHeldEscapeEndsTheScriptAndLeavesNoKeyDown) {
    const std::string before = probe.held();
    Play play(servers.display(), GetParam().script);
    ASSERT_EQ(terminal.typed(1).substr(0, 1), "a") << play.output();
    ASSERT_TRUE(eventually([&] { return (probe.held() != before) == GetParam().holdsKeys; }));
    servers.user().press(xkey::escape);
    EXPECT_TRUE(ends(play.program()));
    servers.user().release(xkey::escape);
    servers.finish();
    EXPECT_EQ(play.program().wait(), 1);
    EXPECT_NE(play.output().find("execution error: User canceled. (-128)"), std::string::npos)
        << play.output();
    EXPECT_EQ(probe.awaitHeld(before), before);
}

constexpr Endless scripts[] = {
    {"inATightLoop", R"(tell application "System Events" to keystroke "a"
repeat
end repeat
)"},
    {"inALoopOfErrors",
     R"(tell application "System Events" to keystroke "a"
set n to 0
repeat
try
set n to n + 1
error "x"
on error
set n to 0
end try
end repeat
)"},
    {"inALoopOfStrokes",
     R"(tell application "System Events"
repeat
keystroke "a"
key code 123
end repeat
end tell
)"},
    {"inADelay",
     R"(tell application "System Events" to keystroke "a"
try
delay 1000
end try
delay 1000
)"},
    {"inALongText",
     R"(set s to "abcdefghij"
repeat 19 times
set s to s & s
end repeat
tell application "System Events"
keystroke s
end tell
)"},
    {"inNestedHandlers",
     R"(on inner(n)
try
if n > 0 then return my inner(n - 1)
delay 0.01
end try
end inner
on outer()
repeat
try
my inner(50)
on error
my outer()
end try
end repeat
end outer
tell application "System Events" to keystroke "a"
outer()
)"},
    {"whileKeysAreDown",
     R"(tell application "System Events"
keystroke "a"
key down {control, option}
key down 122
key down shift
repeat
end repeat
end tell
)",
     true},
    {"inAPauseWhileKeysAreDown",
     R"(tell application "System Events"
keystroke "a"
key down shift
key down "é"
delay 1000
end tell
)",
     true},
};

INSTANTIATE_TEST_SUITE_P(Endless, EscapeTest, testing::ValuesIn(scripts),
                         [](const auto& script) { return std::string(script.param.name); });

}  // namespace
