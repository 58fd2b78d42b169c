// SPDX-License-Identifier: MIT
#include "app/controller/ConsentDesk.h"

#include "app/dialogs/AlertTexts.h"
#include "app/dialogs/Dialogs.h"
#include "app/shortcuts/ToggleModel.h"
#include "app/shortcuts/Toggles.h"
#include "platform/HotKeys.h"
#include "platform/SettingsStore.h"

namespace {

constexpr const char* key = toggleRows[toggleIndex("writeHotKeys")].key;

}  // namespace

ConsentDesk::ConsentDesk(SettingsStore& store, HotKeys& hotKeys, Dialogs& dialogs, ToggleModel& toggle)
    : m_store(store), m_hotKeys(hotKeys), m_dialogs(dialogs), m_toggle(toggle) {}

/// "No" is stored as well.
bool ConsentDesk::isToBeAsked() const { return m_hotKeys.needsConsent() && !m_store.integer(key); }

void ConsentDesk::ask() {
    if (!isToBeAsked()) return;
    const AlertAnswer answer = m_dialogs.runAlert(alerts::mayWriteHotKeys());
    // Meanwhile the preferences cannot have been opened.
    if (answer == AlertAnswer::alternateButton) return;
    const bool given = answer == AlertAnswer::defaultButton;
    m_store.setBool(key, given);
    m_toggle.setOn(given);
    m_hotKeys.setConsent(given);
}
