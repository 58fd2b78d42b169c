// SPDX-License-Identifier: MIT
#include "platform/monitor/Deliverer.h"

#include <utility>

namespace {

/// True for the life of the scope.
class FlagScope {
  public:
    explicit FlagScope(bool& flag) : m_flag(flag) { m_flag = true; }
    ~FlagScope() { m_flag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

  private:
    bool& m_flag;
};

}  // namespace

void Deliverer::setHotKeyHandlers(HotKeys::Handler pressed, HotKeys::Handler released) {
    m_pressed = std::move(pressed);
    m_released = std::move(released);
}

void Deliverer::deliver(WipedQueue<Delivery>& deliveries, const std::function<void()>& readOn,
                        const std::function<bool()>& waits) {
    if (m_isDelivering) return;
    const FlagScope delivering(m_isDelivering);
    while (!deliveries.empty()) {
        if (std::holds_alternative<HotKeyEvent>(deliveries.front())) readOn();
        if (deliveries.empty() || waits()) break;
        const Delivery delivery = deliveries.takeFront();
        std::visit([this](const auto& event) { tell(event); }, delivery);
    }
}

void Deliverer::tell(const KeyEvent& event) const {
    // A copy: the handler may be replaced from within.
    const EventMonitor::Handler handler = m_handler;
    if (handler) handler(event);
}

void Deliverer::tell(const HotKeyEvent& event) {
    if (event.press) m_lastPressTime = event.time;
    const HotKeys::Handler handler = event.press ? m_pressed : m_released;
    if (handler) handler(event.id);
}
