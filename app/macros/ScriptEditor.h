// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QTimer>
#include <memory>
#include <string>
#include <vector>

#include "app/macros/ScriptCheck.h"

class QCompleter;
class ScriptHighlighter;
class ScriptLayout;

/// A script as text: with colours, line numbers, what the compiler says of a line below it while one types,
/// and a choice of words where one begins. Lines run from left to right in every language.
///
/// Texts of more than `longestColoured` bytes have no colours, since all of them are read at once.
class ScriptEditor : public QPlainTextEdit {
    Q_OBJECT

  public:
    static constexpr std::size_t longestColoured = std::size_t{1} << 19U;

    explicit ScriptEditor(QWidget* parent = nullptr);
    ~ScriptEditor() override;

    /// UTF-8, with line feeds.
    std::string script() const;
    /// Another script, to which no change before it can be undone.
    void setScript(const std::string& script);
    /// The same script after a change that was made elsewhere, which can be undone here.
    void changeScript(const std::string& script);

    /// As of the last time that the text was checked.
    const std::vector<ScriptProblem>& problems() const { return m_problems; }
    /// Now; otherwise a moment after the last change.
    void checkScript();

    /// How wide the strip of the line numbers is.
    int numbersWidth() const;
    void paintNumbers(QPaintEvent& event);

  signals:
    /// What is wrong has been found out anew.
    void checked();

  protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void makeDocument();
    void makeNumbers();
    void makeCompleter();
    void placeNumbers();
    void showProblems();
    void paintProblem(QPainter& painter, const QTextBlock& block) const;
    void complete(const QString& phrase);
    void offerPhrases();
    /// The letters before the caret.
    QString wordBegun() const;
    /// Where the caret stands nothing is a word of the language.
    bool isInTextOrComment() const;

    ScriptLayout* m_layout = nullptr;
    ScriptHighlighter* m_highlighter = nullptr;
    QWidget* m_numbers = nullptr;
    QCompleter* m_completer = nullptr;
    QTimer m_check;
    std::vector<ScriptProblem> m_problems;
};
