// SPDX-License-Identifier: MIT
#include "app/program/ProgramInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QThread>
#include <QUrl>
#include <cstdio>
#include <cstdlib>

#include "app/program/InstanceLock.h"
#include "app/program/SessionBusCheck.h"

namespace {

const QString name = QStringLiteral("example.orlen.Keyrill");
const QString path = QStringLiteral("/example/orlen/Keyrill");
const QString interface = QStringLiteral("org.freedesktop.Application");
const QString localPath = QStringLiteral("/org/freedesktop/DBus/Local");
const QString localInterface = QStringLiteral("org.freedesktop.DBus.Local");
constexpr int patienceInMilliseconds = 700;
constexpr int betweenLooks = 10;
/// After the bus has died: in most sessions none comes again.
constexpr int betweenSearches = 2000;

QDBusMessage request(const QStringList& files) {
    const QString method = files.isEmpty() ? QStringLiteral("Activate") : QStringLiteral("Open");
    QDBusMessage message = QDBusMessage::createMethodCall(name, path, interface, method);
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
bool awaitName(const QDBusConnection& bus) {
    const QDeadlineTimer deadline(patienceInMilliseconds);
    while (!bus.interface()->isServiceRegistered(name)) {
        if (deadline.hasExpired()) return false;
        QThread::msleep(betweenLooks);
    }
    return true;
}

}  // namespace

ProgramInstance::ProgramInstance() : m_bus(QDBusConnection::sessionBus()) {
    connect(&m_search, &QTimer::timeout, this, &ProgramInstance::findBus);
}
ProgramInstance::~ProgramInstance() = default;

bool ProgramInstance::claim() {
    // The lock comes first: of two starts at once only one asks for the name.
    m_lock = std::make_unique<InstanceLock>(qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString(),
                                            qEnvironmentVariable("DISPLAY").toStdString());
    if (!m_lock->isOurs()) return false;
    return !m_bus.isConnected() || takeName();
}

bool ProgramInstance::takeName() {
    m_bus.connect(QString(), localPath, localInterface, QStringLiteral("Disconnected"), this,
                  SLOT(Disconnected()));
    // In this order: who finds the name may call at once.
    m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots);
    return m_bus.registerService(name);
}

void ProgramInstance::Disconnected() { m_search.start(betweenSearches); }

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

int ProgramInstance::handOver(const QStringList& files) {
    if (m_bus.isConnected() && awaitName(m_bus)) {
        m_bus.call(request(files), QDBus::Block, patienceInMilliseconds);
        return EXIT_SUCCESS;
    }
    std::fputs("keyrill: Keyrill is running already.", stderr);
    if (!files.isEmpty()) std::fputs(" It cannot be given a file, since it has no session bus.", stderr);
    std::fputs("\n", stderr);
    return files.isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
}

void ProgramInstance::Activate(const QVariantMap& /*platformData*/) { emit activated(); }

void ProgramInstance::Open(const QStringList& uris, const QVariantMap& /*platformData*/) {
    for (const QString& uri : uris) {
        const QUrl url(uri, QUrl::StrictMode);
        if (url.isLocalFile()) emit fileOpened(url.toLocalFile());
    }
}

void ProgramInstance::ActivateAction(const QString& /*action*/, const QVariantList& /*parameter*/,
                                     const QVariantMap& /*platformData*/) {}
