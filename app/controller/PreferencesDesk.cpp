// SPDX-License-Identifier: MIT
#include "app/controller/PreferencesDesk.h"

#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <string>
#include <utility>

#include "app/controller/ShortcutNotices.h"
#include "app/controller/Stage.h"
#include "app/dialogs/AlertTexts.h"
#include "app/library/LibraryController.h"
#include "app/library/MacroTitles.h"
#include "app/panels/PreferencesPanel.h"
#include "app/widgets/IsShown.h"
#include "core/KeyNames.h"
#include "engine/EngineState.h"
#include "engine/HotKeyCenter.h"
#include "platform/Features.h"
#include "platform/LoginItems.h"
#include "platform/SettingsStore.h"
#include "prefs/PreferenceManager.h"
#include "prefs/Settings.h"

namespace {

/// What the preference table holds under the name, in control flags.
KeyCombo tableCombination(const std::string& name) {
    return {.flags = carbonToCocoaFlags(utils::PreferenceManager::flags(name)),
            .code = utils::PreferenceManager::code(name)};
}

/// Empties the model if it is another one with the same combination.
void emptyIfEqual(ShortcutModel& model, const ShortcutModel& changed) {
    if (&model != &changed && model.keyCombo() == changed.keyCombo()) model.setKeyCombo({});
}

}  // namespace

PreferencesDesk::PreferencesDesk(SettingsStore& store, LoginItems& loginItems, HotKeys& hotKeys,
                                 LibraryController& library, Dialogs& dialogs, Stage& stage)
    : m_store(store),
      m_loginItems(loginItems),
      m_hotKeys(hotKeys),
      m_library(library),
      m_dialogs(dialogs),
      m_stage(stage) {
    model.offersUpdateCheck = features::updateCheck;
    model.offersConsent = hotKeys.needsConsent();
    connect(&model.launchOnLogin, &ToggleModel::changed, this, &PreferencesDesk::noteLoginTick);
}

PreferencesDesk::~PreferencesDesk() = default;

void PreferencesDesk::load() {
    loadHotKeys(m_store);
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const auto stored = storedShortcut(m_store, std::string(shortcutRows[i].name));
        if (stored) model.shortcuts[i].setKeyCombo(*stored);
    }
    for (std::size_t i = 0; i < toggleRows.size(); ++i) {
        const ToggleRow& row = toggleRows[i];
        model.toggles[i].setOn(isStoredOn(m_store, row.key, row.initiallyOn));
    }
    model.pauses.setChoice(storedPauseChoice(m_store));
    m_hotKeys.setConsent(model.writeHotKeys.isOn());
    applyRecording();
}

PreferenceValues PreferencesDesk::values() const {
    PreferenceValues values;
    std::transform(model.shortcuts.begin(), model.shortcuts.end(), values.shortcuts.begin(),
                   [](const ShortcutModel& shortcut) { return shortcut.keyCombo(); });
    for (std::size_t i = 0; i < toggleRows.size(); ++i) {
        const ToggleModel& toggle = model.toggles[i];
        if (&toggle == &model.checkForUpdatesOnLaunch && !model.offersUpdateCheck) continue;
        if (&toggle == &model.writeHotKeys && !isConsentToBeStored()) continue;
        values.toggles.push_back({toggleRows[i].key, toggle.isOn()});
    }
    values.pauses = model.pauses.choice();
    return values;
}

/// Whoever leaves the box as it is has not been asked by that.
bool PreferencesDesk::isConsentToBeStored() const {
    if (!model.offersConsent || model.writeHotKeys.isOn()) return model.offersConsent;
    return m_store.integer(toggleRows[toggleIndex("writeHotKeys")].key).has_value();
}

void PreferencesDesk::save() {
    const PreferenceValues saved = values();
    keepHotKeys(saved);
    storePreferences(m_store, saved);
    m_hotKeys.setConsent(model.writeHotKeys.isOn());
    applyRecording();
    installLoginItem(model.launchOnLogin.isOn());
    const Result<> synchronized = m_store.synchronize();
    if (!synchronized) tellSaveFailure(alerts::settingsNotSaved(synchronized.error()));
    // Macros give way first.
    m_library.followShortcuts();
    registerHotKeys();
    updateNotices();
}

void PreferencesDesk::applyRecording() const {
    engineState().pauseChoice = model.pauses.choice();
    engineState().recordsModifierKeys = model.recordModifierKeys.isOn();
    m_library.history().setKept(model.keepHistory.isOn());
}

void PreferencesDesk::noteLoginTick() {
    m_loginIsTicked = model.launchOnLogin.isOn() && shownPanel() != nullptr;
}

void PreferencesDesk::installLoginItem(bool enable) {
    // A tick is a newer wish than what the user has set by the desktop's own means before.
    const bool isWish = std::exchange(m_loginIsTicked, false) && enable;
    const Result<> installed = isWish ? m_loginItems.reveal() : m_loginItems.install(enable);
    if (!installed) tellSaveFailure(alerts::loginItemNotSet(installed.error()));
}

// Told after the event that saved: the field that reported a change still holds the keyboard.
void PreferencesDesk::tellSaveFailure(const AlertText& alert) {
    if (std::find(m_toldSaveFailures.begin(), m_toldSaveFailures.end(), alert) != m_toldSaveFailures.end()) {
        return;
    }
    m_toldSaveFailures.push_back(alert);
    m_untoldSaveFailures.push_back(alert);
    QTimer::singleShot(0, this, &PreferencesDesk::tellSaveFailures);
}

void PreferencesDesk::tellSaveFailures() {
    // The next one would come while this one is open, and lie on top of it.
    if (std::exchange(m_isTelling, true)) return;
    while (!m_untoldSaveFailures.empty()) {
        const AlertText alert = m_untoldSaveFailures.front();
        m_untoldSaveFailures.pop_front();
        m_dialogs.runAlert(alert);
    }
    m_isTelling = false;
}

PreferencesPanel& PreferencesDesk::builtPanel() {
    if (!m_panel) {
        m_panel = std::make_unique<PreferencesPanel>(model);
        connect(m_panel.get(), &Panel::willClose, this, &PreferencesDesk::willClose);
        connect(m_panel->checkForUpdatesNowButton(), &QPushButton::clicked, this,
                &PreferencesDesk::checkForUpdatesNowPressed);
    }
    return *m_panel;
}

PreferencesPanel* PreferencesDesk::shownPanel() const {
    return isShown(m_panel.get()) ? m_panel.get() : nullptr;
}

QPushButton* PreferencesDesk::checkForUpdatesNowButton() { return builtPanel().checkForUpdatesNowButton(); }

bool PreferencesDesk::isCheckForUpdatesNowButton(const QObject* sender) const {
    return m_panel && sender == m_panel->checkForUpdatesNowButton();
}

void PreferencesDesk::removePanel() { m_panel.reset(); }

void PreferencesDesk::open() {
    engineState().hotKeysEnabled = false;
    m_toldSaveFailures.clear();
    // An entry that the user has switched off by the desktop's own means stays so, whatever is stored.
    if (m_loginItems.state() == LoginItems::State::hiddenByUser) model.launchOnLogin.setOn(false);
    updateNotices();
    m_stage.present(builtPanel());
}

void PreferencesDesk::close() {
    save();
    engineState().hotKeysEnabled = true;
}

void PreferencesDesk::takeShortcut(ShortcutModel& changed) {
    if (shownPanel() == nullptr) return;
    if (changed.keyCombo() != KeyCombo()) emptyOthersEqualTo(changed);
    save();
}

// The most recent assignment wins, and nobody is asked. In the table's order, but Stop yields to Play first.
void PreferencesDesk::emptyOthersEqualTo(const ShortcutModel& changed) {
    if (&changed == &model.play) emptyIfEqual(model.stop, changed);
    for (ShortcutModel& other : model.shortcuts) emptyIfEqual(other, changed);
}

void PreferencesDesk::updateNotices() {
    AllShortcutFacts facts;
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const ShortcutRow& row = shortcutRows[i];
        facts[i] = {.field = model.shortcuts[i].keyCombo(),
                    .asked = tableCombination(std::string(row.name)),
                    .state = m_hotKeys.state(row.id),
                    .macro = macroName(m_library.hotKeys().macroWith(model.shortcuts[i].keyCombo()))};
    }
    const ShortcutNoticeTexts texts = shortcutNotices(facts);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        model.shortcuts[i].setNotice(texts[i]);
        model.shortcuts[i].setRefused(facts[i].state.status == HotKeyStatus::refused);
    }
}
