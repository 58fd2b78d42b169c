// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <string>

class Dialogs;
class Notifications;
class ScriptingService;
struct ScriptFailure;

/// Tells the user what a macro's script cannot do: by a notification, or by an alert where nobody shows
/// those.
class ScriptNotices : public QObject {
    Q_OBJECT

  public:
    /// All outlive this.
    ScriptNotices(ScriptingService& scripting, Notifications& notifications, Dialogs& dialogs)
        : m_scripting(scripting), m_notifications(notifications), m_dialogs(dialogs) {}

    /// Of the play command that has just ended, if something failed in it: once, however often it was played.
    void tellOfPlayback();
    /// Of a script that has been loaded from the file of that name; true if it cannot be played and the user
    /// has been told.
    bool tellOfLoaded(const QString& name, const std::string& script);

  private:
    void post(const QString& title, const ScriptFailure& failure);
    /// Once the program is back in its loop, unless such an alert is open already.
    void alertSoon(const QString& title, const QString& text);

    ScriptingService& m_scripting;
    Notifications& m_notifications;
    Dialogs& m_dialogs;
    bool m_isAlerting = false;
};
