// SPDX-License-Identifier: MIT
#include "app/program/ApplicationObject.h"

#include <QDBusError>
#include <QMutexLocker>
#include <QTimer>
#include <chrono>
#include <variant>

#include "app/program/BusNames.h"
#include "app/program/MacrosInterface.h"
#include "app/tray/Actions.h"
#include "platform/ErrorText.h"

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

void ApplicationObject::answerInPlay(Number request, const QDBusMessage& answer, const QDBusConnection& to) {
    QTimer::singleShot(patience, this, [this, request, answer, to] {
        if (!isPlaying()) {
            if (isWaiting(request)) answerInPlay(request, answer, to);
        } else if (take(request)) {
            to.send(answer);
        }
    });
}

ApplicationObject::Number ApplicationObject::await(const QDBusMessage& call) {
    call.setDelayedReply(true);
    const QMutexLocker lock(&m_mutex);
    m_waiting.insert(++m_last);
    return m_last;
}

void ApplicationObject::Activate(const QVariantMap& /*platformData*/) {
    const Number request = await(message());
    emit activated(request, message());
    answerInPlay(request, message().createReply(), connection());
}

void ApplicationObject::Open(const QStringList& uris, const QVariantMap& /*platformData*/) {
    const Number request = await(message());
    emit opened(request, uris, message());
    answerInPlay(request, message().createReply(), connection());
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
    const Number request = await(call);
    const auto* const action = std::get_if<const ActionRow*>(&errand);
    const bool endsPlayback = action != nullptr && (*action)->endsPlayback;
    if (endsPlayback) ++m_stops;
    const QDBusConnection from = connection();
    emit asked(request, errand, call);
    if (endsPlayback) return;
    answerInPlay(request, call.createErrorReply(bus::notNow, tr("Keyrill is playing a macro.")), from);
}

void ApplicationObject::refuse(const Error& why, const QDBusMessage& call) {
    call.setDelayedReply(true);
    connection().send(
        call.createErrorReply(QDBusError::InvalidArgs, QString::fromStdString(inOneParagraph(why))));
}
