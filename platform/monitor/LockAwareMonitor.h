// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

#include "platform/EventMonitor.h"
#include "platform/EventSource.h"
#include "platform/run/Wakeups.h"

/// A monitor that sees all keys, also those that are for a screen locker alone, without those: what the user
/// types there is his password. Whether one has the keyboard is asked with each key press, and a few times in
/// a second while a macro is being recorded. A press that comes late, when the locker has gone, was for it
/// all the same.
class LockAwareMonitor final : public EventSource, public EventMonitor {
  public:
    static constexpr std::chrono::milliseconds betweenLooks{200};

    /// A locker takes longer than this to go away behind the last key of a password.
    static constexpr std::chrono::milliseconds quickestUnlock{50};

    /// `monitor` outlives this, and is not used but through it. `now` is the time by the clock of its events.
    LockAwareMonitor(EventMonitor& monitor, std::function<bool()> isLocked,
                     std::function<std::uint32_t()> now, std::chrono::milliseconds rest = betweenLooks)
        : m_monitor(monitor), m_isLocked(std::move(isLocked)), m_now(std::move(now)), m_rest(rest) {}

    // EventSource
    int fileDescriptor() const override { return m_wakeups.fileDescriptor(); }
    /// Looks whether a locker has the keyboard, if it is time to.
    void dispatch() override;

    // EventMonitor

    std::optional<Error> shortcoming() const override { return m_monitor.shortcoming(); }
    Result<void> showsKeys() const override { return m_monitor.showsKeys(); }
    Result<void> install(Handler handler) override;
    void setWithheld(bool withheld) override { m_monitor.setWithheld(withheld); }
    void withholdOnlyFor(WindowId window) override { m_monitor.withholdOnlyFor(window); }
    void setKeepsOwnStrokes(bool keeps) override { m_monitor.setKeepsOwnStrokes(keeps); }
    void setRecording(bool recording) override;
    void setShowsModifierKeys(bool shows) override { m_monitor.setShowsModifierKeys(shows); }
    /// Told by the next look, or with the next key press.
    void observeHold(std::function<void(bool held)> changed) override;
    void observeAccess(AccessObserver changed) override { m_monitor.observeAccess(std::move(changed)); }
    WindowKeys* windowKeys() override { return m_monitor.windowKeys(); }

  private:
    void deliver(const KeyEvent& event);
    void hold(bool isHeld);
    bool isForLocker(const KeyEvent& event) const;

    EventMonitor& m_monitor;
    std::function<bool()> m_isLocked;
    std::function<std::uint32_t()> m_now;
    Handler m_handler;
    std::function<void(bool held)> m_holdChanged;
    std::chrono::milliseconds m_rest;
    Wakeups m_wakeups;
    bool m_isRecording = false;
    bool m_isHeld = false;
    /// When it was first seen that the last locker had gone.
    std::optional<std::uint32_t> m_opened;
};
