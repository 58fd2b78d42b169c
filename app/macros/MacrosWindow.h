// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "app/macros/MacroListItem.h"
#include "app/widgets/Panel.h"

class KeyboardLayout;
class MacroEditor;
class MacroListModel;
class MacroSettingsRow;
class NoticeLine;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QListView;
class QMenu;
class QPushButton;

/// The macros that the user keeps: on the left their names, to search; on the right the chosen one, to read,
/// change and play. It shows what it is told and asks for everything else; a name that was typed is the
/// macro's once the list says so.
///
/// | state    | left for | by                                                                       |
/// | editing  | counting | countDown()                                                              |
/// | counting | editing  | Escape, its button, the end of the count, which asks for the play        |
class MacrosWindow : public Panel {
    Q_OBJECT

  public:
    /// The layout outlives the window.
    explicit MacrosWindow(const KeyboardLayout& layout);
    ~MacrosWindow() override;
    MacrosWindow(const MacrosWindow&) = delete;
    MacrosWindow& operator=(const MacrosWindow&) = delete;

    /// All macros, sorted. The chosen one stays so if it is among them.
    void setItems(std::vector<MacroListItem> items);
    /// Whether it is not known yet what macros there are.
    void setReading(bool isReading);
    MacroListModel& list() { return *m_model; }
    /// Chooses a macro, which is told as the user's own choice is; empty for none.
    void choose(const std::string& path);
    /// Chooses the macro below the chosen one; of the last the one above, of the only one none.
    void chooseNeighbour();
    /// Begins to type another name for it.
    void beginRename(const std::string& path);
    /// Empty for none.
    const std::string& chosen() const { return m_chosen; }
    /// The choice has another name, and nothing else is another.
    void noteRenamed(const std::string& path) { m_chosen = path; }

    /// The text of the chosen macro: see MacroEditor::showMacro().
    void showMacro(const std::string& saved, const std::string& text);
    /// The chosen macro cannot be read.
    void showFault(const QString& why);
    MacroEditor& editor() { return *m_editor; }
    /// Of the chosen macro.
    MacroSettingsRow& settings() { return *m_settings; }

    /// What the history holds.
    struct Recording {
        int macroId = 0;
        QString title;
        QDateTime recordedAt;
    };
    /// Those that can be kept, or forgotten, as they are when the user asks for them: the latest first.
    void setRecordings(std::function<std::vector<Recording>()> recordings);
    void setHasRecordings(bool hasRecordings);

    /// A line at the lower edge until the next; `action` is the title of its button, empty for none.
    void tell(const QString& text, const QString& action = {});
    /// What went wrong; `action` as before.
    void warn(const QString& text, const QString& action = {});
    /// What went wrong goes wrong no more; what was told otherwise stays.
    void endWarning();
    /// The same where it is one of these texts.
    void endWarning(const QStringList& texts);

    /// Plays a moment later, unless the user ends it.
    void countDown();
    bool isCounting() const { return m_count > 0; }

  signals:
    /// Another macro, or none, is to be shown.
    void chosenChanged(const std::string& path);
    void textEdited();
    void saveWanted();
    /// After the count.
    void playWanted();
    /// The button, before it.
    void playPressed();
    void recordWanted();
    /// Of the history.
    void keepWanted(int macroId);
    void forgetWanted(int macroId);
    void forgetAllWanted();
    /// Keys for KeysView::insertLines().
    void keysWanted();
    void duplicateWanted(const std::string& path);
    void renameWanted(const std::string& path, const QString& name);
    void deleteWanted(const std::string& path);
    /// What was deleted last is to come back: by the button of what was told, or by Ctrl+Z where nobody is
    /// writing.
    void undoWanted();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* makeList();
    QPushButton* makeKeepButton();
    void fillKeepMenu();
    QWidget* makeEditor();
    QLayout* makeButtons();
    QWidget* makeCount();
    void makeShortcuts();
    /// Of what the search has found.
    void goToFirst();
    void followSelection();
    void restoreSelection();
    void updateButtons();
    void setNotice(const QString& text, const QString& action, bool isWarning);
    void count();
    void endCount();

    MacroListModel* m_model;
    QLineEdit* m_search = nullptr;
    QListView* m_list = nullptr;
    QLabel* m_empty = nullptr;
    QPushButton* m_keep = nullptr;
    QMenu* m_keepMenu = nullptr;
    QMenu* m_forgetMenu = nullptr;
    std::function<std::vector<Recording>()> m_recordings;
    MacroEditor* m_editor = nullptr;
    MacroSettingsRow* m_settings = nullptr;
    NoticeLine* m_warning = nullptr;
    QLabel* m_told = nullptr;
    QPushButton* m_action = nullptr;
    QWidget* m_controls = nullptr;
    QWidget* m_counter = nullptr;
    QLabel* m_countText = nullptr;
    QPushButton* m_play = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_duplicate = nullptr;
    QPushButton* m_rename = nullptr;
    QPushButton* m_delete = nullptr;
    QTimer m_countTimer{this};
    int m_count = 0;
    std::string m_chosen;
    bool m_hasText = false;
    bool m_isRestoring = false;
};
