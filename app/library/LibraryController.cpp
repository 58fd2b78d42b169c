// SPDX-License-Identifier: MIT
#include "app/library/LibraryController.h"

#include <QPointer>
#include <QTimer>
#include <utility>

#include "app/library/MacroTitles.h"
#include "engine/MacroPlayer.h"
#include "platform/Notifications.h"

LibraryController::LibraryController(const LibraryServices& services)
    : m_notifications(services.notifications),
      m_library(services.folderFollower, services.macroRecords, services.macroFiles),
      m_hotKeys(m_library, services.hotKeys, services.firstHotKey,
                [this](const std::string& path) { play(path); }),
      m_history(services.recordings, *this),
      m_playRequests(m_library, services.macroFiles, services.scripting),
      m_draftFolder(services.draftFolder) {
    m_library.addListener(*this);
    m_hotKeys.observe(
        [this](const std::string& path) { emit hotKeyChanged(QByteArray::fromStdString(path)); });
}

LibraryController::~LibraryController() { m_library.removeListener(*this); }

void LibraryController::start() { m_library.open(); }

void LibraryController::play(const std::string& path) {
    auto request = m_playRequests.ofPath(path);
    if (!request) return post(tr("\"%1\" was not played").arg(macroName(path)), request.error());
    requestPlay(std::move(request).value());
}

// The first time the settings have been read as well.
void LibraryController::libraryChanged(const LibraryChanges& changes) {
    tellFaults();
    // What was set is written by a timer of no time, when this turn of the loop has ended.
    if (!changes.settings.empty()) QTimer::singleShot(1, this, &LibraryController::tellFaults);
    if (changes.isFirst) emit read();
}

void LibraryController::tellFaults() {
    while (const auto fault = m_library.takeFault()) post(tr("Hot keys of macros"), *fault);
}

void LibraryController::historyFailed(const Error& why) { post(tr("The history"), why); }

void LibraryController::post(const QString& title, const Error& error) {
    QString text = QString::fromStdString(error.message);
    if (!error.hint.empty()) text += u'\n' + QString::fromStdString(error.hint);
    // Who shows messages may answer when this is no more.
    m_notifications.post(title.toStdString(), text.toStdString(),
                         [self = QPointer<LibraryController>(this), fault = tr("%1. %2").arg(title, text)] {
                             if (self) emit self->faultUnshown(fault);
                         });
    emit faultTold(error);
}
