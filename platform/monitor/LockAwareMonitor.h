// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <utility>

#include "platform/EventMonitor.h"

/// A monitor that sees all keys, also those that are for a screen locker alone, without those: what the user
/// types there is his password. Whether one has the keyboard is asked with each key press.
class LockAwareMonitor final : public EventMonitor {
  public:
    /// `monitor` outlives this, and is not used but through it.
    LockAwareMonitor(EventMonitor& monitor, std::function<bool()> isLocked)
        : m_monitor(monitor), m_isLocked(std::move(isLocked)) {}

    std::optional<Error> shortcoming() const override { return m_monitor.shortcoming(); }
    Result<void> showsKeys() const override { return m_monitor.showsKeys(); }
    Result<void> install(Handler handler) override;
    void setWithheld(bool withheld) override { m_monitor.setWithheld(withheld); }
    void setKeepsOwnStrokes(bool keeps) override { m_monitor.setKeepsOwnStrokes(keeps); }
    void setRecording(bool recording) override;
    /// Told with the first key press that is kept back, and with the first that is delivered again.
    void observeHold(std::function<void(bool held)> changed) override;
    void observeAccess(AccessObserver changed) override { m_monitor.observeAccess(std::move(changed)); }
    WindowKeys* windowKeys() override { return m_monitor.windowKeys(); }

  private:
    void deliver(const KeyEvent& event);
    void hold(bool isHeld);

    EventMonitor& m_monitor;
    std::function<bool()> m_isLocked;
    Handler m_handler;
    std::function<void(bool held)> m_holdChanged;
    bool m_isHeld = false;
};
