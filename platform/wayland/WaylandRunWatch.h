// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/run/RunWatch.h"
#include "platform/wayland/WaylandConnection.h"

namespace wayland {

/// What a run can know of the user where no keys are seen: whether the playback is to end.
class WaylandRunWatch final : public RunWatch {
  public:
    explicit WaylandRunWatch(const WaylandConnection& connection) : m_connection(connection) {}

    /// Ends each playback while that answers true.
    void endPlaysWhen(std::function<bool()> isLocked) { m_isLocked = std::move(isLocked); }

    void runStarts() override {}
    void runEnds() override {}
    void expectOwnKey(std::uint8_t /*keycode*/, bool /*press*/) override {}
    int fileDescriptor() const override { return -1; }
    void drain() override {}
    void startPlayback() override { m_isStopped = false; }
    void stopPlayback() override { m_isStopped = true; }
    bool isCancelled() const override { return m_isStopped || (m_isLocked && m_isLocked()); }
    bool isLost() const override { return m_connection.isBroken(); }
    std::optional<Clock::Time> cancelDeadline() const override { return std::nullopt; }
    void settleOwnKeys() override {}
    bool handsHoldKeys() const override { return false; }
    KeycodeSet leftOvers(Clock::Time /*runStart*/) const override { return {}; }
    void endHotKeyGrab() override {}
    bool liftHotKey(std::uint8_t /*keycode*/, std::uint16_t /*modifiers*/) override { return false; }
    bool liftHotKeysOf(std::uint8_t /*keycode*/) override { return false; }
    void restoreHotKeysOf(std::uint8_t /*keycode*/) override {}

  private:
    const WaylandConnection& m_connection;
    std::function<bool()> m_isLocked;
    bool m_isStopped = false;
};

}  // namespace wayland
