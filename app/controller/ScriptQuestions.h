// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScriptDialogs.h"

class Dialogs;
class KeyInjector;
class Notifications;

/// What scripts ask and tell, as windows and notifications of the program. While a question is open the run
/// leaves the keyboard to the user; one that goes without an answer ends the playback.
class ScriptQuestions : public ScriptDialogs {
  public:
    /// All outlive this.
    ScriptQuestions(Dialogs& dialogs, KeyInjector& injector, Notifications& notifications)
        : m_dialogs(dialogs), m_injector(injector), m_notifications(notifications) {}

    Result<ScriptAnswer> ask(const ScriptDialog& dialog) override;
    Result<void> notify(const ScriptNotification& notification) override;

    /// Whether a question of a script is open.
    bool isAsking() const { return m_isAsking; }

  private:
    Dialogs& m_dialogs;
    KeyInjector& m_injector;
    Notifications& m_notifications;
    bool m_isAsking = false;
};
