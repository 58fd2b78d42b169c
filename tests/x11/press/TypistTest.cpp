// SPDX-License-Identifier: MIT
#include "display/Typist.h"

#include "support/Keys.h"
#include "x11/press/InjectorTest.h"

namespace {

using KeyEvents = std::vector<CoreClient::KeyEvent>;

/// The shortest time between two neighbours, in the server's milliseconds.
std::uint32_t shortestGap(const KeyEvents& events) {
    std::uint32_t shortest = ~0U;
    for (std::size_t at = 1; at < events.size(); ++at) {
        shortest = std::min(shortest, events[at].time - events[at - 1].time);
    }
    return shortest;
}

/// What an application gets of a person at a real keyboard.
class TypistTest : public testing::TestWithParam<Typist::Gap> {
  protected:
    NestedServers servers;
    CoreClient client{servers.display()};
    Typist typist{servers, GetParam()};

    KeyEvents received(std::size_t count) {
        EXPECT_TRUE(eventually([&] {
            servers.finish();
            return client.events().size() >= count;
        }));
        return client.events();
    }
};

TEST_P(TypistTest, combinationsArriveKeyByKey) {
    typist.stroke({xkey::control, xkey::super, xkey::s});
    const KeyEvents events = received(6);
    EXPECT_EQ(wordsOf(events),
              (std::vector<std::string>{"press 37 0x0", "press 133 0x4", "press 39 0x44", "release 39 0x44",
                                        "release 133 0x44", "release 37 0x4"}));
    // Each is stamped when it arrives, which is not always when it leaves.
    EXPECT_GE(shortestGap(events) + 3, GetParam().count());
}

TEST_P(TypistTest, fluentTypingRollsOver) {
    typist.rollOver({xkey::a, xkey::s, xkey::b});
    EXPECT_EQ(wordsOf(received(6)),
              (std::vector<std::string>{"press 38 0x0", "press 39 0x0", "release 38 0x0", "press 56 0x0",
                                        "release 39 0x0", "release 56 0x0"}));
}

INSTANTIATE_TEST_SUITE_P(EachGap, TypistTest, testing::ValuesIn(Typist::gaps),
                         [](const auto& parameter) { return nameOf(parameter.param); });

}  // namespace
