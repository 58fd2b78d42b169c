// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>
#include <string>

class Notifications;
class ScriptingService;
struct ScriptFailure;

/// Tells the user by a notification what a macro's script cannot do.
class ScriptNotices {
    Q_DECLARE_TR_FUNCTIONS(ScriptNotices)

  public:
    /// Both outlive this.
    ScriptNotices(ScriptingService& scripting, Notifications& notifications)
        : m_scripting(scripting), m_notifications(notifications) {}

    /// Of the play command that has just ended, if something failed in it: once, however often it was played.
    void tellOfPlayback();
    /// Of a script that has been loaded from the file of that name; true if it cannot be played and the user
    /// has been told.
    bool tellOfLoaded(const QString& name, const std::string& script);

  private:
    void post(const QString& title, const ScriptFailure& failure);

    ScriptingService& m_scripting;
    Notifications& m_notifications;
};
