// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/macros/DraftFiles.h"
#include "app/macros/FileMoves.h"
#include "app/macros/TextReader.h"
#include "app/macros/UnsavedTexts.h"
#include "library/LibraryListener.h"
#include "library/MacroSettings.h"
#include "platform/PlayOptions.h"
#include "prefs/KeyCombo.h"

class Gate;
class KeyboardLayout;
class LibraryController;
class Macro;
class MacroFiles;
class MacroLibrary;
class MacrosWindow;
class Stage;

/// The library's macros in their window: what is changed in it is saved when the user says so, and kept until
/// then whatever else is chosen. What others do in the macro folder is followed; the choice, and what is not
/// saved, stay with a macro that is renamed. The window is built when it is first shown and kept.
class MacrosDesk : public QObject, private LibraryListener {
    Q_OBJECT

  public:
    /// What it needs; all outlive the desk.
    struct Means {
        LibraryController& library;
        MacroFiles& files;
        const KeyboardLayout& layout;
        const Gate& gate;
        Stage& stage;
        DraftFiles drafts;
    };
    explicit MacrosDesk(const Means& means);
    ~MacrosDesk() override;

    void show();
    /// Chooses the macro in the window, as soon as it is listed there.
    void choose(const std::string& path);
    /// A recording has ended with something in it: it becomes a macro, or keys of one, if that was asked for
    /// here.
    void takeRecording(const Macro& macro);
    /// A recording has ended, whatever is in it.
    void recordingEnded();

    /// Null until first shown.
    MacrosWindow* window() const { return m_window.get(); }

  private:
    /// What a recording is for that was begun here.
    enum class Purpose { none, newMacro, keys };

    MacrosWindow& builtWindow();
    void connectWindow();
    void connectTimers();

    void libraryChanged(const LibraryChanges& changes) override;
    void followRenames(const std::vector<FolderChanges::Rename>& renamed);
    void followGone(const std::vector<std::string>& gone);
    void showItems();
    /// Of the chosen macro: what belongs to it beside its text.
    void showSettings();
    void setHotKey(KeyCombo hotKey);
    void setPlay(const PlayOptions& play);
    void holdHotKeys(bool holds);
    void readContents();
    /// For the search.
    void takeContent(const std::string& path, const Result<std::string>& text);
    /// Of the macro that is chosen, or was.
    void takeText(const std::string& path, const Result<std::string>& text);
    void openMacro(const std::string& path);
    void read(const std::string& path);
    void showText(const std::string& path, const Result<std::string>& text);
    void followText(const std::string& path, const Result<std::string>& text);
    void noteEdit();
    void loadUnsaved();
    void tellOfUnsaved();
    void tellFaults();

    void save();
    void record(Purpose purpose);
    void keep(int macroId);
    void forget(int macroId);
    void forgetAll();
    void makeMacro(const std::string& script);
    void beginPlay();
    void play();
    void duplicate(const std::string& path);
    void rename(const std::string& path, const QString& name);
    void remove(const std::string& path);
    void restore();
    /// It is chosen once it is in the list, and perhaps named.
    void await(const std::string& file, bool isToBeNamed);
    std::string pathOf(const std::string& file) const;

    Means m_means;
    MacroLibrary& m_library;
    UnsavedTexts m_unsaved;
    bool m_hasLoadedUnsaved = false;
    TextReader m_reader;
    std::unique_ptr<MacrosWindow> m_window;
    QTimer m_showing;
    /// The chosen macro's file as it was last read or written.
    std::string m_saved;
    /// Whose text is being read to be shown; empty for none.
    std::string m_opening;
    QTimer m_patience;
    struct Deleted {
        std::string path;
        /// None of one that had no file.
        std::optional<TrashedFile> file;
        /// What was not saved of it.
        std::optional<Draft> draft;
        MacroSettings settings;
    };
    /// The last one last.
    std::vector<Deleted> m_deleted;
    std::string m_awaited;
    bool m_namesAwaited = false;
    Purpose m_purpose = Purpose::none;
    /// Whether hot keys act when the field of the hot key is left.
    bool m_hotKeysWereOn = true;
};
