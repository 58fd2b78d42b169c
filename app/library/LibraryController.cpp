// SPDX-License-Identifier: MIT
#include "app/library/LibraryController.h"

#include <chrono>
#include <utility>

#include "engine/MacroPlayer.h"
#include "platform/Encoding.h"
#include "platform/Notifications.h"

namespace {

PlayedAt now() { return std::chrono::floor<std::chrono::seconds>(std::chrono::system_clock::now()); }

/// Names of files may be in any encoding.
QString shownName(const std::string& path) {
    return QString::fromStdString(decodedText(std::string(LibraryEntry{path}.name())));
}

}  // namespace

LibraryController::LibraryController(const LibraryServices& services)
    : m_notifications(services.notifications),
      m_library(services.folderFollower, services.macroRecords, services.macroFiles),
      m_hotKeys(m_library, services.hotKeys, services.firstHotKey,
                [this](const std::string& path) { play(path); }),
      m_playRequests(m_library, services.macroFiles, services.scripting) {
    m_library.addListener(*this);
    m_hotKeys.observe(
        [this](const std::string& path) { emit hotKeyChanged(QByteArray::fromStdString(path)); });
}

LibraryController::~LibraryController() { m_library.removeListener(*this); }

void LibraryController::start() { m_library.open(); }

void LibraryController::play(const std::string& path) {
    auto text = m_library.text(path);
    if (!text) return post(tr("\"%1\" was not played").arg(shownName(path)), text.error());
    requestPlay({.script = std::move(text).value(),
                 .options = m_library.settings(path).play,
                 .begins = [this, path] { m_library.notePlayed(path, now()); }});
}

// The first time the settings have been read as well.
void LibraryController::libraryChanged(const LibraryChanges& changes) {
    while (const auto fault = m_library.takeFault()) post(tr("Hot keys of macros"), *fault);
    if (changes.isFirst) emit read();
}

void LibraryController::post(const QString& title, const Error& error) {
    QString text = QString::fromStdString(error.message);
    if (!error.hint.empty()) text += u'\n' + QString::fromStdString(error.hint);
    m_notifications.post(title.toStdString(), text.toStdString());
}
