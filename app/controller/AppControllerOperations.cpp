// SPDX-License-Identifier: MIT
#include <QCoreApplication>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "app/controller/AppController.h"
#include "app/controller/BugReport.h"
#include "app/dialogs/AlertTexts.h"
#include "app/library/LibraryController.h"
#include "app/overlay/Fades.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/panels/PreferencesPanel.h"
#include "app/panels/WelcomePanel.h"
#include "app/tray/Actions.h"
#include "app/tray/MacroMenuItem.h"
#include "app/widgets/IsShown.h"
#include "core/MacroManager.h"
#include "engine/AppleScript.h"
#include "engine/EngineState.h"
#include "engine/HotKeyCenter.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "platform/KeyInjector.h"
#include "platform/ScriptingService.h"
#include "platform/Services.h"
#include "platform/SystemFacts.h"

// What the menu, the engine and the desktop may ask of the controller, in the header's order.

namespace {

/// What a menu item does.
struct MenuOperation {
    /// Of its row in menuRows.
    std::string_view name;
    void (*perform)(AppController& controller, QObject* item) = nullptr;
    bool alsoWhileTheGateIsShut = false;
};

template <AppController::Action action>
void send(AppController& controller, QObject* item) {
    (controller.*action)(item);
}

/// As if the button had been pressed: whoever asks is to get an answer.
void checkForUpdatesNow(AppController& controller, QObject* /*item*/) {
    controller.checkForUpdates(controller.checkForUpdatesNowButton());
}

void quit(AppController& controller, QObject* /*item*/) { controller.kill(); }

constexpr std::array menuOperations = {
    MenuOperation{"record", send<&AppController::recordMacro>},
    MenuOperation{"stop", send<&AppController::stopMacro>},
    MenuOperation{"saveDelay", send<&AppController::saveDelayToNow>},
    MenuOperation{"play", send<&AppController::playMacro>},
    MenuOperation{"multiplePlay", send<&AppController::multiPlayMacro>},
    MenuOperation{"saveMacro", send<&AppController::saveMacro>},
    MenuOperation{"loadMacro", send<&AppController::loadMacro>},
    MenuOperation{"macros", send<&AppController::showMacros>},
    MenuOperation{"preferences", send<&AppController::showPreferences>},
    MenuOperation{"documentation", send<&AppController::openDocumentation>},
    MenuOperation{"forum", send<&AppController::openForum>},
    MenuOperation{"keyrillWebsite", send<&AppController::openKeyrillWebsite>},
    MenuOperation{"orlenWebsite", send<&AppController::openOrlenWebsite>},
    MenuOperation{"support", send<&AppController::getSupport>},
    MenuOperation{"feedback", send<&AppController::sendFeedback>},
    MenuOperation{"bug", send<&AppController::reportABug>},
    MenuOperation{"status", send<&AppController::showStatus>},
    MenuOperation{"update", checkForUpdatesNow},
    MenuOperation{"about", send<&AppController::aboutKeyrill>},
    MenuOperation{.name = "quit", .perform = quit, .alsoWhileTheGateIsShut = true},
};

/// An item without an operation does not compile, nor one with two, nor an operation without an item.
consteval bool followMenuRows() {
    std::size_t found = 0;
    for (const MenuRow& row : menuRows) {
        if (row.kind != MenuItemKind::command) continue;
        const auto isItsOwn = [&row](const MenuOperation& operation) { return operation.name == row.name; };
        if (std::count_if(menuOperations.begin(), menuOperations.end(), isItsOwn) != 1) return false;
        ++found;
    }
    return found == menuOperations.size();
}
static_assert(followMenuRows());

const MenuOperation& operationOf(const ActionRow& action) {
    return *std::find_if(
        menuOperations.begin(), menuOperations.end(),
        [&action](const MenuOperation& operation) { return operation.name == action.menuItem; });
}

}  // namespace

// Start-up and end

// QCoreApplication::quit() would close each window first, and a window could refuse.
void AppController::kill() { QCoreApplication::exit(0); }

void AppController::refreshAppleScript() { m_services.scripting.run(""); }

void AppController::welcomePanelWillClose() {
    fadeOutPanel(m_welcomePanel.get());
    if (runPreferencesOnLaunch) showPreferences(nullptr);
}

void AppController::openMacroFile(const QString& path) {
    m_filesDesk.open(path, playShortcutText.keyCombo());
}

void AppController::showControlWindow() { statusItem.showWindow(); }

std::vector<std::string> AppController::registeredHotKeys() const {
    std::vector<std::string> names;
    for (const HotKeyRow& row : hotKeyRows()) {
        const HotKeyStatus status = m_services.hotKeys.state(row.id).status;
        if (status == HotKeyStatus::registered || status == HotKeyStatus::changed)
            names.emplace_back(row.name);
    }
    return names;
}

/// One that types is ended by who asks it, in each of its steps; these are those that do not.
bool AppController::endPlaybackThatAsksOrWaits() {
    const bool isAsking = m_scriptQuestions.isAsking();
    if (isAsking) m_services.keyInjector.stopPlayback();
    return m_askedPlays.takeBack() || isAsking;
}

MenuFacts AppController::factsForCallers() {
    m_menuDesk.update();
    MenuFacts facts = m_menuDesk.facts();
    facts.promptShown = isShown(multiplePlayWindow());
    facts.hotKeysOff = !engineState().hotKeysEnabled;
    return facts;
}

Result<> AppController::carryOut(const ActionRow& action) {
    if (action.endsPlayback && endPlaybackThatAsksOrWaits()) return {};
    const QString obstacle = obstacleTo(action, factsForCallers());
    if (!obstacle.isEmpty()) return Error{obstacle.toStdString(), ""};
    if (action.plays) return m_askedPlays.ask({.script = engineState().currentMacro->script()});
    operationOf(action).perform(*this, nullptr);
    return {};
}

// Status item and menus

void AppController::connectMenu() {
    connect(&statusMenu, &StatusMenu::shown, this,
            [this](bool open) { m_gate.setMenuOpen(open, static_cast<WindowId>(statusMenu.winId())); });
    for (const MenuOperation& operation : menuOperations) {
        QAction* const item = statusMenu.item(menuRowNamed(operation.name));
        if (item == nullptr) continue;
        connect(item, &QAction::triggered, this, [this, item, &operation] {
            if (m_gate.isOpen() || operation.alsoWhileTheGateIsShut) operation.perform(*this, item);
        });
    }
}

void AppController::perform(Action action, QObject* sender) {
    if (m_gate.isOpen()) (this->*action)(sender);
}

void AppController::activateBusyStatusMenu() { m_menuDesk.showBusy(); }

void AppController::activateStatusMenu() { m_menuDesk.showNormal(); }

void AppController::addMacro(const boost::shared_ptr<Macro>& macro) {
    m_library.history().add(*macro);
    m_macrosDesk.takeRecording(*macro);
}

void AppController::setMacroString(const std::string& text) {
    m_overlayDesk.setMacroString(text);
    m_recordHereDesk.setMacroString(text);
}

void AppController::currentMacroChanged() { m_menuDesk.update(); }

void AppController::playbackEnded() {
    m_lateClicks.notePlayed();
    m_scriptNotices.tellOfPlayback();
}

void AppController::runMacro(QObject* sender) {
    if (sender == nullptr || std::strcmp(sender->metaObject()->className(), "MacroMenuItem") != 0) return;
    const boost::shared_ptr<Macro> macro =
        MacroManager::macro(static_cast<MacroMenuItem*>(sender)->macroId());
    setCurrentMacro(macro);
    const std::string script = macro->script();
    m_stage.awaitFocusElsewhere(nullptr);
    m_services.scripting.startPlayback();
    AppleScript::runAppleScript(script);
    playbackEnded();
}

void AppController::recordMacro(QObject* /*sender*/) { toggleRecording(); }

void AppController::stopMacro(QObject* /*sender*/) { stopRecording(); }

void AppController::saveDelayToNow(QObject* /*sender*/) { ::saveDelayToNow(); }

void AppController::playMacro(QObject* /*sender*/) {
    m_stage.awaitFocusElsewhere(nullptr);
    playTimes(1);
}

void AppController::multiPlayMacro(QObject* /*sender*/) {
    m_overlayDesk.opensFromMenu = true;
    promptMultiplePlay();
    m_overlayDesk.opensFromMenu = false;
}

// Overlays, splash and fades

void AppController::showRecordingGui() {
    m_menuDesk.recordingBegins();
    if (m_updateDesk.offerFound()) {
        cancelRecording();
        return;
    }
    m_overlayDesk.showRecorder();
    m_menuDesk.overlayIsShown();
    restartLastEventTime();
}

void AppController::hideRecordingGui() {
    m_menuDesk.recordingEnds();
    m_overlayDesk.hideRecorder();
    m_recordHereDesk.end();
    m_macrosDesk.recordingEnded();
}

void AppController::cannotRecord(const Error& why) { m_dialogs.runAlert(alerts::cannotRecord(why)); }

void AppController::showMultiplePlayGui() {
    m_menuDesk.update();
    m_overlayDesk.showPrompt(m_menuDesk.state().promptPlays);
}

void AppController::doMultiplePlay(QObject* /*sender*/) {
    playTimes(m_overlayDesk.leaveToPlay());
    unhide();
}

void AppController::runSplash() {
    if (runCheckForUpdates) backgroundCheckForUpdates();
    activateStatusMenu();
    tellFaults();
}

void AppController::hideSplashScreen() { m_overlayDesk.hideSplash(); }

void AppController::fadeInPanel(QWidget* window, double alpha) { m_stage.fadeIn(*window, alpha); }

void AppController::fadeOutPanel(QWidget* window) { m_stage.fadeOut(*window); }

void AppController::animatePanelIn(QWidget* window, double alpha) { m_stage.animateIn(*window, alpha); }

void AppController::animatePanelOut(QWidget* window) { animateAlpha(*window, 0); }

void AppController::alphaZero(QWidget* window) { setAlpha(*window, 0); }

void AppController::hide() { m_stage.hide(); }

void AppController::unhide() { m_stage.unhide(); }

// Preferences

void AppController::syncPreferencesDefaults() { m_preferencesDesk.load(); }

void AppController::savePreferences(QObject* /*sender*/) { m_preferencesDesk.save(); }

void AppController::installRunAtLogin(bool enable) { m_preferencesDesk.installLoginItem(enable); }

void AppController::showPreferences(QObject* /*sender*/) { m_preferencesDesk.open(); }

void AppController::preferencesWillClose() { m_preferencesDesk.close(); }

void AppController::shortcutRecorderKeyComboDidChange(ShortcutModel* recorder) {
    m_preferencesDesk.takeShortcut(*recorder);
}

// Macro files

void AppController::saveMacro(QObject* /*sender*/) {
    if (!m_menuDesk.isOverlayShown()) m_filesDesk.save();
}

void AppController::loadMacro(QObject* /*sender*/) {
    if (!m_menuDesk.isOverlayShown()) m_filesDesk.load();
}

void AppController::showMacros(QObject* /*sender*/) { m_macrosDesk.show(); }

bool AppController::loadInMacroFromFile(const QString& path) { return m_filesDesk.loadFrom(path); }

// Support

void AppController::aboutKeyrill(QObject* /*sender*/) { m_helpDesk.showAbout(); }

void AppController::getSupport(QObject* /*sender*/) { m_helpDesk.askForSupport(); }

void AppController::sendFeedback(QObject* /*sender*/) { m_helpDesk.sendFeedback(); }

void AppController::reportABug(QObject* /*sender*/) { m_helpDesk.reportABug(); }

void AppController::showStatus(QObject* /*sender*/) { m_statusDesk.show(); }

void AppController::openOrlenWebsite(QObject* /*sender*/) { m_helpDesk.openMakersWebsite(); }

void AppController::openForum(QObject* /*sender*/) { m_helpDesk.openForum(); }

void AppController::openKeyrillWebsite(QObject* /*sender*/) { m_helpDesk.openProductPage(); }

void AppController::openDocumentation(QObject* /*sender*/) { m_helpDesk.openDocumentation(); }

void AppController::checkForUpdates(QObject* sender) {
    m_updateDesk.checkNow(m_preferencesDesk.shownPanel(),
                          m_preferencesDesk.isCheckForUpdatesNowButton(sender));
}

void AppController::updateCheckSheetDidEnd(AlertAnswer answer) { m_updateDesk.downloadIf(answer); }

void AppController::backgroundCheckForUpdates() {
    m_updateDesk.checkSilently();
    activateStatusMenu();
}

bool AppController::doCheckForUpdate() { return m_updateDesk.askForNewer(); }

void AppController::sendEmail(std::string_view address, std::string_view subject, std::string_view body) {
    m_helpDesk.sendEmail(address, subject, body);
}

std::string AppController::systemVersionString() const {
    return ::systemVersionString(m_services.systemFacts);
}

std::string AppController::machineType() const { return ::machineType(m_services.systemFacts); }

std::int32_t AppController::processorClockSpeed() const {
    return ::processorClockSpeed(m_services.systemFacts);
}

std::uint32_t AppController::countProcessors() const { return ::countProcessors(m_services.systemFacts); }
