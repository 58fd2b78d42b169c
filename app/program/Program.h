// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>
#include <QStringList>
#include <memory>
#include <vector>

#include "app/controller/AppController.h"
#include "app/dialogs/QtDialogs.h"
#include "app/library/LibraryController.h"
#include "app/program/Errand.h"
#include "app/program/TerminationSignals.h"
#include "app/tray/TrayStatusItem.h"

class Backends;
class EventSource;
class ProgramInstance;

/// The program around the controller: joins it with the backends and both with the toolkit's event loop.
/// Needs a QApplication; start-up itself happens once the loop runs.
class Program {
  public:
    explicit Program(Backends& backends);
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    AppController& controller() { return m_controller; }
    LibraryController& library() { return m_library; }

    /// Takes what other starts hand over, and does what is asked from outside. Outlives the program.
    void follow(ProgramInstance& instance);
    /// Opens macro files once the start-up is through; absolute paths.
    void openFiles(const QStringList& files);

  private:
    Result<void, Refusal> run(const Errand& errand);
    Result<void, Refusal> play(const PlayErrand& errand);
    Result<void, Refusal> show(const ShowErrand& errand);
    void serve(EventSource& source);

    Backends& m_backends;
    TrayStatusItem m_statusItem;
    QtDialogs m_dialogs;
    LibraryController m_library;
    AppController m_controller;
    TerminationSignals m_signals;
    std::vector<std::unique_ptr<QSocketNotifier>> m_readable;
};
