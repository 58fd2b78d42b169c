// SPDX-License-Identifier: MIT
#include "app/program/ProgramInstance.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QThread>
#include <QUrl>
#include <cstdio>
#include <cstdlib>
#include <utility>
#include <variant>

#include "app/program/ApplicationObject.h"
#include "app/program/BusNames.h"
#include "app/program/BusOwner.h"
#include "app/program/InstanceLock.h"
#include "app/program/SessionBusCheck.h"
#include "app/program/StartUp.h"
#include "app/tray/Actions.h"
#include "platform/ErrorText.h"

namespace {

const QString localPath = QStringLiteral("/org/freedesktop/DBus/Local");
const QString localInterface = QStringLiteral("org.freedesktop.DBus.Local");
constexpr std::chrono::milliseconds timeToHaveAName{700};
constexpr int timeToAnswerInMilliseconds = 5000;
constexpr int betweenLooks = 10;
/// After the bus has died: in most sessions none comes again.
constexpr int betweenSearches = 2000;

QDBusMessage request(const QStringList& files) {
    const QString method = files.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("Open");
    QDBusMessage message = QDBusMessage::createMethodCall(bus::name, bus::path, bus::interface, method);
    if (!files.isEmpty()) {
        QStringList uris;
        for (const QString& file : files) uris.append(QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded));
        message << uris;
    }
    message << QVariantMap();
    message.setAutoStartService(false);
    return message;
}

/// One that has just started may not have its name yet.
bool awaitName(const QDBusConnection& connection) {
    const QDeadlineTimer deadline(timeToHaveAName);
    while (!connection.interface()->isServiceRegistered(bus::name)) {
        if (deadline.hasExpired()) return false;
        QThread::msleep(betweenLooks);
    }
    return true;
}

const QString& nameOf(Refusal::Cause cause) {
    switch (cause) {
        case Refusal::Cause::noSuchMacro:
            return bus::noSuchMacro;
        case Refusal::Cause::severalMacros:
            return bus::severalMacros;
        case Refusal::Cause::notPlayable:
            return bus::notPlayable;
        case Refusal::Cause::notNow:
            break;
    }
    return bus::notNow;
}

Refusal tooLate() {
    return {Refusal::Cause::notNow,
            {ProgramInstance::tr("The macro folder was out of reach for too long.").toStdString(), {}}};
}

}  // namespace

ProgramInstance::ProgramInstance(std::chrono::milliseconds patience)
    : m_patience(patience),
      m_bus(QDBusConnection::sessionBus()),
      m_object(std::make_unique<ApplicationObject>()) {
    connect(&m_search, &QTimer::timeout, this, &ProgramInstance::findBus);
    follow(*m_object);
}

ProgramInstance::~ProgramInstance() {
    m_bus.unregisterObject(bus::path);
    // What an interface of it is joined with wants it to end in its own thread.
    if (m_thread.isRunning()) m_object.release()->deleteLater();
    m_thread.quit();
    m_thread.wait();
}

void ProgramInstance::follow(ApplicationObject& object) {
    connect(&object, &ApplicationObject::activated, this,
            [this](ApplicationObject::Number request, const QDBusMessage& call) {
                confirm(request, call);
                emit activated();
            });
    connect(&object, &ApplicationObject::opened, this,
            [this](ApplicationObject::Number request, const QStringList& uris, const QDBusMessage& call) {
                // A file that cannot be read is told of in a window, which takes its time.
                confirm(request, call);
                for (const QString& uri : uris) {
                    const QUrl url(uri, QUrl::StrictMode);
                    if (url.isLocalFile()) emit fileOpened(url.toLocalFile());
                }
            });
    connect(&object, &ApplicationObject::asked, this,
            [this](ApplicationObject::Number number, const Errand& errand, const QDBusMessage& call) {
                take({number, errand, call, std::chrono::steady_clock::now()});
            });
}

void ProgramInstance::confirm(std::uint64_t request, const QDBusMessage& call) {
    if (m_object->take(request)) m_bus.send(call.createReply());
}

bool ProgramInstance::claim() {
    // The lock comes first: of two starts at once only one asks for the name. One of an earlier try would be
    // in the way.
    m_lock.reset();
    m_lock = std::make_unique<InstanceLock>(qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString(),
                                            qEnvironmentVariable("DISPLAY").toStdString());
    if (!m_lock->isOurs()) return false;
    return !m_bus.isConnected() || takeName();
}

bool ProgramInstance::takeName() {
    m_bus.connect(QString(), localPath, localInterface, QStringLiteral("Disconnected"), this,
                  SLOT(noteDisconnected()));
    m_object->moveToThread(&m_thread);
    m_thread.start();
    // In this order: who finds the name may call at once.
    m_bus.registerObject(bus::path, m_object.get(),
                         QDBusConnection::ExportAllSlots | QDBusConnection::ExportAdaptors);
    return m_bus.registerService(bus::name);
}

void ProgramInstance::noteDisconnected() { m_search.start(betweenSearches); }

void ProgramInstance::findBus() {
    if (!sessionBusAnswers()) return;
    // The toolkit keeps a connection for each name, also a dead one.
    static int number = 0;
    m_bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus,
                                          QStringLiteral("keyrill-%1").arg(++number));
    if (!m_bus.isConnected()) return;
    m_search.stop();
    takeName();
}

std::optional<int> ProgramInstance::handOver(const QStringList& files) {
    if (m_bus.isConnected() && awaitName(m_bus)) {
        const QDBusError error(m_bus.call(request(files), QDBus::Block, timeToAnswerInMilliseconds));
        if (!error.isValid()) return EXIT_SUCCESS;
        if (error.type() == QDBusError::NoReply) {
            if (!m_bus.interface()->isServiceRegistered(bus::name)) return std::nullopt;
            return reportFailure(ownerIsSilent(m_bus));
        }
        const QString message =
            tr("Another program has Keyrill's name on the session bus and does not do its work: %1")
                .arg(error.message());
        const QString hint = tr("End that program and start Keyrill again.");
        std::fprintf(stderr, "keyrill: %s\n%s\n", qUtf8Printable(message), qUtf8Printable(hint));
        return EXIT_FAILURE;
    }
    const QString hint =
        files.isEmpty() ? QString() : tr("It cannot be given a file, since it has no session bus.");
    reportFailure({tr("Keyrill is running already.").toStdString(), hint.toStdString()});
    return files.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

void ProgramInstance::serve(RunErrand run) {
    m_run = std::move(run);
    for (const Request& request : std::exchange(m_early, {})) take(request);
}

void ProgramInstance::serveLibrary() {
    m_servesLibrary = true;
    for (const Request& request : std::exchange(m_early, {})) take(request);
}

bool ProgramInstance::isServed(const Errand& errand) const {
    return m_run && (m_servesLibrary || !needsLibrary(errand));
}

void ProgramInstance::take(const Request& request) {
    if (isServed(request.errand)) {
        answer(request);
    } else {
        m_early.push_back(request);
    }
}

void ProgramInstance::noteHotKeys(const std::vector<std::string>& names) {
    std::string note;
    for (const std::string& name : names) note += name + ' ';
    if (m_lock) m_lock->note(note);
}

bool ProgramInstance::endsPlayback() {
    if (!m_object->isStopAsked()) return false;
    m_hasEndedPlayback = true;
    return true;
}

void ProgramInstance::answer(const Request& request) {
    if (!m_object->take(request.number)) return;
    // Whoever asked for it does not expect it any more.
    const bool isLate =
        needsLibrary(request.errand) && std::chrono::steady_clock::now() - request.asked > m_patience;
    const Result<void, Refusal> done = isLate ? Result<void, Refusal>(tooLate()) : carryOut(request.errand);
    m_bus.send(
        done ? request.call.createReply()
             : request.call.createErrorReply(nameOf(done.error().cause),
                                             QString::fromStdString(inOneParagraph(done.error().error))));
}

Result<void, Refusal> ProgramInstance::carryOut(const Errand& errand) {
    const auto* const action = std::get_if<const ActionRow*>(&errand);
    if (action == nullptr || !(*action)->endsPlayback) return m_run(errand);
    Result<void, Refusal> done = m_run(errand);
    m_object->stopTaken();
    // By the time that it comes here, the playback is over.
    return std::exchange(m_hasEndedPlayback, false) ? Result<void, Refusal>() : done;
}
