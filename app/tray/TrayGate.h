// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include "app/tray/StatusNotifierHosts.h"

class DockingTray;

enum class TrayKind { none, statusNotifier, docking };

/// Says when a tray is there. Until it has said so no function of QSystemTrayIcon may be called.
///
/// Why: the toolkit looks for a host of status notifier items once, at the first such call, and keeps that
/// answer for the life of the process; at login this is often too early. For the same reason the kind of tray
/// is settled at the first tray that comes: if its like goes and the other kind remains, the toolkit would
/// not use it, so there is none.
class TrayGate : public QObject {
    Q_OBJECT

  public:
    explicit TrayGate(DockingTray& dockingTray);

    /// The kind that has been settled on; `none` before the first tray.
    TrayKind kind() const { return m_kind; }
    bool isPresent() const { return m_present; }

  signals:
    /// isPresent() has changed.
    void changed();

  private:
    void followTrays();
    void settleKind();

    DockingTray& m_dockingTray;
    StatusNotifierHosts m_hosts;
    QTimer m_preferHosts;
    TrayKind m_kind = TrayKind::none;
    bool m_present = false;
};
