// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <deque>
#include <memory>
#include <vector>

#include "app/dialogs/Dialogs.h"
#include "app/shortcuts/PreferencesModel.h"

class HotKeys;
class LibraryController;
class LoginItems;
class PreferencesPanel;
class QPushButton;
class SettingsStore;
class Stage;
struct PreferenceValues;

/// The preferences: takes them from the store, shows them in their panel, keeps what the user changes there
/// and registers the hot keys anew. While the panel is open hot keys do nothing.
class PreferencesDesk : public QObject {
    Q_OBJECT

  public:
    /// All outlive the desk.
    PreferencesDesk(SettingsStore& store, LoginItems& loginItems, HotKeys& hotKeys,
                    LibraryController& library, Dialogs& dialogs, Stage& stage);
    ~PreferencesDesk() override;

    PreferencesModel model;

    /// Takes what is stored into the preference table and the model.
    void load();
    /// Stores the model, follows it with what recordings keep and the login item, registers the hot keys. Why
    /// something could not be saved is told after the current event, one cause after the other, the same only
    /// once each time that the panel is opened.
    void save();
    void installLoginItem(bool enable);

    void open();
    /// The panel is about to close.
    void close();
    /// The user has changed a combination; nothing while the panel is not shown.
    void takeShortcut(ShortcutModel& changed);
    /// Says beside each field what the user should know of its shortcut.
    void updateNotices();

    /// Null until first asked for by open() or checkForUpdatesNowButton().
    PreferencesPanel* panel() const { return m_panel.get(); }
    /// Null while it is not shown.
    PreferencesPanel* shownPanel() const;
    /// Builds the panel if need be.
    QPushButton* checkForUpdatesNowButton();
    bool isCheckForUpdatesNowButton(const QObject* sender) const;
    void removePanel();

  signals:
    void willClose();
    void checkForUpdatesNowPressed();

  private:
    PreferencesPanel& builtPanel();
    PreferenceValues values() const;
    bool isConsentToBeStored() const;
    /// The next recording keeps what the model says, and is kept as it says.
    void applyRecording() const;
    void emptyOthersEqualTo(const ShortcutModel& changed);
    /// Of a box that is ticked while the panel is shown, whatever has become of the entry elsewhere.
    void noteLoginTick();
    void tellSaveFailure(const AlertText& alert);
    void tellSaveFailures();

    SettingsStore& m_store;
    LoginItems& m_loginItems;
    HotKeys& m_hotKeys;
    LibraryController& m_library;
    Dialogs& m_dialogs;
    Stage& m_stage;
    std::unique_ptr<PreferencesPanel> m_panel;
    bool m_loginIsTicked = false;
    std::vector<AlertText> m_toldSaveFailures;
    std::deque<AlertText> m_untoldSaveFailures;
    bool m_isTelling = false;
};
