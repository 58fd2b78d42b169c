// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

class NoticeLine;

/// An ordinary window of the program. The frame, Escape or a button of its own closes it; it is kept then, to
/// be shown again. Return presses the button that has the focus, else the default one. Showing it does not
/// give it the focus.
class Panel : public QWidget {
    Q_OBJECT

  public:
    explicit Panel(const QString& title);

    /// Says something at the panel's top that is none of its own matters. Empty takes it away.
    void setHint(const QString& hint);

  signals:
    /// An accepted close event: the user closes the panel. Never when it is merely hidden or minimised.
    void willClose();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void pressButton();

    NoticeLine* m_hint = nullptr;
};
