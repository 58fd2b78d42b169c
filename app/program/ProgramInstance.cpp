// SPDX-License-Identifier: MIT
#include "app/program/ProgramInstance.h"

#include <QDBusMessage>
#include <QUrl>
#include <cstdio>
#include <cstdlib>

#include "app/program/InstanceLock.h"

namespace {

const QString name = QStringLiteral("example.orlen.Keyrill");
const QString path = QStringLiteral("/example/orlen/Keyrill");
const QString interface = QStringLiteral("org.freedesktop.Application");
constexpr int patienceInMilliseconds = 700;

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

}  // namespace

ProgramInstance::ProgramInstance() : m_bus(QDBusConnection::sessionBus()) {}
ProgramInstance::~ProgramInstance() = default;

bool ProgramInstance::claim() {
    if (m_bus.isConnected()) {
        // In this order: who finds the name may call at once.
        m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots);
        return m_bus.registerService(name);
    }
    m_lock = std::make_unique<InstanceLock>(qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString());
    return m_lock->isOurs();
}

int ProgramInstance::handOver(const QStringList& files) {
    if (m_bus.isConnected()) {
        m_bus.call(request(files), QDBus::Block, patienceInMilliseconds);
        return EXIT_SUCCESS;
    }
    std::fputs("keyrill: Keyrill is running already.", stderr);
    if (!files.isEmpty()) std::fputs(" Without a session bus it can be given no file.", stderr);
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
