// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <queue>
#include <vector>

#include "app/dialogs/Dialogs.h"
#include "platform/fake/Journal.h"

/// Answers questions with what a test has queued and remembers them. A question without a queued answer is
/// cancelled: alternate button, no file, no answer.
class FakeDialogs : public Dialogs {
  public:
    explicit FakeDialogs(Journal& journal) : m_journal(journal) {}

    AlertAnswer runAlert(const AlertText& text) override;
    void beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) override;
    QString runSavePanel(const QString& folder) override;
    QString runOpenPanel(const QString& folder) override;
    std::optional<ScriptAnswer> runScriptDialog(const ScriptDialog& dialog,
                                                const IsStopped& isStopped) override;

    void answerNextAlert(AlertAnswer answer) { m_answers.push(answer); }
    void chooseNextFile(const QString& path) { m_files.push(path); }
    void answerNextScript(const ScriptAnswer& answer) { m_scriptAnswers.push(answer); }
    /// What happens while an alert, a file panel or a script's question is open.
    void whileOpen(std::function<void()> hook) { m_hook = std::move(hook); }
    /// The user answers the sheet that was begun last.
    void endSheet(AlertAnswer answer);

    /// Modal alerts, in order.
    std::vector<AlertText> alerts;
    struct Sheet {
        QWidget* panel = nullptr;
        AlertText text;
    };
    std::vector<Sheet> sheets;
    /// The folders in which file panels were opened: "save /folder", "open /folder".
    std::vector<QString> filePanels;
    /// The texts of scripts' questions.
    std::vector<std::string> scriptTexts;

  private:
    QString takeFile();
    void happen() const;

    Journal& m_journal;
    std::queue<AlertAnswer> m_answers;
    std::queue<QString> m_files;
    std::queue<ScriptAnswer> m_scriptAnswers;
    std::function<void()> m_hook;
    DidEnd m_didEnd;
};
