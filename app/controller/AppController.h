// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>
#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/controller/AccessDesk.h"
#include "app/controller/AskedPlays.h"
#include "app/controller/ConsentDesk.h"
#include "app/controller/FilesDesk.h"
#include "app/controller/Gate.h"
#include "app/controller/GatedDialogs.h"
#include "app/controller/HelpDesk.h"
#include "app/controller/LateClicks.h"
#include "app/controller/MacrosDesk.h"
#include "app/controller/MenuDesk.h"
#include "app/controller/OverlayDesk.h"
#include "app/controller/PreferencesDesk.h"
#include "app/controller/RecordHereDesk.h"
#include "app/controller/ScriptNotices.h"
#include "app/controller/ScriptQuestions.h"
#include "app/controller/Stage.h"
#include "app/controller/StatusDesk.h"
#include "app/controller/StatusNotice.h"
#include "app/controller/UpdateDesk.h"
#include "engine/SharedController.h"
#include "platform/HotKeys.h"
#include "platform/Result.h"

class LibraryController;
class WelcomePanel;
class Windows;
struct ActionRow;
struct Services;

/// The one controller: joins engine, settings and desktop with the menu and the windows, and is the only one
/// to know both sides. The engine reaches it from its construction on. Main thread only.
///
/// What there is to do and to know of one theme lies on a desk; the controller passes its operations on, and
/// does itself what takes several desks. No desk knows another.
///
/// Actions take their sender and, but for runMacro() and checkForUpdates(), ignore it; where the program
/// calls one itself it passes null. Windows are built when first shown and kept.
class AppController : public QObject, public SharedController {
    Q_OBJECT

  public:
    using Action = void (AppController::*)(QObject*);

    /// All outlive the controller.
    AppController(Services& services, Windows& windows, StatusItem& item, Dialogs& dialogs,
                  LibraryController& library);
    ~AppController() override;

    // Start-up and end

    /// The whole start-up. To be called from within the event loop, so that what ends the program really ends
    /// it.
    void awakeFromNib();
    /// Ends the event loop.
    void kill();
    /// Runs an empty script, so that the scripting service is ready when it is needed.
    void refreshAppleScript();
    void welcomePanelWillClose();
    /// Loads a macro file that was not asked for from within the program. It is never played.
    void openMacroFile(const QString& path);
    /// Somebody has started the program once more: shows where it is.
    void showControlWindow();
    /// Does what somebody asks for from outside of the program. A play begins when the event loop runs next,
    /// so that whoever asks is answered first; a stop takes one back that has not begun. An error says why
    /// nothing is done.
    Result<> carryOut(const ActionRow& action);
    /// The same for a play of something else than the current macro.
    AskedPlays& askedPlays() { return m_askedPlays; }

    // Status item and menus

    void activateBusyStatusMenu();
    void activateStatusMenu();
    void addMacro(const boost::shared_ptr<Macro>& macro) override;
    void setMacroString(const std::string& text) override;
    void currentMacroChanged() override;
    void playbackEnded() override;
    /// Makes the macro of a MacroMenuItem the current one and plays it; other senders are ignored.
    void runMacro(QObject* sender);
    void recordMacro(QObject* sender);
    void stopMacro(QObject* sender);
    void saveDelayToNow(QObject* sender);
    void playMacro(QObject* sender);
    void multiPlayMacro(QObject* sender);

    // Overlays, splash and fades

    void showRecordingGui() override;
    void hideRecordingGui() override;
    void cannotRecord(const Error& why) override;
    void showMultiplePlayGui() override;
    void doMultiplePlay(QObject* sender);
    void runSplash();
    void hideSplashScreen();
    void fadeInPanel(QWidget* window, double alpha);
    void fadeOutPanel(QWidget* window);
    void animatePanelIn(QWidget* window, double alpha);
    void animatePanelOut(QWidget* window);
    void alphaZero(QWidget* window);
    /// Takes the program's ordinary windows off the screen and remembers which; the overlay stays.
    void hide();
    /// Brings them back, without taking the focus.
    void unhide();

    // Preferences

    void syncPreferencesDefaults();
    void savePreferences(QObject* sender);
    void installRunAtLogin(bool enable);
    void showPreferences(QObject* sender);
    void preferencesWillClose();
    /// The user has changed the combination of one of the shortcuts.
    void shortcutRecorderKeyComboDidChange(ShortcutModel* recorder);

    // Macro files

    void saveMacro(QObject* sender);
    void loadMacro(QObject* sender);
    void showMacros(QObject* sender);
    void chooseMacro(const std::string& path) { m_macrosDesk.choose(path); }
    /// Makes the file's text the current macro; true if it could be read. Otherwise the user is told and the
    /// current macro stays.
    bool loadInMacroFromFile(const QString& path);

    // Support

    void aboutKeyrill(QObject* sender);
    void getSupport(QObject* sender);
    void sendFeedback(QObject* sender);
    void reportABug(QObject* sender);
    void showStatus(QObject* sender);
    void openOrlenWebsite(QObject* sender);
    void openForum(QObject* sender);
    void openKeyrillWebsite(QObject* sender);
    void openDocumentation(QObject* sender);
    /// Always shows that there is a newer version; that there is none only to checkForUpdatesNowButton().
    void checkForUpdates(QObject* sender);
    void updateCheckSheetDidEnd(AlertAnswer answer);
    void backgroundCheckForUpdates();
    bool doCheckForUpdate();
    void sendEmail(std::string_view address, std::string_view subject, std::string_view body);
    std::string systemVersionString() const;
    std::string machineType() const;
    std::int32_t processorClockSpeed() const;
    std::uint32_t countProcessors() const;

    /// The names in the settings of those hot keys that the program has.
    std::vector<std::string> registeredHotKeys() const;

    // Scripts

    /// How scripts ask and tell.
    ScriptDialogs& scriptDialogs() { return m_scriptQuestions; }

  signals:
    /// The start-up is through, and the session is one to work in: from now on commands can be given.
    void started();
    /// registeredHotKeys() may have become others.
    void hotKeysChanged();

  private:
    Services& m_services;
    LibraryController& m_library;
    StatusNotice m_statusNotice;
    LateClicks m_lateClicks;
    Gate m_gate;
    GatedDialogs m_dialogs;
    ScriptQuestions m_scriptQuestions;
    ScriptNotices m_scriptNotices;
    SharedControllerScope m_shared;
    Stage m_stage;
    MenuDesk m_menuDesk;
    OverlayDesk m_overlayDesk;
    UpdateDesk m_updateDesk;
    HelpDesk m_helpDesk;
    StatusDesk m_statusDesk;
    FilesDesk m_filesDesk;
    PreferencesDesk m_preferencesDesk;
    ConsentDesk m_consentDesk;
    AccessDesk m_accessDesk;
    RecordHereDesk m_recordHereDesk;
    MacrosDesk m_macrosDesk;
    AskedPlays m_askedPlays;
    std::unique_ptr<WelcomePanel> m_welcomePanel;

  public:
    // Outlets; windows are null until first shown.

    StatusItem& statusItem;
    StatusImage& statusImage = m_menuDesk.image;
    /// Nothing shows it.
    QImage logoImage;
    StatusMenu& statusMenu = m_menuDesk.menu;
    PreferencesModel& preferences = m_preferencesDesk.model;
    ShortcutModel& recordShortcutText = preferences.record;
    ShortcutModel& stopShortcutText = preferences.stop;
    ShortcutModel& playShortcutText = preferences.play;
    ShortcutModel& multiplePlayShortcutText = preferences.multiplePlay;
    ToggleModel& launchOnLoginButton = preferences.launchOnLogin;
    ToggleModel& checkForUpdatesOnLaunchButton = preferences.checkForUpdatesOnLaunch;
    RecorderWindow* recorderWindow() const { return m_overlayDesk.recorder(); }
    MultiplePlayWindow* multiplePlayWindow() const { return m_overlayDesk.prompt(); }
    SplashWindow* splashWindow() const { return m_overlayDesk.splash(); }
    /// Nothing shows it yet.
    SplashWindow& builtSplashWindow() { return m_overlayDesk.builtSplash(); }
    PreferencesPanel* preferencesWindow() const { return m_preferencesDesk.panel(); }
    AboutPanel* aboutPanel() const { return m_helpDesk.aboutPanel(); }
    StatusDesk& statusDesk() { return m_statusDesk; }
    HelpDesk& helpDesk() { return m_helpDesk; }
    StatusPanel* statusPanel() const { return m_statusDesk.panel(); }
    RecordHerePanel* recordHerePanel() const { return m_recordHereDesk.panel(); }
    MacrosWindow* macrosWindow() const { return m_macrosDesk.window(); }
    WelcomePanel* welcomePanel() const { return m_welcomePanel.get(); }
    /// Builds the preferences panel if need be; not shown in builds without the update check.
    QPushButton* checkForUpdatesNowButton() { return m_preferencesDesk.checkForUpdatesNowButton(); }

    // Flags

    /// Leaves out the timer of runSplash(); nothing sets it.
    bool noSplash = false;
    /// The check at start-up has been made and its answer not been shown.
    bool& checkForUpdateCompleted = m_updateDesk.hasChecked;
    /// That check found a newer version.
    bool& updateAvailable = m_updateDesk.hasFound;
    /// This is the first run: after the welcome panel come the preferences.
    bool runPreferencesOnLaunch = false;
    bool& runCheckForUpdates = m_updateDesk.checksAtStartUp;
    /// Fires runSplash(), once.
    QTimer timer{this};

  private:
    // Start-up

    void connectDesks();
    void connectMenu();
    bool checkSystemVersion();
    bool checkAccess();
    void noteFirstRun();
    void watchScreenLock();
    void tellFaults();
    /// Once at the start, what this desktop lacks.
    void tellShortcoming();
    /// What the user should know of this session; empty for nothing.
    QString sessionHint() const;
    WelcomePanel& builtWelcomePanel();

    bool endPlaybackThatAsksOrWaits();
    /// With what others than the user have to wait for.
    MenuFacts factsForCallers();

    /// An action that the user chose, wherever; nothing while the gate is shut.
    void perform(Action action, QObject* sender);
    void followGate();
    void noteHotKey(HotKeyId id, const HotKeyState& state);
    /// What hide() takes off the screen; with nulls.
    std::vector<QWidget*> ordinaryWindows() const;

    QTimer m_refreshTimer{this};
    QTimer m_killTimer{this};
    /// Whether the session is one to work in: the menu follows the state from then on.
    bool m_isAwake = false;
};
