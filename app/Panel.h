// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWidget>

/// An ordinary window of the program, closed by its frame or by Escape. It belongs to nobody and is kept when
/// closed.
class Panel : public QWidget {
    Q_OBJECT

  public:
    explicit Panel(const QString& title);

  signals:
    /// An accepted close event: the user closes the panel. Never when it is merely hidden or minimised.
    void willClose();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};
