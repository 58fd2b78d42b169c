// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <optional>

#include "platform/Clock.h"

class QInputEvent;

/// Takes away what the user clicked in the program's windows while a macro played, once it has ended: nothing
/// showed that the clicks were taken, and by now something else may lie under them.
///
/// While a macro plays no event is handled but in questions of its script. When an event happened is told by
/// the display server, in a time of its own; how far that is from ours is learnt from what comes soonest.
class LateClicks : public QObject {
    Q_OBJECT

  public:
    /// From now on, all windows of the application. The clock outlives the object.
    explicit LateClicks(const Clock& clock);

    /// A macro has been played, just now.
    void notePlayed() { m_played = m_clock.now(); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    Clock::Time happened(const QInputEvent& event);

    const Clock& m_clock;
    std::optional<Clock::Time> m_played;
    /// What the server's time has to be added to.
    std::optional<Clock::Time> m_epoch;
};
