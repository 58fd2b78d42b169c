// SPDX-License-Identifier: MIT
#include "app/program/ApplicationObject.h"

#include <QDBusError>
#include <QMutexLocker>
#include <QTimer>
#include <chrono>
#include <variant>

#include "app/program/BusNames.h"
#include "app/program/MacrosInterface.h"
#include "app/program/StartUp.h"
#include "app/tray/Actions.h"

namespace {

/// What the program takes to answer when it is not playing, and more.
constexpr std::chrono::milliseconds patience{500};
/// A run looks more often than that whether it has to end.
constexpr std::chrono::milliseconds longestBetweenLooks{400};

}  // namespace

// It belongs to this object, in whatever thread that lives.
// NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
ApplicationObject::ApplicationObject() { new MacrosInterface(*this); }

bool ApplicationObject::isWaiting(Number request) {
    const QMutexLocker lock(&m_mutex);
    return m_waiting.contains(request);
}

bool ApplicationObject::take(Number request) {
    const QMutexLocker lock(&m_mutex);
    return m_waiting.erase(request) != 0;
}

bool ApplicationObject::isStopAsked() {
    m_lastLook = std::chrono::steady_clock::now();
    return m_stops != 0;
}

bool ApplicationObject::isPlaying() const {
    return std::chrono::steady_clock::now() - m_lastLook.load() < longestBetweenLooks;
}

void ApplicationObject::watch(Number request, const QDBusMessage& call, const QDBusConnection& from) {
    QTimer::singleShot(patience, this, [this, request, call, from] {
        if (!isPlaying()) {
            if (isWaiting(request)) watch(request, call, from);
        } else if (take(request)) {
            from.send(call.createErrorReply(bus::notNow, tr("Keyrill is playing a macro.")));
        }
    });
}

QDBusMessage ApplicationObject::answeredLater() {
    setDelayedReply(true);
    return message();
}

void ApplicationObject::Activate(const QVariantMap& /*platformData*/) { emit activated(answeredLater()); }

void ApplicationObject::Open(const QStringList& uris, const QVariantMap& /*platformData*/) {
    emit opened(uris, answeredLater());
}

void ApplicationObject::ActivateAction(const QString& action, const QVariantList& parameter,
                                       const QVariantMap& /*platformData*/) {
    const ActionRow* const row = actionNamed(action.toStdString());
    if (row == nullptr) {
        return sendErrorReply(QDBusError::InvalidArgs,
                              tr("There is no action \"%1\". There are: %2.")
                                  .arg(action, QString::fromStdString(actionNames())));
    }
    if (!parameter.isEmpty()) {
        return sendErrorReply(QDBusError::InvalidArgs,
                              tr("The action \"%1\" takes no parameter.").arg(action));
    }
    ask(row, message());
}

void ApplicationObject::ask(Errand errand, const QDBusMessage& call) {
    call.setDelayedReply(true);
    const Number request = ++m_last;
    {
        const QMutexLocker lock(&m_mutex);
        m_waiting.insert(request);
    }
    const auto* const action = std::get_if<const ActionRow*>(&errand);
    const bool endsPlayback = action != nullptr && (*action)->endsPlayback;
    if (endsPlayback) ++m_stops;
    const QDBusConnection from = connection();
    emit asked(request, errand, call);
    if (!endsPlayback) watch(request, call, from);
}

void ApplicationObject::refuse(const Error& why, const QDBusMessage& call) {
    call.setDelayedReply(true);
    connection().send(call.createErrorReply(QDBusError::InvalidArgs, QString::fromStdString(inOneLine(why))));
}
