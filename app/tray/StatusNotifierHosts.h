// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

/// Whether there is one now; waits for the answer, half a second at most.
bool hasStatusNotifierHost(const QDBusConnection& bus);

/// Watches the session bus for a host of status notifier items (StatusNotifierItem standard,
/// "StatusNotifierWatcher"), without a blocking call. No session bus: no host.
///
/// The watcher's name alone means little: only its property says whether anybody shows the items.
class StatusNotifierHosts : public QObject {
    Q_OBJECT

  public:
    StatusNotifierHosts();

    bool isPresent() const { return m_present; }
    /// Whether a host could come at all.
    bool hasBus() const { return m_bus.isConnected(); }

  signals:
    void changed();

  private slots:
    void ask();

  private:
    void connectSignal(const QString& name);
    void setPresent(bool present);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    bool m_present = false;
};
