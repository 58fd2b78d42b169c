// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVariantMap>
#include <memory>

class InstanceLock;

/// The one running program of a session, found by its name on the session bus; where there is no bus, or a
/// new one in the place of one that has died, by a lock in the runtime folder. It takes its name on the new
/// bus.
///
/// It takes what other starts hand over: the interface org.freedesktop.Application of the desktop entry
/// standard, "D-Bus Activation".
class ProgramInstance : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    ProgramInstance();
    ~ProgramInstance() override;

    /// Makes this process the one. False if there is another already.
    bool claim();
    /// Hands files, absolute paths, or none, to the one that runs and waits 0.7 s at most until it has taken
    /// them; it takes them later if it is playing. The exit status: 1, with a line on standard error, if
    /// there is no way to hand them over.
    int handOver(const QStringList& files);

  public slots:
    // What the bus calls.
    // NOLINTBEGIN(readability-identifier-naming): the names are the interface's
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& action, const QVariantList& parameter,
                        const QVariantMap& platformData);
    /// The bus has gone.
    void Disconnected();
    // NOLINTEND(readability-identifier-naming)

  signals:
    /// Somebody has started the program once more, without a file.
    void activated();
    /// Somebody wants that file, an absolute path, to be opened.
    void fileOpened(const QString& path);

  private:
    bool takeName();
    void findBus();

    QDBusConnection m_bus;
    QTimer m_search;
    std::unique_ptr<InstanceLock> m_lock;
};
