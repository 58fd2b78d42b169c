// SPDX-License-Identifier: MIT
#include <QPushButton>
#include <algorithm>

#include "app/controller/AppController.h"
#include "app/controller/ShortcutNotices.h"
#include "app/dialogs/AlertTexts.h"
#include "app/panels/PreferencesPanel.h"
#include "app/widgets/IsShown.h"
#include "core/KeyNames.h"
#include "engine/EngineState.h"
#include "engine/HotKeyCenter.h"
#include "platform/LoginItems.h"
#include "platform/Services.h"
#include "platform/SettingsStore.h"
#include "prefs/PreferenceManager.h"
#include "prefs/Settings.h"

namespace {

/// Empties the model if it is another one with the same combination.
void emptyIfEqual(ShortcutModel& model, const ShortcutModel& changed) {
    if (&model != &changed && model.keyCombo() == changed.keyCombo()) model.setKeyCombo({});
}

/// What the preference table holds under the name, in control flags.
KeyCombo tableCombination(const std::string& name) {
    return {.flags = carbonToCocoaFlags(utils::PreferenceManager::flags(name)),
            .code = utils::PreferenceManager::code(name)};
}

}  // namespace

void AppController::syncPreferencesDefaults() {
    loadHotKeys(m_services.settings);
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const auto stored = storedShortcut(m_services.settings, std::string(shortcutRows[i].name));
        if (stored) preferences.shortcuts[i].setKeyCombo(*stored);
    }
    for (std::size_t i = 0; i < toggleRows.size(); ++i) {
        const ToggleRow& row = toggleRows[i];
        preferences.toggles[i].setOn(isStoredOn(m_services.settings, row.key, row.initiallyOn));
    }
}

PreferenceValues AppController::preferenceValues() const {
    PreferenceValues values;
    std::transform(preferences.shortcuts.begin(), preferences.shortcuts.end(), values.shortcuts.begin(),
                   [](const ShortcutModel& model) { return model.keyCombo(); });
    for (std::size_t i = 0; i < toggleRows.size(); ++i) {
        const ToggleModel& model = preferences.toggles[i];
        if (&model == &preferences.checkForUpdatesOnLaunch && !preferences.offersUpdateCheck) continue;
        values.toggles.push_back({toggleRows[i].key, model.isOn()});
    }
    return values;
}

void AppController::savePreferences(QObject* /*sender*/) {
    const PreferenceValues values = preferenceValues();
    keepHotKeys(values);
    storePreferences(m_services.settings, values);
    installRunAtLogin(launchOnLoginButton.isOn());
    const Result<> saved = m_services.settings.synchronize();
    if (!saved) tellSaveFailure(alerts::settingsNotSaved(saved.error()));
    registerHotKeys();
    updateNotices();
}

void AppController::installRunAtLogin(bool enable) {
    const Result<> installed = m_services.loginItems.install(enable);
    if (!installed) tellSaveFailure(alerts::loginItemNotSet(installed.error()));
}

// Told after the event that saved: the field that reported a change still holds the keyboard.
void AppController::tellSaveFailure(const AlertText& alert) {
    if (std::find(m_toldSaveFailures.begin(), m_toldSaveFailures.end(), alert) != m_toldSaveFailures.end()) {
        return;
    }
    m_toldSaveFailures.push_back(alert);
    QTimer::singleShot(0, this, [this, alert] { m_dialogs.runAlert(alert); });
}

PreferencesPanel& AppController::builtPreferencesWindow() {
    if (!m_preferencesWindow) {
        m_preferencesWindow = std::make_unique<PreferencesPanel>(preferences);
        connect(m_preferencesWindow.get(), &Panel::willClose, this, &AppController::preferencesWillClose);
        QPushButton* button = m_preferencesWindow->checkForUpdatesNowButton();
        if (button != nullptr) {
            connect(button, &QPushButton::clicked, this,
                    [this, button] { perform(&AppController::checkForUpdates, button); });
        }
    }
    return *m_preferencesWindow;
}

QPushButton* AppController::checkForUpdatesNowButton() {
    return builtPreferencesWindow().checkForUpdatesNowButton();
}

void AppController::showPreferences(QObject* /*sender*/) {
    engineState().hotKeysEnabled = false;
    m_toldSaveFailures.clear();
    // An entry that the user has switched off by the desktop's own means stays so, whatever is stored.
    if (m_services.loginItems.state() == LoginItems::State::hiddenByUser) launchOnLoginButton.setOn(false);
    updateNotices();
    presentPanel(builtPreferencesWindow());
}

void AppController::preferencesWillClose() {
    savePreferences(nullptr);
    engineState().hotKeysEnabled = true;
}

void AppController::shortcutRecorderKeyComboDidChange(ShortcutModel* recorder) {
    if (!isShown(m_preferencesWindow.get())) return;
    if (recorder->keyCombo() != KeyCombo()) emptyOthersEqualTo(*recorder);
    savePreferences(nullptr);
}

// The most recent assignment wins, and nobody is asked. In the table's order, but Stop yields to Play first.
void AppController::emptyOthersEqualTo(const ShortcutModel& recorder) {
    if (&recorder == &playShortcutText) emptyIfEqual(stopShortcutText, recorder);
    for (ShortcutModel& other : preferences.shortcuts) emptyIfEqual(other, recorder);
}

void AppController::noteHotKey(HotKeyId id, const HotKeyState& state) {
    if (state.status == HotKeyStatus::refused && state.error) {
        m_refusedHotKeys[id] = state.error->message;
    } else {
        m_refusedHotKeys.erase(id);
    }
    updateStatusNotice();
    updateNotices();
}

void AppController::updateStatusNotice() {
    QStringList lines;
    for (const auto& [refused, message] : m_refusedHotKeys) lines.append(QString::fromStdString(message));
    if (!m_sessionHint.isEmpty()) lines.append(m_sessionHint);
    statusItem.setNotice(lines.join(QLatin1Char('\n')));
}

void AppController::updateNotices() {
    AllShortcutFacts facts;
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const ShortcutRow& row = shortcutRows[i];
        facts[i] = {.field = preferences.shortcuts[i].keyCombo(),
                    .asked = tableCombination(std::string(row.name)),
                    .state = m_services.hotKeys.state(row.id)};
    }
    const ShortcutNoticeTexts texts = shortcutNotices(facts);
    for (std::size_t i = 0; i < texts.size(); ++i) preferences.shortcuts[i].setNotice(texts[i]);
}
