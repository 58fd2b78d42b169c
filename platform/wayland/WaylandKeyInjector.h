// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/KeyInjector.h"
#include "platform/run/RunCompanion.h"
#include "platform/run/RunInterrupt.h"
#include "platform/run/RunWatch.h"
#include "platform/wayland/SeatKeymap.h"
#include "platform/wayland/VirtualKeyboard.h"

namespace wayland {

class WaylandInjectionSession;

/// Presses keys on a virtual keyboard of the compositor's, which is at the seat while a run lasts.
class WaylandKeyInjector final : public KeyInjector {
  public:
    /// All outlive the injector.
    WaylandKeyInjector(WaylandConnection& connection, SeatKeymap& seat, RunWatch& watch, Clock& clock);
    ~WaylandKeyInjector() override;
    WaylandKeyInjector(const WaylandKeyInjector&) = delete;
    WaylandKeyInjector& operator=(const WaylandKeyInjector&) = delete;

    /// Whether keys can be pressed here; open() looks if that has not been done.
    Result<void> start();

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
    /// Nothing else has to live for a run: the compositor itself lets go of what is down.
    class NoCompanion final : public RunCompanion {
      public:
        int fileDescriptor() const override { return -1; }
        Result<void> look() override { return {}; }
    };

    WaylandConnection& m_connection;
    SeatKeymap& m_seat;
    RunWatch& m_watch;
    Clock& m_clock;
    RunInterrupt m_interrupt;
    NoCompanion m_companion;
    std::unique_ptr<VirtualKeyboard> m_keyboard;
    WaylandInjectionSession* m_session = nullptr;
};

}  // namespace wayland
