// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/run/RunWatch.h"
#include "platform/wayland/WaylandConnection.h"
#include "platform/wayland/WaylandHotKeys.h"

namespace wayland {

/// What a run can know of the user where no keys are seen: whether the playback is to end.
class WaylandRunWatch final : public RunWatch {
  public:
    /// `hotKeys` is null where there are none; both outlive this.
    WaylandRunWatch(const WaylandConnection& connection, WaylandHotKeys* hotKeys)
        : m_connection(connection), m_hotKeys(hotKeys) {}

    /// Ends each playback while that answers true.
    void endPlaysWhen(std::function<bool()> isLocked) { m_isLocked = std::move(isLocked); }

    void runStarts() override {
        if (m_hotKeys != nullptr) m_hotKeys->runStarts();
    }
    void runEnds() override {
        if (m_hotKeys != nullptr) m_hotKeys->runEnds();
    }
    void expectOwnKey(std::uint8_t /*keycode*/, bool /*press*/) override {}
    int fileDescriptor() const override { return m_hotKeys != nullptr ? m_hotKeys->fileDescriptor() : -1; }
    void drain() override {
        if (m_hotKeys != nullptr) m_hotKeys->drain();
    }
    void startPlayback() override {
        m_isStopped = false;
        if (m_hotKeys != nullptr) m_hotKeys->startPlayback();
    }
    void stopPlayback() override { m_isStopped = true; }
    bool isCancelled() const override {
        const bool byHotKey = m_hotKeys != nullptr && m_hotKeys->isStopped();
        return m_isStopped || byHotKey || (m_isLocked && m_isLocked());
    }
    bool isLost() const override { return m_connection.isBroken(); }
    std::optional<Clock::Time> cancelDeadline() const override { return std::nullopt; }
    void settleOwnKeys() override {}
    bool handsHoldKeys() const override { return false; }
    KeycodeSet leftOvers(Clock::Time /*runStart*/) const override { return {}; }
    void endHotKeyGrab() override {}
    bool liftHotKey(std::uint8_t keycode, std::uint16_t modifiers) override {
        return m_hotKeys != nullptr && m_hotKeys->lift(keycode, modifiers);
    }
    bool liftHotKeysOf(std::uint8_t keycode) override {
        return m_hotKeys != nullptr && m_hotKeys->liftAll(keycode);
    }
    void restoreHotKeysOf(std::uint8_t keycode) override {
        if (m_hotKeys != nullptr) m_hotKeys->restoreAll(keycode);
    }

  private:
    const WaylandConnection& m_connection;
    WaylandHotKeys* m_hotKeys;
    std::function<bool()> m_isLocked;
    bool m_isStopped = false;
};

}  // namespace wayland
