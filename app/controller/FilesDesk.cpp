// SPDX-License-Identifier: MIT
#include "app/controller/FilesDesk.h"

#include <QDir>
#include <QFileInfo>

#include "app/controller/Gate.h"
#include "app/controller/ScriptNotices.h"
#include "app/controller/Stage.h"
#include "app/controller/TildeExpansion.h"
#include "app/dialogs/AlertTexts.h"
#include "app/dialogs/Dialogs.h"
#include "app/shortcuts/CombinationText.h"
#include "core/MacroManager.h"
#include "engine/EngineState.h"
#include "engine/MacroPlayer.h"
#include "platform/MacroFiles.h"
#include "prefs/KeyCombo.h"

FilesDesk::FilesDesk(MacroFiles& files, ScriptNotices& scriptNotices, Dialogs& dialogs, const Gate& gate,
                     Stage& stage)
    : m_files(files), m_scriptNotices(scriptNotices), m_dialogs(dialogs), m_gate(gate), m_stage(stage) {}

void FilesDesk::save() {
    if (!engineState().currentMacro) return;
    m_stage.unhide();
    const QString folder = QString::fromStdString(m_files.prepareFolder());
    const QString path = withTildeExpanded(m_dialogs.runSavePanel(folder), QDir::homePath());
    if (path.isEmpty() || !engineState().currentMacro) return;
    const std::string script = engineState().currentMacro->script();
    const Result<> written = m_files.write(path.toStdString(), script);
    if (!written) m_dialogs.runAlert(alerts::macroNotSaved(path, written.error()));
}

void FilesDesk::load() {
    m_stage.unhide();
    const QString folder = QString::fromStdString(m_files.prepareFolder());
    const QString path = withTildeExpanded(m_dialogs.runOpenPanel(folder), QDir::homePath());
    if (!path.isEmpty() && loadFrom(path)) isBroken(path);
}

bool FilesDesk::loadFrom(const QString& path) {
    const Result<std::string> text = m_files.read(path.toStdString());
    if (!text) {
        m_dialogs.runAlert(alerts::macroNotLoaded(path, text.error()));
        return false;
    }
    const boost::shared_ptr<Macro> macro = MacroManager::createMacro();
    macro->setScript(text.value());
    setCurrentMacro(macro);
    return true;
}

void FilesDesk::open(const QString& path, KeyCombo play) {
    const QString name = QFileInfo(path).fileName();
    if (engineState().recording) {
        m_scriptNotices.tell(tr("\"%1\" was not loaded").arg(name),
                             tr("A macro is being recorded. Stop recording first."));
    } else if (m_gate.isLocked()) {
        m_scriptNotices.tell(tr("\"%1\" was not loaded").arg(name),
                             tr("The screen is locked. Unlock it first."));
    } else if (!m_gate.isOpen()) {
        m_scriptNotices.tell(tr("\"%1\" was not loaded").arg(name), tr("Answer Keyrill's question first."));
    } else if (loadFrom(path) && !isBroken(path)) {
        const QString combination = combinationText(play);
        m_scriptNotices.tell(tr("\"%1\" is loaded").arg(name),
                             combination.isEmpty()
                                 ? tr("Choose a shortcut for Play in the preferences to play it.")
                                 : tr("Press %1 to play it.").arg(combination));
    }
}

bool FilesDesk::isBroken(const QString& path) {
    return m_scriptNotices.tellOfLoaded(QFileInfo(path).fileName(), engineState().currentMacro->script());
}
