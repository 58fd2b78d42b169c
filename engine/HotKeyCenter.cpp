// SPDX-License-Identifier: MIT
#include "engine/HotKeyCenter.h"

#include <algorithm>
#include <string>

#include "engine/EngineState.h"
#include "engine/MacroPlayer.h"
#include "platform/Services.h"
#include "prefs/PreferenceManager.h"

namespace {

static_assert(commandRows.size() == shortcutRows.size());

/// A shortcut and the command of its name; without one it does not compile.
consteval HotKeyRow rowFor(const ShortcutRow& shortcut) {
    std::size_t index = 0;
    while (commandRows.at(index).name != shortcut.name) ++index;
    const Command& command = commandRows.at(index);
    return {.name = shortcut.name,
            .id = shortcut.id,
            .action = shortcut.action,
            .signature = shortcut.signature,
            .pressed = command.pressed,
            .released = command.released,
            .cancelsPlayback = command.cancelsPlayback,
            .startsPlayback = command.startsPlayback};
}

consteval std::array<HotKeyRow, shortcutRows.size()> allRows() {
    std::array<HotKeyRow, shortcutRows.size()> all;
    std::transform(shortcutRows.begin(), shortcutRows.end(), all.begin(), rowFor);
    return all;
}

constexpr std::array<HotKeyRow, shortcutRows.size()> rows = allRows();

/// With its sign, so that -1 becomes keycode::none.
std::uint32_t widened(std::int16_t code) { return static_cast<std::uint32_t>(std::int32_t{code}); }

HotKeyRequest requestFor(const HotKeyRow& row) {
    const std::string name(row.name);
    const std::uint32_t flags = utils::PreferenceManager::flags(name);
    const std::int16_t code = utils::PreferenceManager::code(name);
    const auto& titles = engineState().hotKeyTitles;
    const auto title = titles.find(row.id);
    return {row.id,
            name,
            widened(code),
            flags,
            row.cancelsPlayback,
            row.startsPlayback,
            title == titles.end() ? std::string() : title->second,
            {"--action=" + std::string(row.action)}};
}

/// Runs the command that the row of the id holds in `command`.
void dispatch(HotKeyId id, void (*HotKeyRow::*command)()) {
    if (!engineState().hotKeysEnabled) return;
    const auto* row = std::find_if(rows.begin(), rows.end(), [id](const HotKeyRow& r) { return r.id == id; });
    if (row != rows.end() && row->*command != nullptr) (row->*command)();
}

}  // namespace

const std::array<HotKeyRow, shortcutRows.size()>& hotKeyRows() { return rows; }

void installHotKeyHandlers() { services().hotKeys.install(onHotKeyPressed, onHotKeyReleased); }

void registerHotKeys() {
    HotKeys& hotKeys = services().hotKeys;
    for (const HotKeyRow& row : rows) {
        hotKeys.withdraw(row.id);
        hotKeys.request(requestFor(row));
    }
}

void onHotKeyPressed(HotKeyId id) {
    engineState().modifierHolds.addOther();
    dispatch(id, &HotKeyRow::pressed);
}

void onHotKeyReleased(HotKeyId id) { dispatch(id, &HotKeyRow::released); }
