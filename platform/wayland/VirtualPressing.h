// SPDX-License-Identifier: MIT
#pragma once

#include "platform/wayland/Pressing.h"
#include "platform/wayland/SeatKeymap.h"
#include "platform/wayland/VirtualKeyboard.h"

namespace wayland {

/// Pressing on a virtual keyboard of the compositor's, which is at the seat while a run lasts.
class VirtualPressing final : public Pressing {
  public:
    /// All outlive this.
    VirtualPressing(WaylandConnection& connection, SeatKeymap& seat, const Clock& clock)
        : m_connection(connection), m_seat(seat), m_clock(clock) {}

    Result<void> start() override;
    /// After start().
    KeyOutput& output() override { return *m_keyboard; }
    RunCompanion& companion() override { return m_companion; }
    std::unique_ptr<RunKeyboard> keyboard(StrokeSender& sender, RunWait& wait) override;

  private:
    /// Nothing else has to live for a run: the compositor itself lets go of what is down.
    class NoCompanion final : public RunCompanion {
      public:
        int fileDescriptor() const override { return -1; }
        Result<void> look() override { return {}; }
    };

    WaylandConnection& m_connection;
    SeatKeymap& m_seat;
    const Clock& m_clock;
    NoCompanion m_companion;
    std::unique_ptr<VirtualKeyboard> m_keyboard;
};

}  // namespace wayland
