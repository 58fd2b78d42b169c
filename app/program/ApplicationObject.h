// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QMutex>
#include <QObject>
#include <QStringList>
#include <QVariantMap>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <set>

#include "app/program/Errand.h"

/// The program as an object on the session bus: the interface org.freedesktop.Application of the desktop
/// entry standard, "D-Bus Activation", and MacrosInterface. It tells nothing of the program but whether a
/// request was carried out.
///
/// Why in a thread of its own: while a macro plays, the program's event loop does not run. What is asked
/// then is refused in time, so that it is not done later, when nobody expects it any more; a stop ends the
/// playback.
class ApplicationObject : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

  public:
    /// A call that waits for its answer.
    using Number = std::uint64_t;

    ApplicationObject();

    // Called by the program's thread, which answers each request that it takes.

    /// Whether the request is still to be answered.
    bool take(Number request);
    /// Called again and again while a macro plays; whether somebody waits for a stop that has not been taken.
    bool isStopAsked();
    void stopTaken() { --m_stops; }

    // Called by the interfaces, within a call.

    void ask(Errand errand, const QDBusMessage& call);
    /// The call makes no sense.
    void refuse(const Error& why, const QDBusMessage& call);

  public slots:
    // What the bus calls.
    // NOLINTBEGIN(readability-identifier-naming): the names are the interface's
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& action, const QVariantList& parameter,
                        const QVariantMap& platformData);
    // NOLINTEND(readability-identifier-naming)

  signals:
    // `call` is to be answered.
    /// Somebody has started the program once more, without a file. While a macro plays it is answered before
    /// it is taken, as the next.
    void activated(ApplicationObject::Number request, const QDBusMessage& call);
    /// Somebody wants these to be opened.
    void opened(ApplicationObject::Number request, const QStringList& uris, const QDBusMessage& call);
    /// Somebody asks for something. While a macro plays it is refused.
    void asked(ApplicationObject::Number request, const Errand& errand, const QDBusMessage& call);

  private:
    /// A request that waits for its answer from now on.
    Number await(const QDBusMessage& call);
    bool isWaiting(Number request);
    bool isPlaying() const;
    /// Gives that answer to the request if it still waits when a macro is seen to play.
    void answerInPlay(Number request, const QDBusMessage& answer, const QDBusConnection& to);

    std::atomic<int> m_stops = 0;
    /// When isStopAsked() was last called.
    std::atomic<std::chrono::steady_clock::time_point> m_lastLook{};
    QMutex m_mutex;
    /// Guarded by m_mutex.
    std::set<Number> m_waiting;
    Number m_last = 0;
};
