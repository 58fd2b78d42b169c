// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <queue>
#include <vector>

#include "app/dialogs/Dialogs.h"

/// Answers questions with what a test has queued and remembers them. A question without a queued answer is
/// cancelled: alternate button, no file.
class FakeDialogs : public Dialogs {
  public:
    AlertAnswer runAlert(const AlertText& text) override;
    void beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) override;
    QString runSavePanel(const QString& folder) override;
    QString runOpenPanel(const QString& folder) override;

    void answerNextAlert(AlertAnswer answer) { m_answers.push(answer); }
    void chooseNextFile(const QString& path) { m_files.push(path); }
    /// What happens while an alert or a file panel is open.
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

  private:
    QString takeFile();
    void happen() const;

    std::queue<AlertAnswer> m_answers;
    std::queue<QString> m_files;
    std::function<void()> m_hook;
    DidEnd m_didEnd;
};
