// SPDX-License-Identifier: MIT
#include "app/controller/LateClicks.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWidget>

#include "platform/fake/FakeClock.h"

namespace {

/// A window that counts its clicks, and a server whose time began at another moment than the clock's.
class LateClicksTest : public testing::Test {
  protected:
    class Window : public QWidget {
      public:
        int presses = 0;

      protected:
        void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }
    };

    /// It happens now and comes later.
    void userClicks(Clock::Seconds later = Clock::Seconds(0)) {
        send(QEvent::MouseButtonPress, serverTime(), later);
    }
    void send(QEvent::Type type, quint64 time, Clock::Seconds later = Clock::Seconds(0)) {
        QMouseEvent event(type, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        event.setTimestamp(time);
        clock.advance(later);
        QCoreApplication::sendEvent(&window, &event);
    }
    quint64 serverTime() const {
        constexpr std::chrono::minutes apart{7};
        const auto since = clock.now().time_since_epoch() - apart;
        return static_cast<quint64>(std::chrono::duration_cast<std::chrono::milliseconds>(since).count());
    }
    void play(Clock::Seconds duration) {
        clock.advance(duration);
        late.notePlayed();
    }

    FakeClock clock;
    LateClicks late{clock};
    Window window;
};

TEST_F(LateClicksTest, areTakenAwayAfterAPlay) {
    userClicks();
    EXPECT_EQ(window.presses, 1);
    // In the middle of a play of two seconds, handled after it.
    const quint64 middle = serverTime() + 1000;
    play(Clock::Seconds(2));
    send(QEvent::MouseButtonPress, middle);
    EXPECT_EQ(window.presses, 1);
    userClicks();
    EXPECT_EQ(window.presses, 2);
}

TEST_F(LateClicksTest, thoseAtTheVeryEndAreTaken) {
    userClicks();
    const quint64 nearEnd = serverTime() + 1900;
    play(Clock::Seconds(2));
    send(QEvent::MouseButtonPress, nearEnd);
    EXPECT_EQ(window.presses, 2);
}

TEST_F(LateClicksTest, areTakenWhereNothingPlayed) {
    userClicks();
    userClicks(Clock::Seconds(3));
    EXPECT_EQ(window.presses, 2);
}

TEST_F(LateClicksTest, theMouseTellsTheTimeBeforeTheFirstClick) {
    send(QEvent::MouseMove, serverTime());
    const quint64 before = serverTime();
    play(Clock::Seconds(2));
    send(QEvent::MouseButtonPress, before + 500);
    EXPECT_EQ(window.presses, 0);
}

/// After 49 days the server's time begins anew.
TEST_F(LateClicksTest, areTakenAgainWhenTheServerCountsAnew) {
    userClicks();
    play(Clock::Seconds(1));
    clock.advance(std::chrono::hours(24));
    send(QEvent::MouseButtonPress, 5);
    EXPECT_EQ(window.presses, 2);
}

TEST_F(LateClicksTest, thoseThatNoServerSentAreTaken) {
    play(Clock::Seconds(1));
    send(QEvent::MouseButtonPress, 0);
    EXPECT_EQ(window.presses, 1);
}

}  // namespace
