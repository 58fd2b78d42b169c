// SPDX-License-Identifier: MIT
#include <algorithm>
#include <fstream>
#include <iostream>
#include <random>
#include <sstream>

#include "display/CoreClient.h"
#include "display/Hands.h"
#include "support/Keys.h"
#include "x11/press/InjectorTest.h"

namespace {

/// How soon after the player's death all must be as before, on a machine that has nothing else to do.
constexpr std::chrono::milliseconds promise{50};

/// Set for long runs with the machine to themselves: then the time is judged too.
bool isTimeJudged() { return std::getenv("KEYRILL_KILLS") != nullptr; }

int numberOfKills() {
    const char* wanted = std::getenv("KEYRILL_KILLS");
    return wanted == nullptr ? 20 : std::stoi(wanted);
}

/// The promise is one about time, so that there is nothing to wait for but its end.
void passUntil(std::chrono::steady_clock::time_point end) {
    eventually([end] { return std::chrono::steady_clock::now() >= end; }, promise);
}

/// Players that are killed, judged by the server's own state. Caps Lock was on before.
class KillTest : public testing::Test {
  protected:
    KillTest() : m_probe(m_server.display()), m_hands(m_server.display()) {
        m_hands.lock(xmask::capsLock, true);
        m_hands.finish();
    }

    Child& start(const std::string& how, const std::string& guard = KEYRILL_GUARD) {
        const std::string log = m_folder.file("log" + std::to_string(++m_players));
        m_player = std::make_unique<Child>(
            std::vector<std::string>{KEYRILL_PLAYER, m_server.display(), m_folder.path(), how, guard},
            Child::Options{.environment = {}, .outputFile = log});
        EXPECT_TRUE(eventually([&] { return contentOf(log).starts_with("playing"); })) << contentOf(log);
        return *m_player;
    }

    /// A player that holds Control and a key, which the server has taken in.
    Child& startHolding(const std::string& guard = KEYRILL_GUARD) {
        Child& player = start("hold", guard);
        EXPECT_TRUE(eventually([this] {
            return m_probe.words() == "keys: 37 38, modifiers: 0x4, locked: 0x0, group: 0";
        })) << m_probe.words();
        return player;
    }

    pid_t guardOf(const Child& player) const {
        const std::string pid = std::to_string(player.pid());
        pid_t guard = 0;
        std::ifstream("/proc/" + pid + "/task/" + pid + "/children") >> guard;
        return guard;
    }

    void awaitOtherGuard(const Child& player, pid_t first) const {
        const auto isOther = [&] {
            const pid_t guard = guardOf(player);
            const std::string words = contentOf("/proc/" + std::to_string(guard) + "/cmdline");
            return guard != first && words.find("keyrill-guard") != std::string::npos;
        };
        ASSERT_TRUE(eventually(isOther));
    }

    /// Kills the player and waits until its guard has gone, or as long as the guard may take.
    void killAndWait(Child& player) const {
        const pid_t guard = guardOf(player);
        const auto end = std::chrono::steady_clock::now() + promise;
        player.signal(SIGKILL);
        player.wait();
        if (isTimeJudged() || guard == 0) return passUntil(end);
        // A process that has ended has no words left, whether somebody has asked for its status or not.
        const std::string words = "/proc/" + std::to_string(guard) + "/cmdline";
        EXPECT_TRUE(eventually([&] { return contentOf(words).empty(); })) << "the guard goes on";
    }

    /// Kills that many players at random moments; after how many of them something was not as before.
    int killsThatLeaveSomething(const std::string& how, int kills, const std::string& guard = KEYRILL_GUARD) {
        std::mt19937 random(20261121);
        std::uniform_int_distribution<int> microseconds(0, 30000);
        int left = 0;
        for (int kill = 0; kill < kills; ++kill) {
            Child& player = start(how, guard);
            const auto until =
                std::chrono::steady_clock::now() + std::chrono::microseconds(microseconds(random));
            while (std::chrono::steady_clock::now() < until) continue;
            killAndWait(player);
            if (m_probe.words() == asBefore) continue;
            ++left;
            std::cout << how << ": after kill " << kill << " " << m_probe.words() << "\n";
            putRight();
        }
        return left;
    }

    void putRight() {
        for (unsigned keycode = 9; keycode < 256; ++keycode)
            m_hands.release(static_cast<std::uint8_t>(keycode));
        m_hands.lock(0xFF, false);
        m_hands.lock(xmask::capsLock, true);
        m_hands.lockGroup(0);
        m_hands.finish();
    }

    /// The server's keymap as text.
    std::string keymap() const { return outputOf({"xmodmap", "-pke"}, {{"DISPLAY", m_server.display()}}); }
    const KeyboardProbe& probe() const { return m_probe; }
    const XServer& server() const { return m_server; }
    const TemporaryFolder& folder() const { return m_folder; }

    static constexpr const char* asBefore = "keys:, modifiers: 0x0, locked: 0x2, group: 0";

  private:
    XServer m_server;
    TemporaryFolder m_folder;
    KeyboardProbe m_probe;
    Hands m_hands;
    std::unique_ptr<Child> m_player;
    int m_players = 0;
};

TEST_F(KillTest, strokesThatAreKilledAtAnyInstantLeaveNothing) {
    EXPECT_EQ(killsThatLeaveSomething("strokes", numberOfKills()), 0);
}

TEST_F(KillTest, switchesOfWindowsThatAreKilledAtAnyInstantLeaveNothing) {
    EXPECT_EQ(killsThatLeaveSomething("switches", numberOfKills()), 0);
    EXPECT_GT(killsThatLeaveSomething("switches", 5, KEYRILL_IDLE_GUARD), 0);
}

TEST_F(KillTest, textsThatAreKilledAtAnyInstantLeaveNothing) {
    EXPECT_EQ(killsThatLeaveSomething("text", numberOfKills()), 0);
}

TEST_F(KillTest, strokesWithoutCareAndGuardLeaveKeysDownWhichThisTestSees) {
    EXPECT_GT(killsThatLeaveSomething("careless", numberOfKills()), 0);
}

TEST_F(KillTest, strokesAndTextsWithAnIdleGuardLeaveSomethingWhichThisTestSees) {
    EXPECT_GT(killsThatLeaveSomething("strokes", 5, KEYRILL_IDLE_GUARD), 0);
    EXPECT_GT(killsThatLeaveSomething("text", 5, KEYRILL_IDLE_GUARD), 0);
}

TEST_F(KillTest, heldKeysStayDownWithAnIdleGuard) {
    Child& player = startHolding(KEYRILL_IDLE_GUARD);
    killAndWait(player);
    EXPECT_EQ(probe().words(), "keys: 37 38, modifiers: 0x4, locked: 0x0, group: 0");
}

TEST_F(KillTest, heldKeysGoUpAfterADeath) {
    Child& player = startHolding();
    killAndWait(player);
    EXPECT_EQ(probe().words(), asBefore);
}

TEST_F(KillTest, heldKeysGoUpAndLocksBackOnEachSignalThatAsksToEnd) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        Child& player = startHolding();
        player.signal(number);
        EXPECT_EQ(player.wait(std::chrono::seconds(2)), 0);
        EXPECT_EQ(probe().words(), asBefore) << number;
    }
}

TEST_F(KillTest, theGuardIsDeafToTheSignalsThatEndASession) {
    Child& player = startHolding();
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) ASSERT_EQ(kill(guardOf(player), number), 0);
    killAndWait(player);
    EXPECT_EQ(probe().words(), asBefore);
}

TEST_F(KillTest, theNextStartClearsUpAfterADeathOfBoth) {
    Child& player = startHolding();
    const pid_t guard = guardOf(player);
    ASSERT_EQ(kill(guard, SIGKILL), 0);
    player.signal(SIGKILL);
    player.wait();
    ASSERT_EQ(probe().held(), "keys: 37 38, modifiers: 0x4");
    Child& next = start("hold");
    next.signal(SIGTERM);
    next.wait();
    EXPECT_EQ(probe().held(), "keys:, modifiers: 0x0");
}

TEST_F(KillTest, charactersOnUnusedKeysAreClearedAwayByTheNextStart) {
    const std::string before = keymap();
    Child& player = start("text", KEYRILL_IDLE_GUARD);
    ASSERT_TRUE(eventually([&] { return keymap() != before; }));
    player.signal(SIGKILL);
    player.wait();
    ASSERT_NE(keymap(), before);
    Child& next = start("hold");
    EXPECT_EQ(keymap(), before);
    next.signal(SIGTERM);
    next.wait();
}

TEST_F(KillTest, charactersOnUnusedKeysAreTakenBackAfterADeath) {
    const std::string before = keymap();
    for (int kill = 0; kill < numberOfKills() / 2; ++kill) {
        Child& player = start("text");
        ASSERT_TRUE(eventually([&] { return keymap() != before; }));
        player.signal(SIGKILL);
        player.wait();
        EXPECT_TRUE(eventually([&] { return keymap() == before; })) << keymap();
        EXPECT_FALSE(probe().hasProperty("_KEYRILL_BOUND_KEYS"));
    }
}

TEST_F(KillTest, charactersOfALivingPlayerStayWhenAnotherDies) {
    const std::string before = keymap();
    InjectorOnDisplay living(server().display());
    ASSERT_TRUE(living.run()->text("\xC3\xA9", 0));
    const std::string bound = keymap();
    ASSERT_NE(bound, before);
    killAndWait(startHolding());
    EXPECT_EQ(keymap(), bound);
}

TEST_F(KillTest, aGuardThatIsKilledInARunIsReplacedAtOnce) {
    Child& player = startHolding();
    const pid_t first = guardOf(player);
    ASSERT_EQ(kill(first, SIGKILL), 0);
    awaitOtherGuard(player, first);
    EXPECT_EQ(probe().held(), "keys: 37 38, modifiers: 0x4");
    killAndWait(player);
    EXPECT_EQ(probe().words(), asBefore);
}

TEST_F(KillTest, aGuardThatHangsIsReplacedAndHoldsNobodyUp) {
    Child& player = start("runs");
    const pid_t first = guardOf(player);
    ASSERT_EQ(kill(first, SIGSTOP), 0);
    awaitOtherGuard(player, first);
    CoreClient client(server().display());
    EXPECT_TRUE(eventually([&] { return client.presses(xkey::a) > 300; })) << client.presses(xkey::a);
    killAndWait(player);
    EXPECT_EQ(probe().words(), asBefore);
}

TEST_F(KillTest, aSignalEndsAPlayerWhoseGuardHangs) {
    Child& player = start("runs");
    ASSERT_EQ(kill(guardOf(player), SIGSTOP), 0);
    player.signal(SIGTERM);
    EXPECT_EQ(player.wait(std::chrono::seconds(2)), 0);
    EXPECT_EQ(probe().words(), asBefore);
}

TEST_F(KillTest, charactersOfAnotherLivingPlayerStayWhereTheyAre) {
    const std::string before = keymap();
    InjectorOnDisplay living(server().display());
    ASSERT_TRUE(living.run()->text("\xC3\xA9", 0));
    const std::string bound = keymap();
    ASSERT_NE(bound, before);
    Child& second = start("hold");
    EXPECT_EQ(keymap(), bound);
    second.signal(SIGTERM);
    second.wait();
}

}  // namespace
