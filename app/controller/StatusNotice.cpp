// SPDX-License-Identifier: MIT
#include "app/controller/StatusNotice.h"

#include <QStringList>

#include "app/tray/StatusItem.h"

void StatusNotice::setHint(const QString& hint) {
    m_hint = hint;
    show();
}

void StatusNotice::noteHotKey(HotKeyId id, const HotKeyState& state) {
    if (state.status == HotKeyStatus::refused && state.error) {
        m_refused[id] = state.error->message;
    } else {
        m_refused.erase(id);
    }
    show();
}

void StatusNotice::show() {
    QStringList lines;
    for (const auto& [id, message] : m_refused) lines.append(QString::fromStdString(message));
    if (!m_hint.isEmpty()) lines.append(m_hint);
    m_item.setNotice(lines.join(QLatin1Char('\n')));
}
