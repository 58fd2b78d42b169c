// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <chrono>
#include <optional>

#include "platform/EventMonitor.h"

class Dialogs;
class Notifications;
class OverlayDesk;

/// What the user is told of a recording where the desktop asks him whether his keys may be seen: why, the
/// first time that it takes him a while; and what has become of the recording where they may not, or no
/// longer.
class AccessDesk : public QObject {
    Q_OBJECT

  public:
    /// A permission that is remembered comes sooner.
    static constexpr std::chrono::milliseconds explanationDelay{300};

    /// All outlive the desk. `delay` is from the question to its explanation.
    AccessDesk(EventMonitor& monitor, Notifications& notifications, Dialogs& dialogs, OverlayDesk& overlays,
               std::chrono::milliseconds delay = explanationDelay);
    ~AccessDesk() override;

  signals:
    /// Keys may not be seen, and those of a window of ours can be recorded in their place.
    void refused(const Error& why);

  private:
    void follow(EventMonitor::Access access, const std::optional<Error>& why);
    void tellWhy();
    void goOnWithout(const Error& why);
    void endRecording(const Error& why);

    EventMonitor& m_monitor;
    Notifications& m_notifications;
    Dialogs& m_dialogs;
    OverlayDesk& m_overlays;
    /// Runs from the question to its explanation.
    QTimer m_explains;
    bool m_hasExplained = false;
};
