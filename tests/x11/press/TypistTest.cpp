// SPDX-License-Identifier: MIT
#include "display/Typist.h"

#include <algorithm>

#include "support/Keys.h"
#include "x11/press/InjectorTest.h"

namespace {

using KeyEvents = std::vector<CoreClient::KeyEvent>;

/// The time between two neighbours that half of them exceed, in the server's milliseconds.
std::uint32_t medianGap(const KeyEvents& events) {
    std::vector<std::uint32_t> gaps;
    for (std::size_t at = 1; at < events.size(); ++at) gaps.push_back(events[at].time - events[at - 1].time);
    std::sort(gaps.begin(), gaps.end());
    return gaps.at(gaps.size() / 2);
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
    // Each is stamped when it arrives: one that is late shortens the time to the next.
    EXPECT_GE(medianGap(events) + 3, GetParam().count());
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
