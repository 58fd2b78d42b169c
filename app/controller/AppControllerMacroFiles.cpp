// SPDX-License-Identifier: MIT
#include <QDir>
#include <QFileInfo>

#include "app/controller/AppController.h"
#include "app/controller/TildeExpansion.h"
#include "app/dialogs/AlertTexts.h"
#include "app/shortcuts/CombinationText.h"
#include "core/MacroManager.h"
#include "engine/EngineState.h"
#include "platform/MacroFiles.h"
#include "platform/Notifications.h"
#include "platform/Services.h"

void AppController::saveMacro(QObject* /*sender*/) {
    if (!engineState().currentMacro || m_facts.overlayShown) return;
    unhide();
    const QString folder = QString::fromStdString(m_services.macroFiles.prepareFolder());
    const QString path = withTildeExpanded(m_dialogs.runSavePanel(folder), QDir::homePath());
    if (path.isEmpty() || !engineState().currentMacro) return;
    const std::string script = engineState().currentMacro->script();
    const Result<> written = m_services.macroFiles.write(path.toStdString(), script);
    if (!written) m_dialogs.runAlert(alerts::macroNotSaved(path, written.error()));
}

void AppController::loadMacro(QObject* /*sender*/) {
    if (m_facts.overlayShown) return;
    unhide();
    const QString folder = QString::fromStdString(m_services.macroFiles.prepareFolder());
    const QString path = withTildeExpanded(m_dialogs.runOpenPanel(folder), QDir::homePath());
    if (!path.isEmpty()) loadInMacroFromFile(path);
}

bool AppController::loadInMacroFromFile(const QString& path) {
    const Result<std::string> text = m_services.macroFiles.read(path.toStdString());
    if (!text) {
        m_dialogs.runAlert(alerts::macroNotLoaded(path, text.error()));
        return false;
    }
    engineState().currentMacro = MacroManager::createMacro();
    engineState().currentMacro->setScript(text.value());
    updateMenu();
    return true;
}

void AppController::openMacroFile(const QString& path) {
    const QString name = QFileInfo(path).fileName();
    const auto post = [this](const QString& title, const QString& text) {
        m_services.notifications.post(title.toStdString(), text.toStdString());
    };
    if (engineState().recording) {
        post(tr("\"%1\" was not loaded").arg(name), tr("A macro is being recorded. Stop recording first."));
    } else if (!m_gate.isOpen()) {
        post(tr("\"%1\" was not loaded").arg(name), tr("Answer Keyrill's question first."));
    } else if (loadInMacroFromFile(path)) {
        post(tr("\"%1\" is loaded").arg(name), playAdvice());
    }
}

QString AppController::playAdvice() const {
    const QString combination = combinationText(playShortcutText.keyCombo());
    return combination.isEmpty() ? tr("Choose a shortcut for Play in the preferences to play it.")
                                 : tr("Press %1 to play it.").arg(combination);
}
