// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

class Dialogs;
class Gate;
class MacroFiles;
class ScriptNotices;
class Stage;
struct KeyCombo;

/// Macros in files: saves the current one, loads others into its place.
class FilesDesk {
    Q_DECLARE_TR_FUNCTIONS(FilesDesk)

  public:
    /// All outlive the desk.
    FilesDesk(MacroFiles& files, ScriptNotices& scriptNotices, Dialogs& dialogs, const Gate& gate,
              Stage& stage);

    /// Asks where to and saves the current macro, if there is one.
    void save();
    /// Asks which and loads it, and tells if it cannot be played.
    void load();
    /// Makes the file's text the current macro; true if it could be read. Otherwise the user is told and the
    /// current macro stays.
    bool loadFrom(const QString& path);
    /// Loads a file that was not asked for from within the program, and notifies the user, who plays it by
    /// that combination if it can be played. Not during a recording or while a question is open.
    void open(const QString& path, KeyCombo play);

  private:
    /// Whether the macro that has just been loaded from there cannot be played, which has been told.
    bool isBroken(const QString& path);

    MacroFiles& m_files;
    ScriptNotices& m_scriptNotices;
    Dialogs& m_dialogs;
    const Gate& m_gate;
    Stage& m_stage;
};
