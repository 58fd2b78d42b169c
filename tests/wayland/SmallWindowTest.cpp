// SPDX-License-Identifier: MIT
//
// The small window that stands in for a tray.
#include <gtest/gtest.h>

#include "wayland/Places.h"

namespace {

class SmallWindowTest : public testing::TestWithParam<Place> {
  protected:
    /// Which comes three seconds after the start.
    void awaitWindow() const {
        m_session->launch("keystroke \"x\"");
        ASSERT_TRUE(eventually([this] { return m_session->shows("Keyrill"); }, std::chrono::seconds(60)))
            << m_session->log();
    }
    ProgramSession& session() const { return *m_session; }
    Target& target() const { return *m_target; }

  private:
    std::unique_ptr<ProgramSession> m_session = GetParam().open();
    std::unique_ptr<Target> m_target = m_session->openTarget(GetParam().target);
};

TEST_P(SmallWindowTest, comesWithoutTakingTheKeysFromWhoIsTypedInto) {
    awaitWindow();
    session().hands().type("keys");
    EXPECT_EQ(target().text("keys"), "keys");
    session().awaitRest();
    session().hands().type("more");
    EXPECT_EQ(target().text("keysmore"), "keysmore");
}

TEST_P(SmallWindowTest, takesNoneWhenAnotherWindowOfTheProgramGoes) {
    awaitWindow();
    session().awaitRest();
    session().strokeHotKey(xkey::r);
    ASSERT_TRUE(eventually([this] { return session().compositor().hasFocus("Record Here"); }));
    session().strokeHotKey(xkey::s);
    ASSERT_TRUE(eventually([this] { return !session().shows("Record Here"); }));
    session().awaitRest();
    session().hands().type("keys");
    EXPECT_EQ(target().text("keys"), "keys");
}

const Place swayWithoutX{"swayWithoutX",
                         [] { return place::onSway({.hasSessionBus = true, .hasXServer = false}); },
                         Target::Kind::terminal};

const Place kwinWithoutX{"kwinWithoutX", [] { return place::onKWin({.hasXServer = false}); },
                         Target::Kind::qt};

INSTANTIATE_TEST_SUITE_P(Sessions, SmallWindowTest,
                         testing::Values(place::sway, swayWithoutX, place::kwin, kwinWithoutX), nameOf);

/// With an X server, and without one.
class SwaySmallWindowTest : public SwayProgram, public testing::TestWithParam<bool> {
  protected:
    SwaySmallWindowTest() : SwayProgram({.hasSessionBus = true, .hasXServer = GetParam()}) {}

    /// Whether it is where the user is.
    bool isHere() const {
        return eventually(
            [this] { return sway().tries({"[title=\"^Keyrill$\" workspace=__focused__] nop"}); });
    }
    void startAgain() const { EXPECT_EQ(outputOfUsers({KEYRILL_PRODUCT}), ""); }
};

INSTANTIATE_TEST_SUITE_P(XServers, SwaySmallWindowTest, testing::Bool(),
                         [](const auto& has) { return std::string(has.param ? "withOne" : "withoutOne"); });

TEST_P(SwaySmallWindowTest, comesToWhoStartsTheProgramAgainAndTakesNoKeys) {
    start("keystroke \"x\"");
    for (const char* const workspace : {"2", "3"}) {
        sway().message({"workspace", workspace});
        const Foot foot(sway());
        startAgain();
        EXPECT_TRUE(isHere());
        hands().type("keys");
        EXPECT_EQ(foot.typed(4), "keys");
        strokeHotKey(xkey::p);
        EXPECT_EQ(foot.typed(5), "keysx");
    }
}

/// Sway minimises nothing.
class KWinSmallWindowTest : public KWinProgram, public testing::Test {};

TEST_F(KWinSmallWindowTest, comesBackFromAmongTheMinimisedOnes) {
    start("");
    kwin().close("Keyrill");
    ASSERT_TRUE(eventually([this] { return kwin().isMinimised("Keyrill"); }));
    EXPECT_EQ(outputOfUsers({KEYRILL_PRODUCT}), "");
    EXPECT_TRUE(eventually([this] { return shows("Keyrill") && !kwin().isMinimised("Keyrill"); }));
}

}  // namespace
