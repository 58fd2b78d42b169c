// SPDX-License-Identifier: MIT
#pragma once

#include <QSyntaxHighlighter>

/// Colours a script as the language reads it, in colours that are clear on the palette's ground.
class ScriptHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

  public:
    /// `palette` is that of the view that shows the document.
    ScriptHighlighter(QTextDocument* document, const QPalette& palette);

    /// After the theme has become another.
    void setPalette(const QPalette& palette);

  protected:
    void highlightBlock(const QString& text) override;

  private:
    bool m_isDark;
};
