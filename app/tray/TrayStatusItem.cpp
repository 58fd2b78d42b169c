// SPDX-License-Identifier: MIT
#include "app/tray/TrayStatusItem.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QWindow>
#include <chrono>

#include "app/icons/StatusIcon.h"
#include "app/tray/ControlWindow.h"
#include "app/widgets/OwnWindow.h"
#include "platform/Windows.h"

namespace {
constexpr std::chrono::seconds patience{3};
constexpr std::chrono::milliseconds patienceWithToolkit{200};
}  // namespace

TrayStatusItem::TrayStatusItem(DockingTray& dockingTray, Windows& windows)
    : m_windows(windows), m_gate(dockingTray) {
    connect(&m_gate, &TrayGate::changed, this, &TrayStatusItem::followTray);
    m_oldNews.setSingleShot(true);
    m_oldNews.setInterval(patienceWithToolkit);
    connect(&m_oldNews, &QTimer::timeout, this, [this] { m_menu->popup(QCursor::pos()); });
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this] {
        if (m_oldNews.isActive()) openMenu();
    });
    m_withoutTray.setSingleShot(true);
    m_withoutTray.setInterval(patience);
    connect(&m_withoutTray, &QTimer::timeout, this, &TrayStatusItem::showControlWindow);
}

TrayStatusItem::~TrayStatusItem() = default;

void TrayStatusItem::show(QMenu& menu, StatusImage image) {
    m_menu = &menu;
    m_image = image;
    followTray();
}

void TrayStatusItem::setImage(StatusImage image) {
    m_image = image;
    updateIcon();
}

void TrayStatusItem::setNotice(const QString& notice) {
    m_notice = notice;
    updateIcon();
    if (m_window) m_window->setNotice(notice);
}

QWidget* TrayStatusItem::window() { return m_window.get(); }

void TrayStatusItem::showWindow() {
    if (m_menu == nullptr) return;
    // Compositors leave a window on its workspace; one that appears does so where the user is.
    if (m_window) {
        m_window->hide();
        m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    }
    showControlWindow();
    m_window->raise();
}

void TrayStatusItem::followTray() {
    if (m_menu == nullptr) return;
    if (!m_gate.isPresent()) {
        if (m_window) m_window->setStandsIn(true);
        m_withoutTray.start();
        return;
    }
    m_withoutTray.stop();
    if (m_window) m_window.release()->deleteLater();
    if (!m_icon) makeIcon();
}

void TrayStatusItem::makeIcon() {
    m_icon = std::make_unique<QSystemTrayIcon>();
    m_icon->setContextMenu(m_menu);
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
            [this](QSystemTrayIcon::ActivationReason reason) {
                // A second click soon after the first is a double click to the toolkit.
                if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) openMenu();
            });
    updateIcon();
    m_icon->show();
}

/// The toolkit closes the menus that are open when it notices that no window of the program is in use any
/// longer, which it does 100 ms late.
void TrayStatusItem::openMenu() {
    const QWindow* const used = QGuiApplication::focusWindow();
    const bool isOldNews = QGuiApplication::applicationState() == Qt::ApplicationActive &&
                           (used == nullptr || !used->isVisible());
    if (isOldNews) return m_oldNews.start();
    m_oldNews.stop();
    m_menu->popup(QCursor::pos());
}

void TrayStatusItem::updateIcon() {
    if (!m_icon) return;
    m_icon->setIcon(statusIcon(m_image));
    const QString name = tr("Keyrill");
    m_icon->setToolTip(m_notice.isEmpty() ? name : name + QLatin1Char('\n') + m_notice);
}

void TrayStatusItem::showControlWindow() {
    if (!m_window) m_window = std::make_unique<ControlWindow>(*m_menu);
    // Each time: compositors forget it when they read their configuration again.
    if (!m_window->isVisible()) m_windows.refuseFocus(ownWindow(*m_window));
    m_window->setNotice(m_notice);
    m_window->setStandsIn(!m_gate.isPresent());
    m_window->show();
}
