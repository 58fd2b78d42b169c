// SPDX-License-Identifier: MIT
#include "app/program/ActionCall.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QThread>
#include <QVariantMap>
#include <array>
#include <chrono>
#include <cstdlib>
#include <string>

#include "app/program/BusNames.h"
#include "app/program/CommandLine.h"
#include "app/program/SessionBusCheck.h"
#include "app/program/StartUp.h"
#include "app/tray/Actions.h"

namespace {

constexpr int notNowStatus = 2;
constexpr std::chrono::seconds timeToStart{10};
/// The start-up of a program that was just started counts too.
constexpr std::chrono::seconds timeToAnswer{20};
constexpr int betweenLooks = 10;

bool isRunning(const QDBusConnection& connection) {
    return connection.interface()->isServiceRegistered(bus::name);
}

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
        if (posix_spawn(&m_process, "/proc/self/exe", &files, &attributes, arguments.data(), environ) != 0) {
            m_process = -1;
        }
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

/// Returns when the program can be asked.
Result<> start(const QDBusConnection& connection, const std::string& session) {
    const auto kind = enterSession(session);
    if (!kind) return kind.error();
    BackgroundStart program(session);
    const QDeadlineTimer deadline(timeToStart);
    while (!isRunning(connection)) {
        if (program.hasEnded() || deadline.hasExpired()) {
            return Error{
                "Keyrill could not be started, or runs already where this session bus does not reach.",
                "Start it as \"keyrill\" in a terminal to see why."};
        }
        QThread::msleep(betweenLooks);
    }
    return {};
}

QDBusMessage request(const std::string& action) {
    QDBusMessage message = QDBusMessage::createMethodCall(bus::name, bus::path, bus::interface,
                                                          QStringLiteral("ActivateAction"));
    message << QString::fromStdString(action) << QVariantList() << QVariantMap();
    message.setAutoStartService(false);
    return message;
}

int reportAnswer(const QDBusMessage& answer) {
    if (answer.type() != QDBusMessage::ErrorMessage) return EXIT_SUCCESS;
    const int status = reportFailure(Error{answer.errorMessage().toStdString(), ""});
    return answer.errorName() == bus::notNow ? notNowStatus : status;
}

}  // namespace

int askForAction(const CommandLine& line) {
    const auto known = checkOwnOptions(line);
    if (!known) return reportFailure(known.error());
    const auto wellFormed = checkAction(line);
    if (!wellFormed) return reportFailure(wellFormed.error());
    avoidHangingSessionBus();
    std::string name = "keyrill";
    std::array<char*, 2> arguments = {name.data(), nullptr};
    int count = 1;
    const QCoreApplication application(count, arguments.data());
    const QDBusConnection connection = QDBusConnection::sessionBus();
    if (!connection.isConnected()) {
        return reportFailure(
            {"There is no session bus, over which the running Keyrill could be asked.",
             "Call it from within the desktop session; the hot keys and the menu need none."});
    }
    if (!isRunning(connection)) {
        if (!actionNamed(*line.action)->startsProgram) {
            reportFailure({"Keyrill is not running.", ""});
            return notNowStatus;
        }
        const auto started = start(connection, line.session);
        if (!started) return reportFailure(started.error());
    }
    const auto patience = std::chrono::milliseconds(timeToAnswer);
    return reportAnswer(
        connection.call(request(*line.action), QDBus::Block, static_cast<int>(patience.count())));
}
