// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QThread>
#include <QTimer>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/program/Errand.h"

class ApplicationObject;
class InstanceLock;

/// The one running program of a session, found by its name on the session bus; where there is no bus, or a
/// new one in the place of one that has died, by a lock in the runtime folder. It takes its name on the new
/// bus.
///
/// It takes what other starts hand over and what is asked of it from outside: the interface
/// org.freedesktop.Application of the desktop entry standard, "D-Bus Activation", and
/// packaging/example.orlen.Keyrill.Macros.xml. An errand is answered when it has been carried out, one that
/// plays when it is about to; what is not done by one of the errors of BusNames.h, whose text says why, and
/// what makes no sense by org.freedesktop.DBus.Error.InvalidArgs. Nothing else can be learnt from it.
class ProgramInstance : public QObject {
    Q_OBJECT

  public:
    /// What waits longer than that until it is served is not done any more.
    explicit ProgramInstance(std::chrono::milliseconds patience = std::chrono::seconds(10));
    ~ProgramInstance() override;

    /// Makes this process the one. False if there is another already, which may be gone when it is tried
    /// again.
    bool claim();
    /// Hands files, absolute paths, or none, to the one that runs and waits 5 s at most until it has taken
    /// them or, while it is playing, will do so later. The exit status: 1, with a line on standard error, if
    /// it does not answer or there is no way to hand them over. None if it has gone without an answer.
    std::optional<int> handOver(const QStringList& files);

    /// Who carries errands out from now on; those that were asked for before wait until then.
    void serve(RunErrand run);
    /// From now on also those that speak of macros of the library.
    void serveLibrary();
    /// Lets others know which hot keys this program has, by their names in the settings.
    void noteHotKeys(const std::vector<std::string>& names);

    /// Whether a playback has to end, because somebody has asked for a stop.
    bool endsPlayback();

  signals:
    /// Somebody has started the program once more, without a file.
    void activated();
    /// Somebody wants that file, an absolute path, to be opened.
    void fileOpened(const QString& path);

  private slots:
    void noteDisconnected();

  private:
    struct Request {
        std::uint64_t number = 0;
        Errand errand;
        QDBusMessage call;
        std::chrono::steady_clock::time_point asked{};
    };

    bool takeName();
    void findBus();
    void follow(ApplicationObject& object);
    /// It is done, or certain to be.
    void confirm(std::uint64_t request, const QDBusMessage& call);
    bool isServed(const Errand& errand) const;
    void take(const Request& request);
    void answer(const Request& request);
    Result<void, Refusal> carryOut(const Errand& errand);

    std::chrono::milliseconds m_patience;
    QDBusConnection m_bus;
    QTimer m_search;
    std::unique_ptr<InstanceLock> m_lock;
    QThread m_thread;
    /// Lives in that thread.
    std::unique_ptr<ApplicationObject> m_object;
    RunErrand m_run;
    bool m_servesLibrary = false;
    /// Asked for before anybody serves them.
    std::vector<Request> m_early;
    bool m_hasEndedPlayback = false;
};
