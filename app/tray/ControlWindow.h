// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class NoticeLine;
class QLabel;
class QMenu;

/// The status item's menu in a small window, for desktops without a tray and for those who start the program
/// once more. It never takes the focus from the application that is being typed into. Where it stands in for
/// the tray, closing it only puts it among the minimised windows, since it is the only way to the program.
class ControlWindow : public QWidget {
    Q_OBJECT

  public:
    explicit ControlWindow(QMenu& menu);

    void setNotice(const QString& notice);
    /// Whether it is there because there is no tray; true at first.
    void setStandsIn(bool standsIn);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QLabel* m_advice;
    NoticeLine* m_notice;
    bool m_standsIn = true;
};
