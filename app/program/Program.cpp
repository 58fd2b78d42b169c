// SPDX-License-Identifier: MIT
#include "app/program/Program.h"

#include <QApplication>

#include "app/program/X11Backends.h"
#include "platform/x11/X11DockingTray.h"

Program::Program(X11Backends& backends)
    : m_statusItem(backends.dockingTray()),
      m_controller(backends.services(), backends.windows(), m_statusItem),
      m_signals([](void*) {}, nullptr),
      m_trayReadable(backends.dockingTray().fileDescriptor(), QSocketNotifier::Read) {
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&m_signals, &TerminationSignals::received, &m_controller, &AppController::kill);
    QObject::connect(&m_trayReadable, &QSocketNotifier::activated,
                     [&tray = backends.dockingTray()] { tray.dispatch(); });
    QTimer::singleShot(0, &m_controller, &AppController::awakeFromNib);
}
