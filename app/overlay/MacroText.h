// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>
#include <string>

/// The end of a long text in one line. Only what can be seen is kept and painted, at most once a frame, so
/// that a text that grows with each key costs the same for each key.
class MacroText : public QWidget {
    Q_OBJECT

  public:
    explicit MacroText(QWidget* parent = nullptr);

    /// UTF-8.
    void setText(const std::string& text);
    /// The end of the text that is kept.
    const QString& text() const { return m_text; }

  signals:
    /// A new text is about to be painted.
    void refreshed();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    /// As much of the end as fits, with an ellipsis where it was cut.
    QString visibleText() const;
    void refresh();
    void frameEnds();

    QString m_text;
    QTimer m_frame;
    bool m_waiting = false;
};
