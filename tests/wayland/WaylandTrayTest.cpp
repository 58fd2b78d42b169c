// SPDX-License-Identifier: MIT
//
// The icon in a tray of status notifiers, the only ones that there are in Wayland sessions.
#include <gtest/gtest.h>

#include "wayland/Places.h"

namespace {

class WaylandTrayTest : public testing::TestWithParam<Place> {
  protected:
    WaylandTrayTest() {
        m_host = m_session->run(hostWith({"serve"}), "host");
        if (!eventually([this] { return m_session->outputIn("host").starts_with("ready"); },
                        std::chrono::seconds(20)))
            throw std::runtime_error("there is no tray: " + m_session->outputIn("host"));
    }

    /// What the tray says of the icon: "icon", "menu"; "click" and a label.
    std::string host(const std::vector<std::string>& words) const {
        return m_session->outputOfUsers(hostWith(words));
    }
    bool hasMenu(const std::string& labels) const {
        return eventually([&] { return host({"menu"}).starts_with(labels); }, std::chrono::seconds(30));
    }
    void choose(const std::string& label) const { ASSERT_EQ(host({"click", label}), ""); }
    ProgramSession& session() { return *m_session; }

  private:
    static std::vector<std::string> hostWith(const std::vector<std::string>& words) {
        std::vector<std::string> command = {"/usr/bin/python3", KEYRILL_TRAY_HOST};
        command.insert(command.end(), words.begin(), words.end());
        return command;
    }

    std::unique_ptr<ProgramSession> m_session = GetParam().open();
    std::unique_ptr<Child> m_host;
};

INSTANTIATE_TEST_SUITE_P(Sessions, WaylandTrayTest, testing::Values(place::sway, place::kwin), nameOf);

TEST_P(WaylandTrayTest, itsMenuRecordsStopsAndPlays) {
    session().launch("keystroke \"x\"");
    ASSERT_TRUE(hasMenu("Start Recording\n\nHistory\n")) << host({"menu"}) << session().log();
    EXPECT_EQ(host({"icon"}), "16 22 24 32 48 64\n");
    const auto target = session().openTarget(GetParam().target);
    choose("Start Recording");
    ASSERT_TRUE(eventually([this] { return session().compositor().hasFocus("Record Here"); }))
        << session().log();
    EXPECT_TRUE(hasMenu("Stop Recording\n")) << host({"menu"});
    session().hands().type("ab");
    choose("Stop Recording");
    ASSERT_TRUE(eventually([this] { return !session().shows("Record Here"); }));
    session().awaitRest();
    target->focus();
    EXPECT_TRUE(hasMenu("Start Recording\nPlay\nPlay Multiple Times...\n")) << host({"menu"});
    choose("Play");
    EXPECT_EQ(target->text("ab"), "ab");
    // No window stands in for it.
    EXPECT_FALSE(session().shows("Keyrill"));
}

}  // namespace
