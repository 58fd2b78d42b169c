// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/KeyInjector.h"
#include "platform/run/RunInterrupt.h"
#include "platform/run/RunWatch.h"
#include "platform/wayland/Pressing.h"
#include "platform/wayland/SeatKeymap.h"

namespace wayland {

class WaylandInjectionSession;

/// Presses keys in the way that the session has.
class WaylandKeyInjector final : public KeyInjector {
  public:
    /// All outlive the injector.
    WaylandKeyInjector(WaylandConnection& connection, SeatKeymap& seat, Pressing& pressing, RunWatch& watch,
                       Clock& clock);
    ~WaylandKeyInjector() override;
    WaylandKeyInjector(const WaylandKeyInjector&) = delete;
    WaylandKeyInjector& operator=(const WaylandKeyInjector&) = delete;

    /// Whether keys can be pressed here; open() looks if that has not been done.
    Result<void> start() { return m_pressing.start(); }

    Result<std::unique_ptr<InjectionSession>> open(const InjectionPlan& plan) override;
    void startPlayback() override;
    bool isCancelled() override;
    void stopPlayback() override { m_watch.stopPlayback(); }
    void rest() override;
    void settle() override;

    /// Session::interrupt() and Session::suspend().
    void interrupt() noexcept { m_interrupt.raise(); }
    void suspend() noexcept { m_interrupt.suspend(); }

  private:
    WaylandConnection& m_connection;
    SeatKeymap& m_seat;
    Pressing& m_pressing;
    RunWatch& m_watch;
    Clock& m_clock;
    RunInterrupt m_interrupt;
    WaylandInjectionSession* m_session = nullptr;
};

}  // namespace wayland
