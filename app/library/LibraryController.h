// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <string>

#include "app/library/PlayRequests.h"
#include "library/LibraryHotKeys.h"
#include "library/MacroLibrary.h"
#include "library/RecordingHistory.h"
#include "platform/PlayOptions.h"
#include "platform/Result.h"

class FolderFollower;
class HotKeys;
class MacroFiles;
class Notifications;
class RecordStore;
class RecordingStore;
class ScriptingService;

/// What the library needs of the desktop. All outlive the controller.
struct LibraryServices {
    FolderFollower& folderFollower;
    RecordStore& macroRecords;
    RecordingStore& recordings;
    MacroFiles& macroFiles;
    /// For macros alone: install() and observe() are the library's.
    HotKeys& hotKeys;
    /// The ids are from here on.
    HotKeyId firstHotKey = 1;
    Notifications& notifications;
    ScriptingService& scripting;
    /// Where what is not saved of macros is kept, absolute; it need not exist.
    std::string draftFolder;
};

/// The macros of the macro folder and their hot keys, and the history: joins the library with the engine and
/// the desktop.
///
/// A macro that is played by its hot key does not become the current macro: Play plays what it played before.
class LibraryController : public QObject, private LibraryListener, private HistoryListener {
    Q_OBJECT

  public:
    explicit LibraryController(const LibraryServices& services);
    ~LibraryController() override;

    MacroLibrary& library() { return m_library; }
    LibraryHotKeys& hotKeys() { return m_hotKeys; }
    RecordingHistory& history() { return m_history; }

    /// Where what is not saved of macros is kept.
    const std::string& draftFolder() const { return m_draftFolder; }

    /// What others may ask to have played.
    PlayRequests& playRequests() { return m_playRequests; }

    /// Reads what macros are there, and then registers their hot keys. Returns at once.
    void start();
    /// The combinations of the shortcuts may have become others.
    void followShortcuts() { m_hotKeys.followShortcuts(); }

    /// Plays a macro as soon as no modifier key is down, as its settings say. That it cannot be read is told.
    void play(const std::string& path);

  signals:
    /// What macros there are is known.
    void read();
    /// What could not be read or kept has been told by a notification.
    void faultTold(const Error& why);
    /// Nobody shows that notification, of which these are the words.
    void faultUnshown(const QString& fault);
    /// LibraryHotKeys::state() of the macro of that path (bytes) may have become another.
    void hotKeyChanged(const QByteArray& path);
    /// history() has one more, at that place.
    void historyGrown(std::size_t index);
    /// history() has that macro no longer.
    void historyShrunk(int macroId);

  private:
    void libraryChanged(const LibraryChanges& changes) override;
    void recordingAppeared(std::size_t index) override { emit historyGrown(index); }
    void recordingGone(int macroId) override { emit historyShrunk(macroId); }
    void tellFaults();
    void historyFailed(const Error& why) override;
    void post(const QString& title, const Error& error);

    Notifications& m_notifications;
    MacroLibrary m_library;
    LibraryHotKeys m_hotKeys;
    RecordingHistory m_history;
    PlayRequests m_playRequests;
    std::string m_draftFolder;
};
