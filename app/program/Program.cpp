// SPDX-License-Identifier: MIT
#include "app/program/Program.h"

#include <QApplication>
#include <utility>
#include <variant>

#include "app/program/Backends.h"
#include "app/program/ProgramInstance.h"
#include "app/tray/Actions.h"
#include "app/widgets/OwnWindow.h"
#include "platform/EventSource.h"
#include "platform/Session.h"
#include "platform/Windows.h"
#include "platform/script/run/ScriptRunner.h"

namespace {

// A run does not return to the event loop before its end, so a signal has to end it first.
void interruptRun(void* session) { static_cast<Session*>(session)->interrupt(); }

QtDialogs::Focus focusOf(Windows& windows) {
    return {
        .take = [&windows](QWidget& window) { windows.activate(ownWindow(window), 0); },
        .awaitElsewhere = [&windows](QWidget& hidden) { windows.awaitFocusElsewhere(hiddenWindow(hidden)); }};
}

Result<void, Refusal> notNow(const Result<>& done) {
    if (done) return {};
    return Refusal{Refusal::Cause::notNow, done.error()};
}

}  // namespace

Program::Program(Backends& backends)
    : m_backends(backends),
      m_statusItem(backends.session().sessionServices().dockingTray,
                   backends.session().sessionServices().windows),
      m_dialogs(focusOf(backends.session().sessionServices().windows)),
      m_library(backends.libraryServices()),
      m_controller(backends.services(), backends.session().sessionServices().windows, m_statusItem, m_dialogs,
                   m_library),
      m_signals(interruptRun, &backends.session()) {
    backends.scripting().askThrough(m_controller.scriptDialogs());
    // The session may be another than the one that would be found.
    m_controller.statusDesk().setCheck(
        {QApplication::applicationFilePath(),
         QStringLiteral("--session=") + QString::fromStdString(backends.sessionName()),
         QStringLiteral("--check")});
    QApplication::setApplicationName(QStringLiteral("keyrill"));
    QApplication::setDesktopFileName(QStringLiteral("example.orlen.Keyrill"));
    QApplication::setQuitOnLastWindowClosed(false);
    QObject::connect(&m_signals, &TerminationSignals::received, &m_controller, &AppController::kill);
    QObject::connect(&m_controller, &AppController::started, &m_library, &LibraryController::start);
    // Not while shortcuts are being registered.
    QObject::connect(&m_controller, &AppController::hotKeysChanged, &m_library,
                     &LibraryController::followShortcuts, Qt::QueuedConnection);
    for (EventSource* source : backends.eventSources()) serve(*source);
    QTimer::singleShot(0, &m_controller, &AppController::awakeFromNib);
}

void Program::serve(EventSource& source) {
    m_readable.push_back(std::make_unique<QSocketNotifier>(source.fileDescriptor(), QSocketNotifier::Read));
    // A server that is gone is the toolkit's to notice: it says so and ends the program.
    QObject::connect(m_readable.back().get(), &QSocketNotifier::activated, &m_controller,
                     [&source] { source.dispatch(); });
}

void Program::follow(ProgramInstance& instance) {
    QObject::connect(&instance, &ProgramInstance::activated, &m_controller,
                     &AppController::showControlWindow);
    QObject::connect(&instance, &ProgramInstance::fileOpened, &m_controller, &AppController::openMacroFile);
    QObject::connect(&m_controller, &AppController::started, &instance, [this, &instance] {
        instance.serve([this](const Errand& errand) { return run(errand); });
    });
    QObject::connect(&m_library, &LibraryController::read, &instance, &ProgramInstance::serveLibrary);
    QObject::connect(&m_controller, &AppController::hotKeysChanged, &instance,
                     [this, &instance] { instance.noteHotKeys(m_controller.registeredHotKeys()); });
    m_backends.endPlaysWhen([&instance] { return instance.endsPlayback(); });
}

Result<void, Refusal> Program::run(const Errand& errand) {
    if (const auto* const asked = std::get_if<PlayErrand>(&errand)) return play(*asked);
    if (const auto* const asked = std::get_if<ShowErrand>(&errand)) return show(*asked);
    return notNow(m_controller.carryOut(*std::get<const ActionRow*>(errand)));
}

Result<void, Refusal> Program::play(const PlayErrand& errand) {
    PlayRequests& requests = m_library.playRequests();
    auto request = errand.of == PlayErrand::Of::current ? requests.ofCurrent(errand.wish)
                   : errand.of == PlayErrand::Of::macro ? requests.ofMacro(errand.name, errand.wish)
                                                        : requests.ofFile(errand.name, errand.wish);
    if (!request) return request.error();
    return notNow(m_controller.askedPlays().ask(std::move(request).value()));
}

Result<void, Refusal> Program::show(const ShowErrand& errand) {
    std::string path;
    if (!errand.macro.empty()) {
        auto found = m_library.playRequests().pathOf(errand.macro);
        if (!found) return found.error();
        path = std::move(found).value();
    }
    const Result<> shown = m_controller.carryOut(*actionNamed("macros"));
    if (shown && !path.empty()) m_controller.chooseMacro(path);
    return notNow(shown);
}

void Program::openFiles(const QStringList& files) {
    for (const QString& file : files) {
        QTimer::singleShot(0, &m_controller, [this, file] { m_controller.openMacroFile(file); });
    }
}
