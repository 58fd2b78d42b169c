// SPDX-License-Identifier: MIT
#include "app/tray/StatusNotifierHosts.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <QDBusVariant>

namespace {
const QString service = QStringLiteral("org.kde.StatusNotifierWatcher");
const QString path = QStringLiteral("/StatusNotifierWatcher");
constexpr int patienceInMilliseconds = 500;

QDBusMessage questionForHosts() {
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    question << service << QStringLiteral("IsStatusNotifierHostRegistered");
    // A question is no reason to start a watcher.
    question.setAutoStartService(false);
    return question;
}

bool isYes(const QDBusReply<QDBusVariant>& answer) {
    return answer.isValid() && answer.value().variant().toBool();
}

}  // namespace

bool hasStatusNotifierHost(const QDBusConnection& bus) {
    return bus.isConnected() && isYes(bus.call(questionForHosts(), QDBus::Block, patienceInMilliseconds));
}

StatusNotifierHosts::StatusNotifierHosts()
    : m_bus(QDBusConnection::sessionBus()),
      m_watcher(service, m_bus,
                QDBusServiceWatcher::WatchForRegistration | QDBusServiceWatcher::WatchForUnregistration) {
    if (!hasBus()) return;
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierHosts::ask);
    connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this, [this] { setPresent(false); });
    connectSignal(QStringLiteral("StatusNotifierHostRegistered"));
    connectSignal(QStringLiteral("StatusNotifierHostUnregistered"));
    ask();
}

void StatusNotifierHosts::connectSignal(const QString& name) {
    // From whomever: by the service's name the toolkit would wait for an answer to who that is.
    m_bus.connect(QString(), path, service, name, this, SLOT(ask()));
}

void StatusNotifierHosts::ask() {
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(questionForHosts()), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        setPresent(isYes(answer->reply()));
    });
}

void StatusNotifierHosts::setPresent(bool present) {
    if (m_present == present) return;
    m_present = present;
    emit changed();
}
