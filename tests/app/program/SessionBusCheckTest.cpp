// SPDX-License-Identifier: MIT
#include "app/program/SessionBusCheck.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <thread>

#include "support/Child.h"

namespace {

using std::chrono::milliseconds;

/// A socket that is listened at, and nothing more.
class Listener {
  public:
    explicit Listener(const std::string& path) : m_socket(socket(AF_UNIX, SOCK_STREAM, 0)) {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(&address.sun_path[0], path.data(), path.size());
        EXPECT_EQ(bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        EXPECT_EQ(listen(m_socket, 1), 0);
    }
    ~Listener() { close(m_socket); }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    void answerOnce() const {
        const int client = accept(m_socket, nullptr, nullptr);
        const std::string answer = "REJECTED EXTERNAL\r\n";
        EXPECT_EQ(send(client, answer.data(), answer.size(), 0), static_cast<ssize_t>(answer.size()));
        close(client);
    }

  private:
    int m_socket;
};

TEST(SessionBusCheckTest, findsABusThatHangs) {
    const TemporaryFolder folder;
    const Listener listener(folder.file("bus"));
    EXPECT_FALSE(answersInTime("unix:path=" + folder.file("bus"), milliseconds(20)));
    EXPECT_FALSE(answersInTime("unix:guid=0,path=" + folder.file("bus") + ";tcp:host=x", milliseconds(20)));
}

TEST(SessionBusCheckTest, findsABusThatAnswers) {
    const TemporaryFolder folder;
    const Listener listener(folder.file("bus"));
    std::thread bus([&listener] { listener.answerOnce(); });
    EXPECT_TRUE(answersInTime("unix:path=" + folder.file("bus") + ",guid=0", milliseconds(10000)));
    bus.join();
}

TEST(SessionBusCheckTest, leavesWhatIsNotThereOrNotASocketToOthers) {
    EXPECT_TRUE(answersInTime("unix:path=/no such bus", milliseconds(10000)));
    EXPECT_TRUE(answersInTime("disabled:", milliseconds(10000)));
    EXPECT_TRUE(answersInTime("autolaunch:", milliseconds(10000)));
    EXPECT_TRUE(answersInTime("", milliseconds(10000)));
}

}  // namespace
