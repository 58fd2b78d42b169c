// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include "app/macros/DraftFiles.h"
#include "app/macros/FileMoves.h"

class Gate;
class KeyboardLayout;
class Macro;
class MacroFiles;
class MacroShelf;
class MacrosWindow;
class ScriptNotices;
class ScriptingService;
class Stage;

/// The macros that the user keeps, and their window: what is changed in it is saved when the user says so,
/// and kept until then whatever else is chosen. The window is built when it is first shown and kept.
class MacrosDesk : public QObject {
    Q_OBJECT

  public:
    /// What of the desktop it needs; all outlive the desk.
    struct Means {
        MacroFiles& files;
        const KeyboardLayout& layout;
        ScriptingService& scripting;
        ScriptNotices& notices;
        const Gate& gate;
        Stage& stage;
        DraftFiles drafts;
    };
    explicit MacrosDesk(const Means& means);
    ~MacrosDesk() override;

    void show();
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
    void showItems();
    void readContents();
    void openMacro(const std::string& path);
    void followContent(const std::string& path);
    void noteEdit();
    /// Keeps or forgets on the disk what has changed since the last time.
    void keepDrafts();
    void tellOfDrafts();
    void save();
    void record(Purpose purpose);
    void play();
    void duplicate(const std::string& path);
    void rename(const std::string& path, const QString& name);
    void remove(const std::string& path);
    void restore();

    Means m_means;
    std::unique_ptr<MacroShelf> m_shelf;
    std::unique_ptr<MacrosWindow> m_window;
    /// What is not saved, by path; UTF-8.
    std::map<std::string, std::string> m_unsaved;
    /// Of these the disk knows an earlier state.
    std::set<std::string> m_undrafted;
    QTimer m_draftTimer;
    /// The chosen macro's file as it was last read or written.
    std::string m_saved;
    /// Of the one that was put there last.
    std::optional<TrashedFile> m_trashed;
    std::optional<std::string> m_trashedText;
    /// To be chosen once it is in the list, and perhaps named.
    std::string m_awaited;
    bool m_namesAwaited = false;
    Purpose m_purpose = Purpose::none;
    QTimer m_contents;
    std::size_t m_nextContent = 0;
};
