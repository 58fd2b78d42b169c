// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

class Dialogs;
class Gate;
class MacroFiles;
class Notifications;
class Stage;
struct KeyCombo;

/// Macros in files: saves the current one, loads others into its place.
class FilesDesk {
    Q_DECLARE_TR_FUNCTIONS(FilesDesk)

  public:
    /// All outlive the desk.
    FilesDesk(MacroFiles& files, Notifications& notifications, Dialogs& dialogs, const Gate& gate,
              Stage& stage);

    /// Asks where to and saves the current macro, if there is one.
    void save();
    /// Asks which and loads it.
    void load();
    /// Makes the file's text the current macro; true if it could be read. Otherwise the user is told and the
    /// current macro stays.
    bool loadFrom(const QString& path);
    /// Loads a file that was not asked for from within the program, and notifies the user, who plays it by
    /// that combination. Not during a recording or while a question is open.
    void open(const QString& path, KeyCombo play);

  private:
    void post(const QString& title, const QString& text);

    MacroFiles& m_files;
    Notifications& m_notifications;
    Dialogs& m_dialogs;
    const Gate& m_gate;
    Stage& m_stage;
};
