// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <string>

class Notifications;
class ScriptingService;
class StatusNotice;
struct ScriptFailure;

/// Tells the user of a macro what its script cannot do and what became of its file: by a notification, or at
/// the status item where nobody shows those, until a macro is played or loaded with which all is well.
class ScriptNotices : public QObject {
    Q_OBJECT

  public:
    /// All outlive this.
    ScriptNotices(ScriptingService& scripting, Notifications& notifications, StatusNotice& status)
        : m_scripting(scripting), m_notifications(notifications), m_status(status) {}

    /// Of the play command that has just ended, if something failed in it: once, however often it was played.
    void tellOfPlayback();
    /// Of a script that has been loaded from the file of that name; true if it cannot be played and the user
    /// has been told.
    bool tellOfLoaded(const QString& name, const std::string& script);
    /// Anything else that the user should know of a macro.
    void tell(const QString& title, const QString& text);

  private:
    void post(const QString& title, const ScriptFailure& failure);

    ScriptingService& m_scripting;
    Notifications& m_notifications;
    StatusNotice& m_status;
};
