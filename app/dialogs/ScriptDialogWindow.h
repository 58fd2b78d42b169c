// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QTimer>
#include <optional>

#include "platform/ScriptDialogs.h"

class QLineEdit;
class QListWidget;
class QPushButton;

/// A script's question on the screen. All texts are shown as they are, neither as rich text nor with
/// mnemonics; what no screen could hold is scrolled or cut.
///
/// Return presses the default button, or the one that the keyboard focus was moved to. Escape and the
/// window's frame press the cancel button; without one neither closes the window, but Escape held as long as
/// it takes to end a playback does, without an answer.
class ScriptDialogWindow : public QDialog {
    Q_OBJECT

  public:
    explicit ScriptDialogWindow(const ScriptDialog& dialog);

    /// Empty if the window went without a button and without having waited long enough.
    const std::optional<ScriptAnswer>& answer() const { return m_answer; }

  public slots:
    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    QWidget* makeWords(const ScriptDialog& dialog) const;
    QWidget* makeField(const ScriptDialog& dialog);
    QWidget* makeChoices(const ScriptDialog& dialog);
    void followChoices(const ScriptDialog& dialog);
    QWidget* makeButtons(const ScriptDialog& dialog);
    QPushButton* makeButton(const ScriptDialog& dialog, std::size_t place);
    void setFirstFocus();
    void limitTime(double seconds);
    void finish(std::optional<std::size_t> button);

    std::optional<std::size_t> m_cancelButton;
    std::optional<ScriptAnswer> m_answer;
    QLineEdit* m_field = nullptr;
    QListWidget* m_choices = nullptr;
    QPushButton* m_default = nullptr;
    QTimer m_patience{this};
    QTimer m_heldEscape{this};
};
