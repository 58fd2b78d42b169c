// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayConnection.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>

#include "support/Child.h"

namespace {

using Request = SwayConnection::Request;
using std::chrono::milliseconds;

/// A sway that answers when the test says so, for which nobody waits long.
class SwayConnectionTest : public testing::Test {
  protected:
    void SetUp() override {
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        m_path.copy(static_cast<char*>(address.sun_path), sizeof address.sun_path - 1);
        ASSERT_EQ(bind(m_listener.number(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        ASSERT_EQ(listen(m_listener.number(), 1), 0);
        setenv("SWAYSOCK", m_path.c_str(), 1);
        auto opened = SwayConnection::open(milliseconds(20));
        ASSERT_TRUE(opened);
        m_connection.emplace(std::move(opened).value());
        m_sway = Descriptor(accept(m_listener.number(), nullptr, nullptr));
    }
    void TearDown() override { unsetenv("SWAYSOCK"); }

    void swaySays(std::uint32_t type, const std::string& json) {
        const std::array<std::uint32_t, 2> head{static_cast<std::uint32_t>(json.size()), type};
        std::string message = "i3-ipc";
        message.append(reinterpret_cast<const char*>(head.data()), sizeof head);
        message += json;
        ASSERT_EQ(send(m_sway.number(), message.data(), message.size(), 0),
                  static_cast<ssize_t>(message.size()));
    }
    void swayAnswers(Request request, const std::string& json) {
        swaySays(static_cast<std::uint32_t>(request), json);
    }
    SwayConnection& connection() { return *m_connection; }

  private:
    TemporaryFolder m_folder;
    const std::string m_path = m_folder.file("socket");
    Descriptor m_listener{socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    Descriptor m_sway;
    std::optional<SwayConnection> m_connection;
};

TEST_F(SwayConnectionTest, anAnswerThatComesTooLateIsNotTheNextOnes) {
    ASSERT_FALSE(connection().ask(Request::seats));
    ASSERT_FALSE(connection().ask(Request::tree));
    swayAnswers(Request::seats, R"(["old"])");
    swayAnswers(Request::tree, R"({"name": "old"})");
    swayAnswers(Request::seats, R"(["new"])");
    const auto seats = connection().ask(Request::seats);
    ASSERT_TRUE(seats);
    EXPECT_EQ(seats.value().items().at(0).text(), "new");
}

TEST_F(SwayConnectionTest, anAnswerThatComesTooLateMayBeReadBetweenQuestions) {
    ASSERT_FALSE(connection().ask(Request::seats));
    swayAnswers(Request::seats, R"(["old"])");
    EXPECT_FALSE(connection().nextEvent());
    swayAnswers(Request::seats, R"(["new"])");
    const auto seats = connection().ask(Request::seats);
    ASSERT_TRUE(seats);
    EXPECT_EQ(seats.value().items().at(0).text(), "new");
}

TEST_F(SwayConnectionTest, eventsThatComeBeforeAnAnswerAreKept) {
    swaySays(SwayConnection::workspaceEvent, R"({"change": "focus"})");
    swayAnswers(Request::seats, "[]");
    EXPECT_TRUE(connection().ask(Request::seats));
    const auto event = connection().nextEvent();
    ASSERT_TRUE(event);
    EXPECT_EQ(event->type, SwayConnection::workspaceEvent);
    EXPECT_EQ(event->content["change"].text(), "focus");
}

}  // namespace
