// SPDX-License-Identifier: MIT
#include "app/controller/StatusNotice.h"

#include <algorithm>

#include "app/shortcuts/ShortcutTitles.h"
#include "app/tray/StatusItem.h"
#include "platform/ErrorText.h"
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
        m_refused[id] = *state.error;
    } else {
        m_refused.erase(id);
    }
    show();
}

QStringList StatusNotice::refusals() const {
    const auto isFirst = [this](const auto& entry) { return entry.second == m_refused.begin()->second; };
    if (m_refused.size() == shortcutRows.size() && std::all_of(m_refused.begin(), m_refused.end(), isFirst))
        return {QString::fromStdString(inOneParagraph(m_refused.begin()->second))};
    QStringList lines;
    for (const auto& [id, error] : m_refused)
        lines.append(tr("%1 has no shortcut. %2").arg(titleOf(id), QString::fromStdString(error.message)));
    return lines;
}

void StatusNotice::show() {
    QStringList lines = refusals();
    if (!m_hint.isEmpty()) lines.append(m_hint);
    if (!m_fault.isEmpty()) lines.append(m_fault);
    m_item.setNotice(lines.join(QLatin1Char('\n')));
}
