// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "contracts/ScreenLockContract.h"
#include "linux/desktop/BusLoopTest.h"
#include "platform/linux/BusScreenLock.h"

namespace {

class ScreenLockTest : public testing::Test {
  protected:
    bool becomes(BusScreenLock& lock, bool locked) {
        return turnUntil(loop, [&] { return lock.isLocked() == locked; });
    }
    /// Until the lock has found the session and hears it.
    void awaitSettled(BusScreenLock& lock, const StandIn& standIn) {
        EXPECT_TRUE(turnUntil(loop, [&] {
            standIn.obey("hint 1");
            return lock.isLocked();
        }));
        standIn.obey("hint 0");
        EXPECT_TRUE(becomes(lock, false));
    }

    PrivateBus systemBus;
    PrivateBus sessionBus;
    BusLoop loop;
    const BusAddresses both{.session = sessionBus.address(), .system = systemBus.address()};
};

TEST_F(ScreenLockTest, followsTheSessionsSignals) {
    const StandIn login(systemBus, {"login"});
    BusScreenLock lock(loop, both);
    awaitSettled(lock, login);
    login.obey("lock");
    EXPECT_TRUE(becomes(lock, true));
    login.obey("unlock");
    EXPECT_TRUE(becomes(lock, false));
}

TEST_F(ScreenLockTest, followsTheLockersHint) {
    const StandIn login(systemBus, {"login"});
    BusScreenLock lock(loop, both);
    awaitSettled(lock, login);
    login.obey("lock");
    login.obey("hint 1");
    EXPECT_TRUE(becomes(lock, true));
    login.obey("hint 0");
    EXPECT_TRUE(becomes(lock, false));
}

TEST_F(ScreenLockTest, asksForTheCallersSession) {
    const StandIn login(systemBus, {"login"});
    BusScreenLock own(loop, both);
    BusScreenLock named(loop, both, "c2");
    EXPECT_TRUE(turnUntil(loop, [&] {
        return login.heard().find("session auto\n") != std::string::npos &&
               login.heard().find("session c2\n") != std::string::npos;
    }));
}

TEST_F(ScreenLockTest, isLockedFromTheStartWhereTheScreenWasBefore) {
    const StandIn login(systemBus, {"login"});
    login.obey("hint 1");
    BusScreenLock first(loop, both);
    EXPECT_TRUE(becomes(first, true));
    const StandIn saver(sessionBus, {"saver"});
    saver.obey("active 1");
    BusScreenLock second(loop, {.session = sessionBus.address(), .system = ""});
    EXPECT_TRUE(becomes(second, true));
}

TEST_F(ScreenLockTest, followsTheScreenSaver) {
    const StandIn saver(sessionBus, {"saver"});
    BusScreenLock lock(loop, both);
    EXPECT_TRUE(turnUntil(loop, [&] {
        saver.obey("active 1");
        return lock.isLocked();
    }));
    saver.obey("active 0");
    EXPECT_TRUE(becomes(lock, false));
}

TEST_F(ScreenLockTest, isLockedAsLongAsOneOfBothSaysSo) {
    const StandIn login(systemBus, {"login"});
    const StandIn saver(sessionBus, {"saver"});
    login.obey("hint 1");
    BusScreenLock lock(loop, both);
    BusScreenLock saverOnly(loop, {.session = sessionBus.address(), .system = ""});
    ASSERT_TRUE(becomes(lock, true));
    saver.obey("active 1");
    ASSERT_TRUE(becomes(saverOnly, true));
    saver.obey("active 0");
    ASSERT_TRUE(becomes(saverOnly, false));
    EXPECT_TRUE(lock.isLocked());
    login.obey("hint 0");
    EXPECT_TRUE(becomes(lock, false));
}

TEST_F(ScreenLockTest, isFreedWhenTheScreenSaverEnds) {
    const StandIn saver(sessionBus, {"saver"});
    saver.obey("active 1");
    BusScreenLock lock(loop, both);
    ASSERT_TRUE(becomes(lock, true));
    saver.obey("end");
    EXPECT_TRUE(becomes(lock, false));
}

TEST_F(ScreenLockTest, isFreedWhenTheBusEnds) {
    const StandIn saver(sessionBus, {"saver"});
    saver.obey("active 1");
    BusScreenLock lock(loop, both);
    ASSERT_TRUE(becomes(lock, true));
    sessionBus.die();
    EXPECT_TRUE(becomes(lock, false));
}

TEST_F(ScreenLockTest, followsTheSaverAndTheSessionOfBusesThatHaveComeInTheOthersPlace) {
    BusScreenLock lock(loop, both);
    {
        const StandIn saver(sessionBus, {"saver"});
        saver.obey("active 1");
        EXPECT_TRUE(becomes(lock, true));
    }
    sessionBus.die();
    systemBus.die();
    EXPECT_TRUE(becomes(lock, false));
    sessionBus.comeBack();
    systemBus.comeBack();
    const StandIn saver(sessionBus, {"saver"});
    const StandIn login(systemBus, {"login"});
    EXPECT_TRUE(turnUntil(loop, [&] {
        saver.obey("active 1");
        return lock.isLocked();
    }));
    saver.obey("active 0");
    EXPECT_TRUE(becomes(lock, false));
    awaitSettled(lock, login);
}

TEST_F(ScreenLockTest, isFreeWithoutABus) {
    for (const std::string address : {"", "unix:path=/nowhere/bus", "nonsense"}) {
        const BusScreenLock lock(loop, {.session = address, .system = address});
        EXPECT_FALSE(lock.isLocked());
    }
}

TEST_F(ScreenLockTest, tellsItsObserversFromTheLoopAlone) {
    const StandIn login(systemBus, {"login"});
    login.obey("hint 1");
    BusScreenLock lock(loop, both);
    std::string told;
    lock.observe([&](bool locked) { told += locked ? "locked " : "unlocked "; });
    ASSERT_TRUE(eventually([&] { return lock.isLocked(); }));
    EXPECT_EQ(told, "");
    ASSERT_TRUE(turnUntil(loop, [&] { return !told.empty(); }));
    EXPECT_EQ(told, "locked ");
}

/// The lock of a session whose user acts through the stand-in.
class BusScreenLockWorld : public ScreenLockWorld {
  public:
    BusScreenLockWorld() {
        // All is asked once a first change has come through.
        turnUntil(m_loop, [this] {
            m_login.obey("hint 1");
            return m_lock.isLocked();
        });
        m_login.obey("hint 0");
        turnUntil(m_loop, [this] { return !m_lock.isLocked(); });
        m_loop.dispatch();
    }

    ScreenLock& lock() override { return m_lock; }
    void userLocks() override { change("hint 1", true); }
    void userUnlocks() override { change("hint 0", false); }

  private:
    void change(const std::string& command, bool locked) {
        m_login.obey(command);
        turnUntil(m_loop, [&] { return m_lock.isLocked() == locked; });
        m_loop.dispatch();
    }

    PrivateBus m_bus;
    StandIn m_login{m_bus, {"login"}};
    BusLoop m_loop;
    BusScreenLock m_lock{m_loop, {.session = "", .system = m_bus.address()}};
};

INSTANTIATE_TEST_SUITE_P(OnABus, ScreenLockContract,
                         testing::Values([]() -> std::unique_ptr<ScreenLockWorld> {
                             return std::make_unique<BusScreenLockWorld>();
                         }));

}  // namespace
