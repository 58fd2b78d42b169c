// SPDX-License-Identifier: MIT
#include "app/controller/LateClicks.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <algorithm>
#include <chrono>

namespace {

/// Nothing comes so late: the server counts anew.
constexpr std::chrono::hours latest{1};
/// Who clicks so shortly before the end has seen it come, and has not waited in vain.
constexpr std::chrono::milliseconds atTheEnd{300};

}  // namespace

LateClicks::LateClicks(const Clock& clock) : m_clock(clock) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool LateClicks::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool isMouse = event->type() == QEvent::MouseButtonPress ||
                         event->type() == QEvent::MouseButtonDblClick || event->type() == QEvent::MouseMove;
    if (!isMouse) return false;
    const auto& mouse = static_cast<const QMouseEvent&>(*event);
    // One that no server has sent.
    if (mouse.timestamp() == 0) return false;
    const Clock::Time when = happened(mouse);
    return m_played && when < *m_played - atTheEnd && event->type() != QEvent::MouseMove;
}

Clock::Time LateClicks::happened(const QInputEvent& event) {
    const std::chrono::milliseconds serverTime(event.timestamp());
    const Clock::Time now = m_clock.now();
    const Clock::Time epoch = now - serverTime;
    if (!m_epoch || epoch - *m_epoch > latest) m_epoch = epoch;
    m_epoch = std::min(*m_epoch, epoch);
    return *m_epoch + serverTime;
}
