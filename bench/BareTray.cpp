// SPDX-License-Identifier: MIT
//
// The least that a Qt program with a tray icon and a menu can be: the yardstick of StartBench.
#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QPixmap>
#include <QSystemTrayIcon>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QPixmap pixmap(22, 22);
    pixmap.fill(Qt::red);
    QMenu menu;
    menu.addAction(QStringLiteral("Quit"), &application, [] { QCoreApplication::exit(0); });
    QSystemTrayIcon icon{QIcon(pixmap)};
    icon.setContextMenu(&menu);
    icon.show();
    return QApplication::exec();
}
