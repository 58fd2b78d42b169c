// SPDX-License-Identifier: MIT
#include "app/controller/MenuDesk.h"

#include <utility>

#include "app/controller/Gate.h"
#include "app/tray/MacroMenuItem.h"
#include "engine/EngineState.h"
#include "library/RecordingHistory.h"

MenuDesk::MenuDesk(StatusItem& item, std::function<void(const MenuState&)> applied)
    : m_item(item), m_applied(std::move(applied)) {}

void MenuDesk::showBusy() {
    image = StatusImage::busy;
    m_item.show(menu, image);
}

void MenuDesk::showNormal() {
    image = StatusImage::normal;
    m_item.setImage(image);
}

void MenuDesk::recordingBegins() {
    m_facts.recording = true;
    update();
}

void MenuDesk::overlayIsShown() {
    m_facts.overlayShown = true;
    update();
}

void MenuDesk::recordingEnds() {
    m_facts.recording = false;
    m_facts.hasStopped = true;
    m_facts.overlayShown = false;
    update();
}

void MenuDesk::follow(const Gate& gate) {
    m_facts.gateShut = !gate.isOpen();
    m_facts.screenLocked = gate.isLocked();
}

MacroMenuItem* MenuDesk::addToHistory(const HistoryEntry& entry, std::size_t index) {
    auto* item = new MacroMenuItem(QString::fromStdString(entry.title), menu.historyMenu);
    item->setMacroId(entry.macroId);
    menu.historyMenu->insertAction(menu.historyMenu->actions().value(static_cast<qsizetype>(index)), item);
    m_facts.hasHistory = true;
    update();
    return item;
}

void MenuDesk::removeFromHistory(int macroId) {
    for (QAction* const action : menu.historyMenu->actions()) {
        auto* const item = qobject_cast<MacroMenuItem*>(action);
        if (item != nullptr && item->macroId() == macroId) delete item;
    }
    m_facts.hasHistory = !menu.historyMenu->isEmpty();
    update();
}

void MenuDesk::update() {
    m_facts.hasMacro = engineState().currentMacro != nullptr;
    menu.apply(state());
    m_applied(state());
}
