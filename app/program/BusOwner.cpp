// SPDX-License-Identifier: MIT
#include "app/program/BusOwner.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusReply>

#include "app/program/BusNames.h"

namespace {

constexpr int patienceInMilliseconds = 5000;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(BusOwner)
};

}  // namespace

// What the object is like is told by its own thread, also while a macro plays. A ping would not do: it is
// answered by the toolkit's thread.
bool ownerAnswers(const QDBusConnection& bus) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        bus::name, bus::path, QStringLiteral("org.freedesktop.DBus.Introspectable"),
        QStringLiteral("Introspect"));
    question.setAutoStartService(false);
    const QDBusError error(bus.call(question, QDBus::Block, patienceInMilliseconds));
    // The bus answers so too for an owner that goes.
    return error.type() != QDBusError::NoReply || !bus.interface()->isServiceRegistered(bus::name);
}

Error ownerIsSilent(const QDBusConnection& bus) {
    const QDBusReply<uint> process = bus.interface()->servicePid(bus::name);
    if (!process.isValid()) return {Words::tr("Keyrill has ended without an answer.").toStdString(), {}};
    return {Words::tr("Process %1, which has Keyrill's name on the session bus, does not answer.")
                .arg(process.value())
                .toStdString(),
            Words::tr("End it and start Keyrill again.").toStdString()};
}
