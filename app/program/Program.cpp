// SPDX-License-Identifier: MIT
#include "app/program/Program.h"

#include <QApplication>

#include "app/program/ProgramInstance.h"
#include "app/program/X11Backends.h"
#include "platform/Windows.h"
#include "platform/linux/BusLoop.h"
#include "platform/script/run/ScriptRunner.h"
#include "platform/x11/press/X11KeyInjector.h"
#include "platform/x11/watch/X11EventManager.h"
#include "platform/x11/windows/X11DockingTray.h"

namespace {

// A run does not return to the event loop before its end, so a signal has to end it first.
void interruptRun(void* injector) {
    if (injector != nullptr) static_cast<x11::X11KeyInjector*>(injector)->interrupt();
}

QtDialogs::Focus focusOf(Windows& windows) {
    const auto idOf = [](QWidget& window) { return static_cast<WindowId>(window.winId()); };
    return {
        .take = [&windows, idOf](QWidget& window) { windows.activate(idOf(window), 0); },
        .awaitElsewhere = [&windows, idOf](QWidget& hidden) { windows.awaitFocusElsewhere(idOf(hidden)); }};
}

}  // namespace

Program::Program(X11Backends& backends)
    : m_statusItem(backends.dockingTray()),
      m_dialogs(focusOf(backends.windows())),
      m_controller(backends.services(), backends.windows(), m_statusItem, m_dialogs),
      m_signals(interruptRun, backends.keyInjector()),
      m_trayReadable(backends.dockingTray().fileDescriptor(), QSocketNotifier::Read),
      m_busesReadable(backends.busLoop().fileDescriptor(), QSocketNotifier::Read) {
    backends.scripting().askThrough(m_controller.scriptDialogs());
    QApplication::setApplicationName(QStringLiteral("keyrill"));
    QApplication::setDesktopFileName(QStringLiteral("example.orlen.Keyrill"));
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&m_signals, &TerminationSignals::received, &m_controller, &AppController::kill);
    if (backends.eventManager() != nullptr) watchEvents(*backends.eventManager());
    QObject::connect(&m_trayReadable, &QSocketNotifier::activated,
                     [&tray = backends.dockingTray()] { tray.dispatch(); });
    QObject::connect(&m_busesReadable, &QSocketNotifier::activated,
                     [&buses = backends.busLoop()] { buses.dispatch(); });
    QTimer::singleShot(0, &m_controller, &AppController::awakeFromNib);
}

void Program::watchEvents(x11::X11EventManager& manager) {
    m_eventsReadable = std::make_unique<QSocketNotifier>(manager.fileDescriptor(), QSocketNotifier::Read);
    // A server that is gone is the toolkit's to notice: it says so and ends the program.
    QObject::connect(m_eventsReadable.get(), &QSocketNotifier::activated, &m_controller,
                     [&manager] { manager.dispatch(); });
}

void Program::follow(const ProgramInstance& instance) {
    QObject::connect(&instance, &ProgramInstance::activated, &m_controller,
                     &AppController::showControlWindow);
    QObject::connect(&instance, &ProgramInstance::fileOpened, &m_controller, &AppController::openMacroFile);
}

void Program::openFiles(const QStringList& files) {
    for (const QString& file : files) {
        QTimer::singleShot(0, &m_controller, [this, file] { m_controller.openMacroFile(file); });
    }
}
