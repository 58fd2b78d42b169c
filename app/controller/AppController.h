// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <boost/smart_ptr/shared_ptr.hpp>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "app/controller/Gate.h"
#include "app/controller/GatedDialogs.h"
#include "app/controller/ScriptQuestions.h"
#include "app/shortcuts/PreferencesModel.h"
#include "app/tray/MenuState.h"
#include "app/tray/StatusItem.h"
#include "app/tray/StatusMenu.h"
#include "engine/SharedController.h"
#include "platform/HotKeys.h"
#include "platform/Result.h"

class AboutPanel;
class MultiplePlayWindow;
class Panel;
class PreferencesPanel;
class QPushButton;
class QWidget;
class RecorderWindow;
class SplashWindow;
class WelcomePanel;
class Windows;
struct PreferenceValues;
struct Services;

/// The one controller: joins engine, settings and desktop with the menu and the windows, and is the only one
/// to know both sides. The engine reaches it from its construction on. Main thread only.
///
/// Actions take their sender and, but for runMacro() and checkForUpdates(), ignore it; where the program
/// calls one itself it passes null. Windows are built when first shown and kept. The source files are by
/// theme: AppController.cpp start-up and end, ...Menu.cpp, ...Overlays.cpp, ...Preferences.cpp,
/// ...MacroFiles.cpp,
/// ...Support.cpp.
class AppController : public QObject, public SharedController {
    Q_OBJECT

  public:
    /// All outlive the controller.
    AppController(Services& services, Windows& windows, StatusItem& item, Dialogs& dialogs);
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

    // Status item and menus

    void activateBusyStatusMenu();
    void activateStatusMenu();
    void addMacro(const boost::shared_ptr<Macro>& macro) override;
    void setMacroString(const std::string& text) override;
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
    /// Makes the file's text the current macro; true if it could be read. Otherwise the user is told and the
    /// current macro stays.
    bool loadInMacroFromFile(const QString& path);

    // Support

    void aboutKeyrill(QObject* sender);
    void getSupport(QObject* sender);
    void sendFeedback(QObject* sender);
    void reportABug(QObject* sender);
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

    // Scripts

    /// How scripts ask and tell.
    ScriptDialogs& scriptDialogs() { return m_scriptQuestions; }

    // Outlets; windows are null until first shown.

    StatusItem& statusItem;
    StatusImage statusImage = StatusImage::busy;
    /// Nothing shows it.
    QImage logoImage;
    StatusMenu statusMenu;
    PreferencesModel preferences;
    ShortcutModel& recordShortcutText = preferences.record;
    ShortcutModel& stopShortcutText = preferences.stop;
    ShortcutModel& playShortcutText = preferences.play;
    ShortcutModel& multiplePlayShortcutText = preferences.multiplePlay;
    ToggleModel& launchOnLoginButton = preferences.launchOnLogin;
    ToggleModel& checkForUpdatesOnLaunchButton = preferences.checkForUpdatesOnLaunch;
    RecorderWindow* recorderWindow() const { return m_recorderWindow.get(); }
    MultiplePlayWindow* multiplePlayWindow() const { return m_multiplePlayWindow.get(); }
    SplashWindow* splashWindow() const { return m_splashWindow.get(); }
    /// Nothing shows it yet.
    SplashWindow& builtSplashWindow();
    PreferencesPanel* preferencesWindow() const { return m_preferencesWindow.get(); }
    AboutPanel* aboutPanel() const { return m_aboutPanel.get(); }
    WelcomePanel* welcomePanel() const { return m_welcomePanel.get(); }
    /// Builds the preferences panel if need be; null in builds without the update check.
    QPushButton* checkForUpdatesNowButton();

    // Flags

    /// Leaves out the timer of runSplash(); nothing sets it.
    bool noSplash = false;
    /// The check at start-up has been made and its answer not been shown.
    bool checkForUpdateCompleted = false;
    /// That check found a newer version.
    bool updateAvailable = false;
    /// This is the first run: after the welcome panel come the preferences.
    bool runPreferencesOnLaunch = false;
    bool runCheckForUpdates = false;
    /// Fires runSplash(), once.
    QTimer timer{this};

  private:
    using Action = void (AppController::*)(QObject*);

    bool checkSystemVersion();
    bool checkAccess();
    void noteFirstRun();
    void watchScreenLock();
    void tellFaults();

    void connectMenu();
    void connectItem(QAction* item, Action action);
    /// An action that the user chose, wherever; nothing while the gate is shut.
    void perform(Action action, QObject* sender);
    void updateMenu();
    void updateStatusNotice();
    /// What the user should know of this session; empty for nothing.
    QString sessionHint() const;
    void followGate();

    MultiplePlayWindow& builtMultiplePlayWindow();
    PreferencesPanel& builtPreferencesWindow();
    WelcomePanel& builtWelcomePanel();
    AboutPanel& builtAboutPanel();
    /// Fades a panel in, in front of the windows of other programs.
    void presentPanel(Panel& panel);
    void dismissMultiplePlay();
    /// Waits until keys reach the application that the user was in; `hidden` is a window of ours, or null.
    void awaitFocusElsewhere(const QWidget* hidden);
    /// What hide() takes off the screen; with nulls.
    std::vector<QWidget*> ordinaryWindows() const;
    bool downloadsUpdateInstead();

    PreferenceValues preferenceValues() const;
    void emptyOthersEqualTo(const ShortcutModel& recorder);
    void noteHotKey(HotKeyId id, const HotKeyState& state);
    void updateNotices();
    /// Tells why something could not be saved; the same only once each time that the panel is opened.
    void tellSaveFailure(const AlertText& alert);

    QString playAdvice() const;
    void openPage(std::string_view url);
    /// Shows the answer of an update check as a sheet.
    void tellUpdateOnPreferences(bool available);

    Services& m_services;
    Windows& m_windows;
    Gate m_gate;
    GatedDialogs m_dialogs;
    ScriptQuestions m_scriptQuestions;
    SharedControllerScope m_shared;
    MenuFacts m_facts;
    std::unique_ptr<RecorderWindow> m_recorderWindow;
    std::unique_ptr<MultiplePlayWindow> m_multiplePlayWindow;
    std::unique_ptr<SplashWindow> m_splashWindow;
    std::unique_ptr<PreferencesPanel> m_preferencesWindow;
    std::unique_ptr<AboutPanel> m_aboutPanel;
    std::unique_ptr<WelcomePanel> m_welcomePanel;
    std::vector<QPointer<QWidget>> m_hidden;
    QString m_sessionHint;
    std::map<HotKeyId, std::string> m_refusedHotKeys;
    std::vector<AlertText> m_toldSaveFailures;
    QTimer m_refreshTimer{this};
    QTimer m_killTimer{this};
    /// Whether the session is one to work in: the menu follows the state from then on.
    bool m_isAwake = false;
    /// Whether the prompt is being opened from a menu, not by its hot key.
    bool m_openedFromMenu = false;
};
