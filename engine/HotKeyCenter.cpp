// SPDX-License-Identifier: MIT
#include "engine/HotKeyCenter.h"

#include <algorithm>
#include <string>

#include "engine/EngineState.h"
#include "engine/MacroPlayer.h"
#include "platform/Services.h"
#include "prefs/PreferenceManager.h"

namespace {

void requestPlayOnce() { requestPlay(1); }

constexpr std::array<HotKeyRow, 4> rows = {
    HotKeyRow{.name = "record", .id = 1, .signature = "kyl1", .pressed = toggleRecording},
    HotKeyRow{
        .name = "stop", .id = 2, .signature = "kyl2", .pressed = stopRecording, .cancelsPlayback = true},
    HotKeyRow{.name = "play", .id = 3, .signature = "kyl3", .released = requestPlayOnce},
    HotKeyRow{.name = "multiplePlay", .id = 4, .signature = "kyl4", .pressed = promptMultiplePlay},
};

/// With its sign, so that -1 becomes keycode::none.
std::uint32_t widened(std::int16_t code) { return static_cast<std::uint32_t>(std::int32_t{code}); }

HotKeyRequest requestFor(const HotKeyRow& row) {
    const std::string name(row.name);
    const std::uint32_t flags = utils::PreferenceManager::flags(name);
    const std::int16_t code = utils::PreferenceManager::code(name);
    return {row.id, name, widened(code), flags, row.cancelsPlayback};
}

/// Runs the command that the row of the id holds in `command`.
void dispatch(HotKeyId id, void (*HotKeyRow::*command)()) {
    if (!engineState().hotKeysEnabled) return;
    const auto* row = std::find_if(rows.begin(), rows.end(), [id](const HotKeyRow& r) { return r.id == id; });
    if (row != rows.end() && row->*command != nullptr) (row->*command)();
}

}  // namespace

const std::array<HotKeyRow, 4>& hotKeyRows() { return rows; }

void installHotKeyHandlers() { services().hotKeys.install(onHotKeyPressed, onHotKeyReleased); }

void registerHotKeys() {
    HotKeys& hotKeys = services().hotKeys;
    for (const HotKeyRow& row : rows) {
        hotKeys.withdraw(row.id);
        hotKeys.request(requestFor(row));
    }
}

void onHotKeyPressed(HotKeyId id) { dispatch(id, &HotKeyRow::pressed); }

void onHotKeyReleased(HotKeyId id) { dispatch(id, &HotKeyRow::released); }
