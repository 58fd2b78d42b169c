// SPDX-License-Identifier: MIT
#include "app/program/RunningProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDeadlineTimer>
#include <QFile>
#include <QThread>
#include <chrono>
#include <string>

#include "app/program/BusNames.h"
#include "app/program/BusOwner.h"
#include "app/program/SessionBusCheck.h"
#include "app/program/StartUp.h"

namespace {

struct Words {
    Q_DECLARE_TR_FUNCTIONS(RunningProgram)
};

constexpr std::chrono::seconds timeToStart{10};
/// The start-up of a program that was just started counts too.
constexpr std::chrono::seconds timeToAnswer{20};
constexpr int betweenLooks = 10;

/// The program on its own: it goes on when this process ends, and says nothing into its files.
class BackgroundStart {
  public:
    explicit BackgroundStart(const std::string& session) {
        posix_spawnattr_t attributes;
        posix_spawnattr_init(&attributes);
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
        posix_spawn_file_actions_t files;
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDWR, 0);
        posix_spawn_file_actions_adddup2(&files, STDIN_FILENO, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&files, STDIN_FILENO, STDERR_FILENO);
        std::string name = "keyrill";
        std::string option = "--session=" + session;
        std::array<char*, 3> arguments = {name.data(), session.empty() ? nullptr : option.data(), nullptr};
        // By its name, by which others find it; one that has been replaced meanwhile is there no more.
        const QByteArray named = QFile::encodeName(QCoreApplication::applicationFilePath());
        const auto isStarted = [&](const char* program) {
            return posix_spawn(&m_process, program, &files, &attributes, arguments.data(), environ) == 0;
        };
        if (!isStarted(named) && !isStarted("/proc/self/exe")) m_process = -1;
        posix_spawn_file_actions_destroy(&files);
        posix_spawnattr_destroy(&attributes);
    }

    bool hasEnded() {
        if (m_process >= 0 && waitpid(m_process, nullptr, WNOHANG) == m_process) m_process = -1;
        return m_process < 0;
    }

  private:
    pid_t m_process = -1;
};

/// The toolkit must not wait for a bus that hangs.
QDBusConnection answeringBus() {
    avoidHangingSessionBus();
    return QDBusConnection::sessionBus();
}

}  // namespace

RunningProgram::RunningProgram() : m_bus(answeringBus()) {}

Result<> RunningProgram::reach() const {
    if (!m_bus.isConnected()) {
        return Error{
            Words::tr("There is no session bus, over which the running Keyrill could be asked.")
                .toStdString(),
            Words::tr("Call it from within the desktop session; the hot keys and the menu need none.")
                .toStdString()};
    }
    if (!ownerAnswers(m_bus)) return ownerIsSilent(m_bus);
    return {};
}

bool RunningProgram::isRunning() const { return m_bus.interface()->isServiceRegistered(bus::name); }

Result<> RunningProgram::start(const std::string& session) const {
    const auto kind = enterSession(session);
    if (!kind) return kind.error();
    BackgroundStart program(session);
    const QDeadlineTimer deadline(timeToStart);
    while (!isRunning()) {
        if (program.hasEnded() || deadline.hasExpired()) {
            return Error{
                Words::tr(
                    "Keyrill could not be started, or runs already where this session bus does not reach.")
                    .toStdString(),
                Words::tr("Start it as \"keyrill\" in a terminal to see why.").toStdString()};
        }
        QThread::msleep(betweenLooks);
    }
    return {};
}

bool RunningProgram::pressHotKey(const std::string& name) const {
    if (!m_bus.isConnected() || !m_bus.interface()->isServiceRegistered(bus::hotKeys)) return false;
    QDBusMessage call =
        QDBusMessage::createMethodCall(bus::hotKeys, bus::hotKeysPath, bus::hotKeys, QStringLiteral("Press"));
    call.setAutoStartService(false);
    call << QString::fromStdString(name);
    // One that takes its time is not to do it twice.
    const QDBusError error(answerTo(call));
    return !error.isValid() || error.type() == QDBusError::NoReply;
}

QDBusMessage RunningProgram::callOf(const QString& interface, const QString& method) {
    QDBusMessage call = QDBusMessage::createMethodCall(bus::name, bus::path, interface, method);
    call.setAutoStartService(false);
    return call;
}

QDBusMessage RunningProgram::answerTo(const QDBusMessage& call) const {
    const auto patience = std::chrono::milliseconds(timeToAnswer);
    return m_bus.call(call, QDBus::Block, static_cast<int>(patience.count()));
}

Error RunningProgram::silence() const { return ownerIsSilent(m_bus); }
