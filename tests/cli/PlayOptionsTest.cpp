// SPDX-License-Identifier: MIT
//
// How often and how fast a script is played, told by what other programs at the server get, and when.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/Play.h"
#include "display/CoreClient.h"
#include "display/KeyboardProbe.h"
#include "display/NestedServers.h"
#include "support/Keys.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

using Options = std::vector<std::string>;

/// How long a pause of 0.4 s takes, in milliseconds by the server's clock: the median of twelve, since a busy
/// machine makes one longer and the next one shorter.
std::uint32_t pauseAt(const Options& options) {
    XServer server;
    CoreClient client(server.display());
    Play play(server.display(), R"(tell application "System Events"
repeat 13 times
key code 0
delay 0.4
end repeat
end tell
)",
              options);
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    std::vector<std::uint32_t> presses;
    EXPECT_TRUE(eventually([&] {
        presses.clear();
        for (const CoreClient::KeyEvent& event : client.events()) {
            if (event.press) presses.push_back(event.time);
        }
        return presses.size() == 13;
    }));
    std::vector<std::uint32_t> pauses;
    for (std::size_t i = 1; i < presses.size(); ++i) pauses.push_back(presses[i] - presses[i - 1]);
    std::sort(pauses.begin(), pauses.end());
    return pauses.empty() ? 0 : pauses[pauses.size() / 2];
}

TEST(PlayOptionsTest, theSpeedDividesThePauses) {
    constexpr double asWritten = 400;
    constexpr double share = 0.02;
    EXPECT_NEAR(pauseAt({}), asWritten, asWritten * share);
    EXPECT_NEAR(pauseAt({"--speed", "2"}), asWritten / 2, asWritten / 2 * share);
    EXPECT_NEAR(pauseAt({"--speed", "4"}), asWritten / 4, asWritten / 4 * share);
    EXPECT_NEAR(pauseAt({"--speed", "0.5"}), asWritten * 2, asWritten * 2 * share);
}

TEST(PlayOptionsTest, aModifierStaysDownBehindItsKeyAsLongAtAnySpeed) {
    constexpr std::uint32_t tail = 30;
    XServer server;
    CoreClient client(server.display());
    Play play(server.display(), R"(tell application "System Events"
key code 0 using control down
delay 0.4
end tell
)",
              {"--speed", "4"});
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    ASSERT_TRUE(eventually([&] { return client.events().size() >= 4; }));
    const auto& events = client.events();
    EXPECT_FALSE(events.at(2).press);
    EXPECT_EQ(events.at(3).keycode, xkey::control);
    EXPECT_FALSE(events.at(3).press);
    EXPECT_GE(events.at(3).time - events.at(2).time, tail - 1);
}

TEST(PlayOptionsTest, aScriptIsPlayedSoOften) {
    XServer server;
    Terminal terminal(server.display());
    Play play(server.display(), "tell application \"System Events\" to keystroke \"ab\"\n", {"--times", "3"});
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    EXPECT_EQ(terminal.typed(6), "ababab");
}

/// Between two of its runs as well as inside one.
TEST(PlayOptionsTest, untilStoppedEndsWhenEscapeIsHeldAndThatIsNoError) {
    NestedServers servers;
    KeyboardProbe probe(servers.display());
    Terminal terminal(servers.display());
    const std::string before = probe.held();
    Play play(servers.display(), "tell application \"System Events\" to keystroke \"ab\"\n",
              {"--times", "until-stopped"});
    ASSERT_EQ(terminal.typed(20).substr(0, 20), "abababababababababab") << play.output();
    servers.user().press(xkey::escape);
    EXPECT_TRUE(eventually([&] {
        servers.finish();
        return !play.program().isRunning();
    }));
    servers.user().release(xkey::escape);
    servers.finish();
    EXPECT_EQ(play.program().wait(), 0);
    EXPECT_EQ(play.output(), "");
    EXPECT_EQ(probe.awaitHeld(before), before);
}

TEST(PlayOptionsTest, soManyTimesThatEscapeHasToEndThemIsAnErrorAsEver) {
    NestedServers servers;
    Terminal terminal(servers.display());
    Play play(servers.display(), "tell application \"System Events\" to keystroke \"ab\"\n",
              {"--times", "1000000"});
    ASSERT_EQ(terminal.typed(2).substr(0, 2), "ab") << play.output();
    servers.user().press(xkey::escape);
    EXPECT_TRUE(eventually([&] {
        servers.finish();
        return !play.program().isRunning();
    }));
    servers.user().release(xkey::escape);
    servers.finish();
    EXPECT_EQ(play.program().wait(), 1);
    EXPECT_NE(play.output().find("User canceled. (-128)"), std::string::npos) << play.output();
}

/// Nothing of it asks for the keyboard, and the display is there all the same.
TEST(PlayOptionsTest, untilStoppedEndsBySignalsThoughNothingIsPressed) {
    XServer server;
    Play play(server.display(), "log 1\n", {"--times", "until-stopped"});
    ASSERT_TRUE(eventually([&] { return play.output().size() > 20; }));
    play.program().signal(SIGINT);
    EXPECT_EQ(play.program().wait(), 128 + SIGINT);
}

}  // namespace
