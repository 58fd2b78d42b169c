// SPDX-License-Identifier: MIT
#include "app/controller/RecordHereDesk.h"

#include <QPushButton>

#include "app/controller/Stage.h"
#include "app/panels/RecordHerePanel.h"
#include "app/shortcuts/CombinationText.h"
#include "app/shortcuts/ShortcutModel.h"
#include "engine/EngineState.h"
#include "engine/MacroPlayer.h"
#include "platform/EventMonitor.h"
#include "platform/HotKeys.h"
#include "prefs/Shortcuts.h"

RecordHereDesk::RecordHereDesk(EventMonitor& monitor, const HotKeys& hotKeys, const ShortcutModel& stop,
                               Stage& stage)
    : m_monitor(monitor), m_hotKeys(hotKeys), m_stop(stop), m_stage(stage) {}

RecordHereDesk::~RecordHereDesk() = default;

RecordHerePanel& RecordHereDesk::builtPanel() {
    if (m_panel) return *m_panel;
    m_panel = std::make_unique<RecordHerePanel>();
    connect(m_panel.get(), &Panel::willClose, this, [] { stopRecording(); });
    connect(m_panel->helpButton(), &QPushButton::clicked, this, &RecordHereDesk::helpWanted);
    connect(m_panel.get(), &RecordHerePanel::keyCame, this, [this](const WindowKey& key) {
        if (WindowKeys* keys = m_monitor.windowKeys()) keys->key(key);
    });
    connect(m_panel.get(), &RecordHerePanel::left, this, [this] {
        if (WindowKeys* keys = m_monitor.windowKeys()) keys->leave();
    });
    return *m_panel;
}

void RecordHereDesk::begin(const Error& why) {
    WindowKeys* const keys = m_monitor.windowKeys();
    if (!engineState().recordingMacro || keys == nullptr) return;
    keys->begin();
    RecordHerePanel& panel = builtPanel();
    panel.setCause(why);
    tellHowToStop(panel);
    panel.setMacroString({});
    panel.takeKeys();
    m_stage.present(panel);
}

void RecordHereDesk::tellHowToStop(RecordHerePanel& panel) const {
    const HotKeyState stop = m_hotKeys.state(shortcutRows[shortcutIndex("stop")].id);
    if (stop.status == HotKeyStatus::changed) {
        return panel.setStopTrigger(QString::fromStdString(stop.trigger));
    }
    const bool hasHotKey = stop.status == HotKeyStatus::registered;
    panel.setStopCombination(hasHotKey ? combinationText(m_stop.keyCombo()) : QString());
}

void RecordHereDesk::end() {
    if (!m_panel || !m_panel->isVisible()) return;
    // The next time it comes as an ordinary window; told before it goes, since some keep what it was then.
    m_panel->setWindowState(m_panel->windowState() & ~Qt::WindowFullScreen);
    m_stage.fadeOut(*m_panel);
}

void RecordHereDesk::setMacroString(const std::string& text) {
    if (m_panel) m_panel->setMacroString(QString::fromStdString(text));
}
