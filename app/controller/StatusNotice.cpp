// SPDX-License-Identifier: MIT
#include "app/controller/StatusNotice.h"

#include <QStringList>
#include <algorithm>

#include "app/shortcuts/ShortcutTitles.h"
#include "app/tray/StatusItem.h"
#include "prefs/Shortcuts.h"

namespace {

QString titleOf(HotKeyId id) {
    const auto* row = std::find_if(shortcutRows.begin(), shortcutRows.end(),
                                   [id](const ShortcutRow& shortcut) { return shortcut.id == id; });
    return shortcutTitles(static_cast<std::size_t>(row - shortcutRows.begin())).command;
}

}  // namespace

void StatusNotice::setHint(const QString& hint) {
    m_hint = hint;
    show();
}

void StatusNotice::setFault(const QString& fault) {
    if (fault == m_fault) return;
    m_fault = fault;
    show();
}

void StatusNotice::noteHotKey(HotKeyId id, const HotKeyState& state) {
    if (state.status == HotKeyStatus::refused && state.error) {
        m_refused[id] =
            tr("%1 has no shortcut. %2").arg(titleOf(id), QString::fromStdString(state.error->message));
    } else {
        m_refused.erase(id);
    }
    show();
}

void StatusNotice::show() {
    QStringList lines;
    for (const auto& [id, line] : m_refused) lines.append(line);
    if (!m_hint.isEmpty()) lines.append(m_hint);
    if (!m_fault.isEmpty()) lines.append(m_fault);
    m_item.setNotice(lines.join(QLatin1Char('\n')));
}
