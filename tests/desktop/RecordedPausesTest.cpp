// SPDX-License-Identifier: MIT
//
// Pauses that become part of a recording by themselves, told by when another program gets the keys.
#include <algorithm>
#include <array>

#include "desktop/DesktopTest.h"
#include "display/CoreClient.h"
#include "display/Typist.h"

namespace {

using Milliseconds = std::chrono::milliseconds;

/// When the letters A to L came, by the server's clock.
std::vector<std::uint32_t> letterTimes(CoreClient& client) {
    std::vector<std::uint32_t> times;
    for (const CoreClient::KeyEvent& event : client.events()) {
        if (event.press && event.keycode >= xkey::a && event.keycode < xkey::a + 9)
            times.push_back(event.time);
    }
    return times;
}

/// How long after the first of them each came, from the one of that index on.
std::vector<std::uint32_t> afterTheFirst(const std::vector<std::uint32_t>& times, std::size_t first) {
    std::vector<std::uint32_t> after;
    for (std::size_t i = first; i < times.size(); ++i) after.push_back(times[i] - times.at(first));
    return after;
}

class RecordedPausesTest : public DesktopTest {
  protected:
    RecordedPausesTest() { desktop.startTray(); }

    void start(const std::string& settings) {
        desktop.writeSettings("notFirstRun=true\n" + settings);
        keyrill.emplace(desktop);
        m_client.emplace(desktop.display());
    }
    /// Records what is typed; when the keys came.
    template <typename Typing>
    std::vector<std::uint32_t> typed(Typing typing) {
        stroke(xkey::r);
        desktop.awaitWindow(title::overlay);
        const std::size_t before = letterTimes(client()).size();
        typing();
        stroke(xkey::s);
        EXPECT_TRUE(eventually([this] { return !desktop.shows(title::overlay); }));
        return afterTheFirst(letterTimes(client()), before);
    }
    /// Plays so many keys three times; when they came, of each the middle one. The machine may be late with a
    /// key, the first one too, but hardly with the same one twice.
    std::vector<std::uint32_t> played(std::size_t count) {
        std::vector<std::array<std::uint32_t, 3>> plays(count);
        for (std::size_t play = 0; play < 3; ++play) {
            const std::size_t before = letterTimes(client()).size();
            stroke(xkey::p);
            EXPECT_TRUE(eventually([&] { return letterTimes(client()).size() == before + count; }));
            const std::vector<std::uint32_t> times = afterTheFirst(letterTimes(client()), before);
            for (std::size_t i = 0; i < std::min(count, times.size()); ++i) plays[i].at(play) = times[i];
        }
        std::vector<std::uint32_t> middle;
        for (auto& times : plays) {
            std::sort(times.begin(), times.end());
            middle.push_back(times[1]);
        }
        return middle;
    }
    void stroke(std::uint8_t key) { typist.stroke({xkey::control, xkey::super, key}); }

    std::optional<Keyrill> keyrill;
    Hands hands{desktop.display()};
    Typist typist{hands, Milliseconds(30)};

  private:
    CoreClient& client() { return *m_client; }

    /// In front of what the program has shown at its start.
    std::optional<CoreClient> m_client;
};

class PauseAsTypedTest : public RecordedPausesTest, public testing::WithParamInterface<Typist::Gap> {};

TEST_P(PauseAsTypedTest, aMacroTakesAsLongAsItsTyping) {
    start("recordPauses=1\n");
    const Typist person(hands, GetParam());
    const auto whenTyped = typed([&] {
        for (std::uint8_t i = 0; i < 30; ++i) {
            person.tap(static_cast<std::uint8_t>(xkey::a + i % 9));
            if (i % 10 == 4) person.hold(Milliseconds(300));
        }
    });
    const auto whenPlayed = played(whenTyped.size());
    ASSERT_EQ(whenTyped.size(), 30U);
    ASSERT_EQ(whenPlayed.size(), whenTyped.size());
    for (std::size_t i = 0; i < whenTyped.size(); ++i) {
        EXPECT_NEAR(whenPlayed[i], whenTyped[i], 10.0 * static_cast<double>(i) + whenTyped[i] * 0.01)
            << "key " << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Gaps, PauseAsTypedTest, testing::ValuesIn(Typist::gaps),
                         [](const auto& gap) { return nameOf(gap.param); });

TEST_F(RecordedPausesTest, longPausesAreCut) {
    start("recordPauses=2\nrecordPausesLimit=400\n");
    typed([this] {
        typist.tap(xkey::a);
        typist.hold(Milliseconds(1500));
        typist.tap(xkey::a);
        typist.hold(Milliseconds(200));
        typist.tap(xkey::a);
    });
    const auto whenPlayed = played(3);
    ASSERT_EQ(whenPlayed.size(), 3U);
    EXPECT_NEAR(whenPlayed[1], 400, 14);
    EXPECT_GT(whenPlayed[2] - whenPlayed[1], 230U);
    EXPECT_LT(whenPlayed[2] - whenPlayed[1], 390U);
}

TEST_F(RecordedPausesTest, noneIsKeptUntilTheUserWantsIt) {
    start("");
    typed([this] {
        typist.tap(xkey::a);
        typist.hold(Milliseconds(1000));
        typist.tap(xkey::a);
    });
    const auto whenPlayed = played(2);
    ASSERT_EQ(whenPlayed.size(), 2U);
    EXPECT_LT(whenPlayed[1], 100U);
}

}  // namespace
