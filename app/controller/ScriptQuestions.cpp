// SPDX-License-Identifier: MIT
#include "app/controller/ScriptQuestions.h"

#include <optional>
#include <string>

#include "app/dialogs/Dialogs.h"
#include "platform/KeyInjector.h"
#include "platform/Notifications.h"
#include "platform/Sentence.h"

Result<ScriptAnswer> ScriptQuestions::ask(const ScriptDialog& dialog) {
    m_injector.rest();
    m_isAsking = true;
    std::optional<ScriptAnswer> answer =
        m_dialogs.runScriptDialog(dialog, [this] { return m_injector.isCancelled(); });
    m_isAsking = false;
    if (answer) return *std::move(answer);
    m_injector.stopPlayback();
    return Error{sentence("ScriptTool", "The question was not answered."), ""};
}

Result<void> ScriptQuestions::notify(const ScriptNotification& notification) {
    std::string text = notification.subtitle;
    if (!text.empty() && !notification.text.empty()) text += '\n';
    text += notification.text;
    m_notifications.post(notification.title.empty() ? "Keyrill" : notification.title, text);
    return {};
}
