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
    {"inATightLoop", "tell application \"System Events\" to keystroke \"a\"\nrepeat\nend repeat\n"},
    {"inALoopOfErrors",
     "tell application \"System Events\" to keystroke \"a\"\nset n to 0\nrepeat\ntry\nset n to n + 1\n"
     "error \"x\"\non error\nset n to 0\nend try\nend repeat\n"},
    {"inALoopOfStrokes",
     "tell application \"System Events\"\nrepeat\nkeystroke \"a\"\nkey code 123\nend repeat\nend tell\n"},
    {"inADelay",
     "tell application \"System Events\" to keystroke \"a\"\ntry\ndelay 1000\nend try\ndelay 1000\n"},
    {"inALongText",
     "set s to \"abcdefghij\"\nrepeat 19 times\nset s to s & s\nend repeat\n"
     "tell application \"System Events\"\nkeystroke s\nend tell\n"},
    {"inNestedHandlers",
     "on inner(n)\ntry\nif n > 0 then return my inner(n - 1)\ndelay 0.01\nend try\nend inner\n"
     "on outer()\nrepeat\ntry\nmy inner(50)\non error\nmy outer()\nend try\nend repeat\nend outer\n"
     "tell application \"System Events\" to keystroke \"a\"\nouter()\n"},
    {"whileKeysAreDown",
     "tell application \"System Events\"\nkeystroke \"a\"\nkey down {control, option}\nkey down 122\n"
     "key down shift\nrepeat\nend repeat\nend tell\n",
     true},
    {"inAPauseWhileKeysAreDown",
     "tell application \"System Events\"\nkeystroke \"a\"\nkey down shift\nkey down \"é\"\ndelay 1000\nend "
     "tell\n",
     true},
};

INSTANTIATE_TEST_SUITE_P(Endless, EscapeTest, testing::ValuesIn(scripts),
                         [](const auto& script) { return std::string(script.param.name); });

}  // namespace
