// SPDX-License-Identifier: MIT
//
// keyrill --action in Wayland sessions, judged by a native program.
#include <gtest/gtest.h>

#include "wayland/AccessWorld.h"
#include "wayland/Places.h"

namespace {

class WaylandActionTest : public testing::TestWithParam<Place> {
  protected:
    WaylandActionTest() {
        for (const char* const command : {"serve", "allow"}) m_access.tell(command);
        m_session->setSystemBus(m_access.bus());
    }

    void start(const std::string& macro) {
        m_session->start(macro);
        m_target = m_session->openTarget(GetParam().target);
        m_person = std::make_unique<ShownHands>(m_access, m_session->hands(), m_session->program().pid());
    }
    bool isKeyboardOpen() { return m_access.isOpenFor(m_session->program().pid()); }

    ProgramSession& session() { return *m_session; }
    const Target& target() const { return *m_target; }
    ShownHands& person() { return *m_person; }

  private:
    AccessWorld m_access;
    std::unique_ptr<ProgramSession> m_session = GetParam().open();
    std::unique_ptr<Target> m_target;
    std::unique_ptr<ShownHands> m_person;
};

INSTANTIATE_TEST_SUITE_P(Sessions, WaylandActionTest, testing::Values(place::sway, place::kwin), nameOf);

TEST_P(WaylandActionTest, aMacroIsRecordedStoppedPlayedAndPlayedThreeTimes) {
    start("keystroke \"x\"");
    EXPECT_EQ(session().ask("record"), "");
    ASSERT_TRUE(eventually([this] { return isKeyboardOpen(); }));
    person().type("ab");
    ASSERT_EQ(target().text("ab"), "ab");
    EXPECT_EQ(session().ask("stop"), "");
    ASSERT_TRUE(eventually([this] { return !isKeyboardOpen(); }));
    EXPECT_EQ(session().ask("play"), "");
    EXPECT_EQ(target().text("abab"), "abab");
    session().awaitRest();
    EXPECT_EQ(session().ask("multiple"), "");
    ASSERT_TRUE(eventually([this] { return session().hasLayerKeys(); }));
    person().type("3");
    person().stroke({xkey::returnKey});
    EXPECT_EQ(target().text("ababababab"), "ababababab");
}

TEST_P(WaylandActionTest, stopEndsAPlay) {
    start("repeat 2000 times\nkeystroke \"1\"\ndelay 0.02\nend repeat");
    EXPECT_EQ(session().ask("play"), "");
    ASSERT_TRUE(eventually([this] { return target().text().size() >= 10; }, std::chrono::seconds(20)));
    EXPECT_EQ(session().ask("play"), "keyrill: Keyrill is playing a macro.\n");
    EXPECT_EQ(session().ask("stop"), "");
    session().awaitRest();
    person().type("2");
    EXPECT_TRUE(eventually([this] { return target().text().ends_with("12"); })) << target().text();
    EXPECT_LT(target().text().size(), 2000U);
}

}  // namespace
