// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/EventMonitor.h"
#include "platform/HotKeys.h"
#include "platform/monitor/KeyInterpreter.h"

/// Tells the handlers what a KeyInterpreter has made, oldest first.
class Deliverer {
  public:
    void setHandler(EventMonitor::Handler handler) { m_handler = std::move(handler); }
    void setHotKeyHandlers(HotKeys::Handler pressed, HotKeys::Handler released);

    /// Empties the queue, but for what comes while `waits` holds. Does nothing when it is called from within
    /// a handler: the outer call delivers. `readOn` is called before each hot key and may change the queue: a
    /// stop may have come since, which takes back a play that has not begun.
    void deliver(WipedQueue<Delivery>& deliveries, const std::function<void()>& readOn,
                 const std::function<bool()>& waits);

    /// Of the latest press of a hot key, 0 before the first.
    ServerTime lastPressTime() const { return m_lastPressTime; }

  private:
    void tell(const KeyEvent& event) const;
    void tell(const HotKeyEvent& event);

    EventMonitor::Handler m_handler;
    HotKeys::Handler m_pressed;
    HotKeys::Handler m_released;
    ServerTime m_lastPressTime = 0;
    bool m_isDelivering = false;
};
