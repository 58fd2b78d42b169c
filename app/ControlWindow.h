// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;
class QMenu;

/// The status item's menu in a small window, for desktops without a tray. It never takes the focus from the
/// application that is being typed into; closing it only puts it among the minimised windows, since it is
/// the only way to the program.
class ControlWindow : public QWidget {
    Q_OBJECT

  public:
    explicit ControlWindow(QMenu& menu);

    void setNotice(const QString& notice);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QLabel* m_notice;
};
