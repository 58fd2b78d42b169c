// SPDX-License-Identifier: MIT
#include "app/FakeDialogs.h"

#include <utility>

AlertAnswer FakeDialogs::runAlert(const AlertText& text) {
    m_journal.note("runAlert", text.title.toStdString());
    alerts.push_back(text);
    happen();
    if (m_answers.empty()) return AlertAnswer::alternateButton;
    const AlertAnswer answer = m_answers.front();
    m_answers.pop();
    return answer;
}

void FakeDialogs::beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) {
    m_journal.note("beginSheet", text.title.toStdString());
    sheets.push_back({&panel, text});
    m_didEnd = std::move(didEnd);
}

void FakeDialogs::endSheet(AlertAnswer answer) {
    if (const DidEnd didEnd = std::exchange(m_didEnd, nullptr)) didEnd(answer);
}

QString FakeDialogs::runSavePanel(const QString& folder) {
    m_journal.note("runSavePanel", folder.toStdString());
    filePanels.push_back(QStringLiteral("save ") + folder);
    return takeFile();
}

QString FakeDialogs::runOpenPanel(const QString& folder) {
    m_journal.note("runOpenPanel", folder.toStdString());
    filePanels.push_back(QStringLiteral("open ") + folder);
    return takeFile();
}

std::optional<ScriptAnswer> FakeDialogs::runScriptDialog(const ScriptDialog& dialog,
                                                         const IsStopped& isStopped) {
    m_journal.note("runScriptDialog", dialog.text);
    scriptTexts.push_back(dialog.text);
    happen();
    if (m_scriptAnswers.empty() || isStopped()) return std::nullopt;
    ScriptAnswer answer = std::move(m_scriptAnswers.front());
    m_scriptAnswers.pop();
    return answer;
}

QString FakeDialogs::takeFile() {
    happen();
    if (m_files.empty()) return {};
    QString file = m_files.front();
    m_files.pop();
    return file;
}

void FakeDialogs::happen() const {
    if (m_hook) m_hook();
}
