// SPDX-License-Identifier: MIT
#include "app/controller/AppController.h"

#include <QCoreApplication>
#include <chrono>

#include "app/dialogs/AlertTexts.h"
#include "app/overlay/Alphas.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/RecorderWindow.h"
#include "app/overlay/SplashWindow.h"
#include "app/panels/AboutPanel.h"
#include "app/panels/PreferencesPanel.h"
#include "app/panels/WelcomePanel.h"
#include "engine/HotKeyCenter.h"
#include "engine/KeyRecorder.h"
#include "platform/Features.h"
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

AppController::AppController(Services& services, Windows& windows, StatusItem& item, Dialogs& dialogs)
    : statusItem(item),
      m_services(services),
      m_windows(windows),
      m_gate(services.eventMonitor, [this] { followGate(); }),
      m_dialogs(dialogs, m_gate),
      m_scriptQuestions(m_dialogs, services.keyInjector, services.notifications),
      m_shared(*this) {
    preferences.offersUpdateCheck = features::updateCheck;
    timer.setSingleShot(true);
    m_killTimer.setSingleShot(true);
    connect(&timer, &QTimer::timeout, this, &AppController::runSplash);
    connect(&m_killTimer, &QTimer::timeout, this, &AppController::kill);
    connect(&m_refreshTimer, &QTimer::timeout, this, &AppController::refreshAppleScript);
    for (ShortcutModel& shortcut : preferences.shortcuts) {
        connect(&shortcut, &ShortcutModel::keyComboDidChange, this,
                [this, &shortcut] { shortcutRecorderKeyComboDidChange(&shortcut); });
    }
    connectMenu();
}

AppController::~AppController() {
    // A sheet that is still open is answered when its panel goes, and answers need the whole controller.
    m_preferencesWindow.reset();
}

// What observes the closing of panels is connected where they are built.
void AppController::awakeFromNib() {
    if (!checkSystemVersion()) return kill();
    m_services.hotKeys.observe([this](HotKeyId id, const HotKeyState& state) { noteHotKey(id, state); });
    installHotKeyHandlers();
    if (!checkAccess()) return;
    m_isAwake = true;
    m_sessionHint = sessionHint();
    updateStatusNotice();
    updateMenu();
    installKeyRecorder();
    activateBusyStatusMenu();
    syncPreferencesDefaults();
    runPreferencesOnLaunch = false;
    runCheckForUpdates = features::updateCheck && isStoredOn(m_services.settings, "checkForUpdatesOnLaunch");
    noteFirstRun();
    if (!noSplash) timer.start(splashDelay);
    registerHotKeys();
    m_refreshTimer.start(refreshInterval);
    watchScreenLock();
    if (runPreferencesOnLaunch) fadeInPanel(&builtWelcomePanel(), panelAlpha);
    // What went wrong with the settings so far, once the start-up is through.
    QTimer::singleShot(0, this, &AppController::tellFaults);
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

QString AppController::sessionHint() const {
    if (!m_services.sessionCheck.seesOnlySomeWindows()) return {};
    return tr(
        "In this session Keyrill sees and reaches only the windows of X11 programs. The manual says more "
        "under \"Configuration\".");
}

// QCoreApplication::quit() would close each window first, and a window could refuse.
void AppController::kill() { QCoreApplication::exit(0); }

void AppController::refreshAppleScript() { m_services.scripting.run(""); }

WelcomePanel& AppController::builtWelcomePanel() {
    if (!m_welcomePanel) {
        m_welcomePanel = std::make_unique<WelcomePanel>(preferences);
        m_welcomePanel->setHint(m_sessionHint);
        connect(m_welcomePanel.get(), &Panel::willClose, this, &AppController::welcomePanelWillClose);
    }
    return *m_welcomePanel;
}

void AppController::welcomePanelWillClose() {
    fadeOutPanel(m_welcomePanel.get());
    if (runPreferencesOnLaunch) showPreferences(nullptr);
}

void AppController::showControlWindow() { statusItem.showWindow(); }
