// SPDX-License-Identifier: MIT
#include "app/controller/ScriptNotices.h"

#include <QPointer>
#include <optional>
#include <string>

#include "app/controller/StatusNotice.h"
#include "platform/Notifications.h"
#include "platform/ScriptingService.h"

void ScriptNotices::tellOfPlayback() {
    const std::optional<ScriptFailure> failure = m_scripting.takeFailure();
    if (!failure) return m_status.setFault({});
    post(failure->hasBegun ? tr("The macro was not played to its end") : tr("The macro cannot be played"),
         *failure);
}

bool ScriptNotices::tellOfLoaded(const QString& name, const std::string& script) {
    const std::optional<ScriptFailure> failure = m_scripting.check(script);
    if (failure) {
        post(tr("\"%1\" is loaded but cannot be played").arg(name), *failure);
    } else {
        m_status.setFault({});
    }
    return failure.has_value();
}

void ScriptNotices::post(const QString& title, const ScriptFailure& failure) {
    QString text =
        tr("Line %1: %2").arg(QString::number(failure.line), QString::fromStdString(failure.error.message));
    if (!failure.error.hint.empty()) text += u'\n' + QString::fromStdString(failure.error.hint);
    tell(title, text);
}

void ScriptNotices::tell(const QString& title, const QString& text) {
    // Who shows messages may answer when this is no more.
    m_notifications.post(title.toStdString(), text.toStdString(),
                         [self = QPointer<ScriptNotices>(this), fault = tr("%1. %2").arg(title, text)] {
                             if (self) self->m_status.setFault(fault);
                         });
}
