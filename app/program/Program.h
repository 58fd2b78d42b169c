// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>
#include <QStringList>
#include <memory>

#include "app/controller/AppController.h"
#include "app/dialogs/QtDialogs.h"
#include "app/program/TerminationSignals.h"
#include "app/tray/TrayStatusItem.h"

class ProgramInstance;
class X11Backends;
namespace x11 {
class X11EventManager;
}

/// The program around the controller: joins it with the backends and both with the toolkit's event loop.
/// Needs a QApplication; start-up itself happens once the loop runs.
class Program {
  public:
    explicit Program(X11Backends& backends);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    AppController& controller() { return m_controller; }

    /// Takes what other starts hand over.
    void follow(const ProgramInstance& instance);
    /// Opens macro files once the start-up is through; absolute paths.
    void openFiles(const QStringList& files);

  private:
    void watchEvents(x11::X11EventManager& manager);

    TrayStatusItem m_statusItem;
    QtDialogs m_dialogs;
    AppController m_controller;
    TerminationSignals m_signals;
    std::unique_ptr<QSocketNotifier> m_eventsReadable;
    QSocketNotifier m_trayReadable;
    QSocketNotifier m_busesReadable;
};
