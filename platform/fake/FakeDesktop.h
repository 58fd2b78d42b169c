// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <utility>

#include "platform/Clock.h"

/// What the fake services share: one order of deliveries, what holds them up, and the wish to stop a
/// playback.
///
/// A delivery is made when the event loop turns: at the end of each act of the user, but not while a script
/// runs and never inside another delivery, except while the program's own question is open.
class FakeDesktop {
  public:
    using Delivery = std::function<void()>;

    explicit FakeDesktop(const Clock& clock) : m_clock(clock) {}

    void post(Delivery delivery) { m_queue.push_back({std::move(delivery), false}); }
    /// One that starts a playback; a stop before it is made takes it back.
    void postPlay(Delivery delivery) { m_queue.push_back({std::move(delivery), true}); }
    /// Makes all deliveries that wait.
    void turnLoop();

    /// A script runs while one lives; runs nest.
    class Run {
      public:
        explicit Run(FakeDesktop& desktop) : m_desktop(desktop) { ++m_desktop.m_runs; }
        ~Run() { --m_desktop.m_runs; }
        Run(const Run&) = delete;
        Run& operator=(const Run&) = delete;

      private:
        FakeDesktop& m_desktop;
    };
    bool isRunning() const { return m_runs > 0; }

    /// Of the events of now, as their time stamp.
    std::uint32_t eventTime() const;

    void setWithheld(bool withheld) { m_withheld = withheld; }
    bool isWithheld() const { return m_withheld; }

    /// While the screen is locked another program holds the keyboard.
    void lockScreen(bool locked) { m_screenLocked = locked; }
    bool isScreenLocked() const { return m_screenLocked; }

    void startPlayback();
    void cancelPlayback();
    bool isCancelled();
    void escapeGoesDown();
    void escapeGoesUp();

  private:
    struct Waiting {
        Delivery make;
        bool isPlay = false;
    };

    const Clock& m_clock;
    std::deque<Waiting> m_queue;
    bool m_delivering = false;
    int m_runs = 0;
    bool m_withheld = false;
    bool m_screenLocked = false;
    bool m_cancelled = false;
    std::optional<Clock::Time> m_escapeDownSince;
};
