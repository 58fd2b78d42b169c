// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSystemTrayIcon>
#include <QTimer>
#include <memory>

#include "app/tray/StatusItem.h"
#include "app/tray/TrayGate.h"

class ControlWindow;
class Windows;

/// The status item as an icon in the tray; while there has been no tray for 3 s, as a small window.
class TrayStatusItem : public QObject, public StatusItem {
    Q_OBJECT

  public:
    /// Both outlive this.
    TrayStatusItem(DockingTray& dockingTray, Windows& windows);
    ~TrayStatusItem() override;

    void show(QMenu& menu, StatusImage image) override;
    void setImage(StatusImage image) override;
    void setNotice(const QString& notice) override;
    QWidget* window() override;
    void showWindow() override;

  private:
    void followTray();
    void makeIcon();
    void openMenu();
    void updateIcon();
    void showControlWindow();

    Windows& m_windows;
    TrayGate m_gate;
    QTimer m_withoutTray;
    /// Runs while a menu that was asked for waits for the toolkit.
    QTimer m_oldNews;
    std::unique_ptr<QSystemTrayIcon> m_icon;
    std::unique_ptr<ControlWindow> m_window;
    QMenu* m_menu = nullptr;
    StatusImage m_image = StatusImage::busy;
    QString m_notice;
};
