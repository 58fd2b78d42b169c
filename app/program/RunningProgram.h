// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <string>

#include "platform/Result.h"

/// The running program, as another process reaches it over the session bus. Needs no display where the
/// program runs; needs the application object. One a process, in the place of the whole program.
class RunningProgram {
  public:
    RunningProgram();

    /// Fails where there is no session bus, and after 5 s if the one that runs does not answer at all.
    Result<> reach() const;
    bool isRunning() const;
    /// Starts it in the background, in the session of that name or, if that is empty, in the one that is
    /// found; returns when it can be asked.
    Result<> start(const std::string& session) const;

    /// Tells the running program that one of its hot keys is pressed, where its desktop tells of them in no
    /// other way; false if it takes none so.
    bool pressHotKey(const std::string& name) const;

    /// A call of the interface, without arguments yet.
    static QDBusMessage callOf(const QString& interface, const QString& method);
    /// Its answer, an error too; waits for 20 s at most, then it is QDBusError::NoReply.
    QDBusMessage answerTo(const QDBusMessage& call) const;
    /// Why there was none, in words.
    Error silence() const;

  private:
    QDBusConnection m_bus;
};
