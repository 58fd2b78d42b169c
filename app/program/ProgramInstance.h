// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QThread>
#include <QTimer>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/Result.h"

class ApplicationObject;
class InstanceLock;
struct ActionRow;

/// The one running program of a session, found by its name on the session bus; where there is no bus, or a
/// new one in the place of one that has died, by a lock in the runtime folder. It takes its name on the new
/// bus.
///
/// It takes what other starts hand over and what is asked of it from outside: the interface
/// org.freedesktop.Application of the desktop entry standard, "D-Bus Activation". An action is answered when
/// it has been carried out, one that plays when it is about to. One that cannot be carried out now is
/// answered by the error example.orlen.Keyrill.Error.NotNow, whose text says why; one that there is not by
/// org.freedesktop.DBus.Error.InvalidArgs. Nothing else can be learnt from it.
class ProgramInstance : public QObject {
    Q_OBJECT

  public:
    using CarryOut = std::function<Result<>(const ActionRow&)>;

    ProgramInstance();
    ~ProgramInstance() override;

    /// Makes this process the one. False if there is another already.
    bool claim();
    /// Hands files, absolute paths, or none, to the one that runs and waits 0.7 s at most until it has taken
    /// them; it takes them later if it is playing. The exit status: 1, with a line on standard error, if
    /// there is no way to hand them over.
    int handOver(const QStringList& files);

    /// Who carries out actions from now on; those that were asked for before wait until then.
    void serve(CarryOut carryOut);
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
        QString action;
        QDBusMessage call;
    };

    bool takeName();
    void findBus();
    void follow(ApplicationObject& object);
    void answer(const Request& request);
    Result<> carryOut(const ActionRow& action);

    QDBusConnection m_bus;
    QTimer m_search;
    std::unique_ptr<InstanceLock> m_lock;
    QThread m_thread;
    /// Lives in that thread.
    std::unique_ptr<ApplicationObject> m_object;
    CarryOut m_carryOut;
    /// Asked for before anybody carries out.
    std::vector<Request> m_early;
    bool m_hasEndedPlayback = false;
};
