// SPDX-License-Identifier: MIT
#include <QPushButton>
#include <cstring>

#include "app/controller/AppController.h"
#include "app/overlay/MultiplePlayWindow.h"
#include "app/overlay/RecorderWindow.h"
#include "app/tray/MacroMenuItem.h"
#include "core/MacroManager.h"
#include "engine/AppleScript.h"
#include "engine/EngineState.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "platform/ScriptingService.h"
#include "platform/Services.h"

void AppController::connectMenu() {
    connect(&statusMenu, &StatusMenu::shown, this, [this](bool open) { m_gate.setMenuOpen(open); });
    connectItem(statusMenu.recordMenuItem, &AppController::recordMacro);
    connectItem(statusMenu.stopMenuItem, &AppController::stopMacro);
    connectItem(statusMenu.saveDelayMenuItem, &AppController::saveDelayToNow);
    connectItem(statusMenu.playMenuItem, &AppController::playMacro);
    connectItem(statusMenu.multiplePlayMenuItem, &AppController::multiPlayMacro);
    connectItem(statusMenu.saveMacroMenuItem, &AppController::saveMacro);
    connectItem(statusMenu.loadMacroMenuItem, &AppController::loadMacro);
    connectItem(statusMenu.preferencesMenuItem, &AppController::showPreferences);
    connectItem(statusMenu.documentationMenuItem, &AppController::openDocumentation);
    connectItem(statusMenu.forumMenuItem, &AppController::openForum);
    connectItem(statusMenu.keyrillWebsiteMenuItem, &AppController::openKeyrillWebsite);
    connectItem(statusMenu.orlenWebsiteMenuItem, &AppController::openOrlenWebsite);
    connectItem(statusMenu.supportMenuItem, &AppController::getSupport);
    connectItem(statusMenu.feedbackMenuItem, &AppController::sendFeedback);
    connectItem(statusMenu.bugMenuItem, &AppController::reportABug);
    connectItem(statusMenu.aboutMenuItem, &AppController::aboutKeyrill);
    if (statusMenu.updateMenuItem != nullptr) {
        // As if the button had been pressed: whoever asks is to get an answer.
        connect(statusMenu.updateMenuItem, &QAction::triggered, this,
                [this] { perform(&AppController::checkForUpdates, checkForUpdatesNowButton()); });
    }
    connect(statusMenu.quitMenuItem, &QAction::triggered, this, &AppController::kill);
}

void AppController::connectItem(QAction* item, Action action) {
    connect(item, &QAction::triggered, this, [this, item, action] { perform(action, item); });
}

void AppController::perform(Action action, QObject* sender) {
    if (m_gate.isOpen()) (this->*action)(sender);
}

void AppController::activateBusyStatusMenu() {
    statusImage = StatusImage::busy;
    statusItem.show(statusMenu, statusImage);
}

void AppController::activateStatusMenu() {
    statusImage = StatusImage::normal;
    statusItem.setImage(statusImage);
}

void AppController::addMacro(const boost::shared_ptr<Macro>& macro) {
    auto* item = new MacroMenuItem(QString::fromStdString(macro->displayText()), statusMenu.historyMenu);
    item->setMacroId(macro->macroId());
    connectItem(item, &AppController::runMacro);
    const QList<QAction*> entries = statusMenu.historyMenu->actions();
    statusMenu.historyMenu->insertAction(entries.isEmpty() ? nullptr : entries.first(), item);
    m_facts.hasHistory = true;
    updateMenu();
}

void AppController::runMacro(QObject* sender) {
    if (std::strcmp(sender->metaObject()->className(), "MacroMenuItem") != 0) return;
    const boost::shared_ptr<Macro> macro =
        MacroManager::macro(static_cast<MacroMenuItem*>(sender)->macroId());
    engineState().currentMacro = macro;
    const std::string script = macro->script();
    updateMenu();
    awaitFocusElsewhere(nullptr);
    m_services.scripting.startPlayback();
    AppleScript::runAppleScript(script);
}

void AppController::recordMacro(QObject* /*sender*/) { toggleRecording(); }

void AppController::stopMacro(QObject* /*sender*/) { stopRecording(); }

void AppController::saveDelayToNow(QObject* /*sender*/) { ::saveDelayToNow(); }

void AppController::playMacro(QObject* /*sender*/) {
    awaitFocusElsewhere(nullptr);
    playTimes(1);
}

void AppController::multiPlayMacro(QObject* /*sender*/) {
    m_openedFromMenu = true;
    promptMultiplePlay();
    m_openedFromMenu = false;
}

void AppController::updateMenu() {
    m_facts.hasMacro = engineState().currentMacro != nullptr;
    const MenuState state = menuState(m_facts);
    statusMenu.apply(state);
    if (m_multiplePlayWindow) m_multiplePlayWindow->setPlays(state.promptPlays);
}

void AppController::followGate() {
    m_facts.gateShut = !m_gate.isOpen();
    m_facts.screenLocked = m_gate.isLocked();
    // An alert that ends the start-up leaves the menu as it is.
    if (m_isAwake) updateMenu();
    if (m_recorderWindow) m_recorderWindow->setVisible(menuState(m_facts).overlayVisible);
}
