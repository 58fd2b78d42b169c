// SPDX-License-Identifier: MIT
#include "app/controller/AppController.h"

#include <QCoreApplication>
#include <QPushButton>
#include <chrono>

#include "app/dialogs/AlertTexts.h"
#include "app/library/LibraryController.h"
#include "app/macros/MacrosWindow.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/SplashWindow.h"
#include "app/panels/AboutPanel.h"
#include "app/panels/PreferencesPanel.h"
#include "app/panels/RecordHerePanel.h"
#include "app/panels/StatusPanel.h"
#include "app/panels/WelcomePanel.h"
#include "app/shortcuts/ShortcutTitles.h"
#include "app/tray/MacroMenuItem.h"
#include "engine/EngineState.h"
#include "engine/HotKeyCenter.h"
#include "engine/KeyRecorder.h"
#include "platform/ErrorText.h"
#include "platform/EventMonitor.h"
#include "platform/Features.h"
#include "platform/Notifications.h"
#include "platform/ScreenLock.h"
#include "platform/ScriptingService.h"
#include "platform/Services.h"
#include "platform/SessionCheck.h"
#include "platform/SettingsStore.h"
#include "prefs/Settings.h"

namespace {

constexpr std::chrono::milliseconds splashDelay{500};
constexpr std::chrono::seconds refreshInterval{30};
/// What the documentation gets to be seen before the program goes.
constexpr std::chrono::seconds killDelay{1};

}  // namespace

AppController::AppController(Services& services, Windows& windows, StatusItem& item, Dialogs& dialogs,
                             LibraryController& library)
    : m_services(services),
      m_library(library),
      m_statusNotice(item),
      m_lateClicks(services.clock),
      m_gate(services.eventMonitor, [this] { followGate(); }),
      m_dialogs(dialogs, m_gate),
      m_scriptQuestions(m_dialogs, services.keyInjector, services.notifications),
      m_scriptNotices(services.scripting, services.notifications, m_statusNotice),
      m_shared(*this),
      m_stage(windows, [this] { return ordinaryWindows(); }),
      m_menuDesk(item, [this](const MenuState& state) { m_overlayDesk.setPromptPlays(state.promptPlays); }),
      m_overlayDesk(m_stage, services.clock, services.hotKeys, services.layers),
      m_updateDesk(services.updateService, services.workspace, m_dialogs),
      m_helpDesk(services.workspace, services.systemFacts, m_stage),
      m_statusDesk(m_stage),
      m_filesDesk(services.macroFiles, m_scriptNotices, m_dialogs, m_gate, m_stage),
      m_preferencesDesk(services.settings, services.loginItems, services.hotKeys, library, m_dialogs,
                        m_stage),
      m_consentDesk(services.settings, services.hotKeys, m_dialogs, m_preferencesDesk.model.writeHotKeys),
      m_accessDesk(services.eventMonitor, services.notifications, m_dialogs, m_overlayDesk),
      m_recordHereDesk(services.eventMonitor, services.hotKeys, m_preferencesDesk.model.stop, m_stage),
      m_macrosDesk({library, services.macroFiles, services.keyboardLayout, m_gate, m_stage,
                    DraftFiles(library.draftFolder())}),
      m_askedPlays([this] { return factsForCallers(); }, m_stage),
      statusItem(item) {
    timer.setSingleShot(true);
    m_killTimer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &AppController::runSplash);
    connect(&m_killTimer, &QTimer::timeout, this, &AppController::kill);
    connect(&m_refreshTimer, &QTimer::timeout, this, &AppController::refreshAppleScript);
    connectDesks();
    connectMenu();
}

AppController::~AppController() {
    // A sheet that is still open is answered when its panel goes, and answers need the whole controller.
    m_preferencesDesk.removePanel();
}

void AppController::connectDesks() {
    connect(&m_preferencesDesk, &PreferencesDesk::willClose, this, &AppController::preferencesWillClose);
    connect(&m_preferencesDesk, &PreferencesDesk::checkForUpdatesNowPressed, this,
            [this] { perform(&AppController::checkForUpdates, checkForUpdatesNowButton()); });
    for (ShortcutModel& shortcut : preferences.shortcuts) {
        connect(&shortcut, &ShortcutModel::keyComboDidChange, this,
                [this, &shortcut] { shortcutRecorderKeyComboDidChange(&shortcut); });
    }
    connect(&m_library, &LibraryController::faultUnshown, this,
            [this](const QString& fault) { m_statusNotice.setFault(fault); });
    connect(&m_library, &LibraryController::historyGrown, this, [this](std::size_t index) {
        MacroMenuItem* const item = m_menuDesk.addToHistory(m_library.history().entries().at(index), index);
        connect(item, &QAction::triggered, this, [this, item] { perform(&AppController::runMacro, item); });
    });
    connect(&m_library, &LibraryController::historyShrunk, this,
            [this](int macroId) { m_menuDesk.removeFromHistory(macroId); });
    connect(&m_accessDesk, &AccessDesk::refused, &m_recordHereDesk, &RecordHereDesk::begin);
    connect(&m_recordHereDesk, &RecordHereDesk::helpWanted, this, [this] { openDocumentation(nullptr); });
    connect(&m_overlayDesk, &OverlayDesk::promptConfirmed, this,
            [this] { perform(&AppController::doMultiplePlay, multiplePlayWindow()); });
}

// What observes the closing of panels is connected where they are built.
void AppController::awakeFromNib() {
    if (!checkSystemVersion()) return kill();
    m_services.hotKeys.observe([this](HotKeyId id, const HotKeyState& state) { noteHotKey(id, state); });
    m_services.eventMonitor.observeHold([this](bool held) { m_overlayDesk.setKeysHeldBack(held); });
    installHotKeyHandlers();
    if (!checkAccess()) return;
    m_isAwake = true;
    m_statusNotice.setHint(sessionHint());
    m_menuDesk.update();
    installKeyRecorder();
    activateBusyStatusMenu();
    syncPreferencesDefaults();
    runPreferencesOnLaunch = false;
    runCheckForUpdates = features::updateCheck && isStoredOn(m_services.settings, "checkForUpdatesOnLaunch");
    noteFirstRun();
    if (!noSplash) timer.start(splashDelay);
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        engineState().hotKeyTitles[shortcutRows[i].id] = shortcutTitles(i).command.toStdString();
    }
    registerHotKeys();
    m_refreshTimer.start(refreshInterval);
    watchScreenLock();
    if (runPreferencesOnLaunch) m_stage.present(builtWelcomePanel());
    // What went wrong with the settings so far, once the start-up is through.
    QTimer::singleShot(0, this, &AppController::tellFaults);
    QTimer::singleShot(0, this, [this] { m_consentDesk.ask(); });
    tellShortcoming();
    emit started();
}

bool AppController::checkSystemVersion() {
    const Result<> version = m_services.sessionCheck.version();
    if (!version) m_dialogs.runAlert(alerts::sessionTooOld(version.error()));
    return static_cast<bool>(version);
}

bool AppController::checkAccess() {
    const Result<> access = m_services.sessionCheck.access();
    if (access) return true;
    if (m_dialogs.runAlert(alerts::noAccess(access.error())) == AlertAnswer::defaultButton) {
        openDocumentation(nullptr);
        m_killTimer.start(killDelay);
    } else {
        kill();
    }
    return false;
}

void AppController::noteFirstRun() {
    if (isStoredOn(m_services.settings, "notFirstRun")) return;
    m_services.settings.setBool("notFirstRun", true);
    runPreferencesOnLaunch = true;
}

void AppController::watchScreenLock() {
    m_services.screenLock.observe([this](bool locked) { m_gate.setLocked(locked); });
    m_gate.setLocked(m_services.screenLock.isLocked());
}

void AppController::tellFaults() {
    while (const std::optional<Error> fault = m_services.settings.takeFault()) {
        m_dialogs.runAlert(alerts::settingsFault(*fault));
    }
}

void AppController::tellShortcoming() {
    const std::optional<Error> shortcoming = m_services.eventMonitor.shortcoming();
    if (!shortcoming) return;
    m_services.notifications.post("Keyrill", inOneParagraph(*shortcoming));
}

QString AppController::sessionHint() const {
    if (m_services.sessionCheck.capabilities().recording.lack != Lack::nativeWindows) return {};
    return tr(
        "In this session Keyrill sees and reaches only the windows of X11 programs. The manual says more "
        "under \"Configuration\".");
}

WelcomePanel& AppController::builtWelcomePanel() {
    if (!m_welcomePanel) {
        m_welcomePanel = std::make_unique<WelcomePanel>(preferences);
        m_welcomePanel->setHint(m_statusNotice.hint());
        connect(m_welcomePanel.get(), &Panel::willClose, this, &AppController::welcomePanelWillClose);
    }
    return *m_welcomePanel;
}

void AppController::followGate() {
    m_menuDesk.follow(m_gate);
    // An alert that ends the start-up leaves the menu as it is.
    if (m_isAwake) m_menuDesk.update();
    m_overlayDesk.setRecorderVisible(m_menuDesk.state().overlayVisible);
}

void AppController::noteHotKey(HotKeyId id, const HotKeyState& state) {
    m_statusNotice.noteHotKey(id, state);
    m_preferencesDesk.updateNotices();
    emit hotKeysChanged();
}

std::vector<QWidget*> AppController::ordinaryWindows() const {
    return {multiplePlayWindow(), preferencesWindow(), aboutPanel(),   statusPanel(),      welcomePanel(),
            recordHerePanel(),    macrosWindow(),      splashWindow(), statusItem.window()};
}
