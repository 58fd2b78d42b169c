// SPDX-License-Identifier: MIT
#include "app/check/HotKeyProbe.h"

#include <algorithm>
#include <optional>

#include "app/shortcuts/CombinationText.h"
#include "platform/KeyboardLayout.h"
#include "prefs/Settings.h"

namespace {

HotKeyFinding findingOf(HotKeyStatus status, bool isOurs) {
    switch (status) {
        case HotKeyStatus::unset:
            return HotKeyFinding::unset;
        case HotKeyStatus::pending:
            return HotKeyFinding::uncertain;
        case HotKeyStatus::registered:
        case HotKeyStatus::changed:
            // A desktop of which it is only asked who else has it.
            return isOurs ? HotKeyFinding::ours : HotKeyFinding::free;
        case HotKeyStatus::refused:
            break;
    }
    return isOurs ? HotKeyFinding::ours : HotKeyFinding::taken;
}

void probe(HotKeyFact& fact, const ShortcutRow& row, KeyCombo combination, HotKeys& hotKeys, bool isOurs) {
    hotKeys.request({.id = row.id,
                     .name = std::string(row.name),
                     .keyCode = static_cast<std::uint32_t>(combination.code),
                     .modifiers = hotKeyFlags(combination.flags)});
    const HotKeyState state = hotKeys.state(row.id);
    hotKeys.withdraw(row.id);
    fact.finding = findingOf(state.status, isOurs);
    if (fact.finding == HotKeyFinding::taken && state.error) fact.why = *state.error;
}

}  // namespace

std::vector<HotKeyFact> probeHotKeys(const SettingsStore& settings, HotKeys& hotKeys,
                                     const KeyboardLayout& layout, const std::vector<std::string>& ours) {
    const bool isFirstRun = !isStoredOn(settings, "notFirstRun");
    std::vector<HotKeyFact> facts;
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const ShortcutRow& row = shortcutRows[i];
        HotKeyFact& fact = facts.emplace_back(HotKeyFact{.shortcut = i});
        const bool isOurs = std::find(ours.begin(), ours.end(), row.name) != ours.end();
        // In its first run the program has them before they are stored.
        const KeyCombo combination = storedShortcut(settings, std::string(row.name))
                                         .value_or(isOurs || isFirstRun ? row.preset : KeyCombo());
        if (combination.code == KeyCombo().code) continue;
        fact.combination = modifiersText(combination.flags).toStdString() +
                           layout.keyName(static_cast<std::uint32_t>(combination.code));
        probe(fact, row, combination, hotKeys, isOurs);
    }
    return facts;
}
