// SPDX-License-Identifier: MIT
#include "library/LibraryHotKeys.h"

#include <string_view>

#include "engine/EngineState.h"
#include "library/MacroLibrary.h"
#include "platform/Encoding.h"
#include "platform/Modifiers.h"
#include "prefs/PreferenceManager.h"
#include "prefs/Settings.h"
#include "prefs/Shortcuts.h"

namespace {

constexpr std::uint32_t modifiersThatCount =
    modifier::command | modifier::shift | modifier::option | modifier::control;

/// How a desktop knows it again that keeps combinations over its sessions: of letters, digits and "%2F".
std::string nameFor(std::string_view path) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
    constexpr std::string_view hexDigits = "0123456789ABCDEF";
    std::string name = "macro-";
    for (const char letter : path) {
        const auto byte = static_cast<std::uint8_t>(letter);
        if (letters.find(letter) != std::string_view::npos) {
            name += letter;
        } else {
            name += {'%', hexDigits[byte >> 4U], hexDigits[byte & 0xFU]};
        }
    }
    return name;
}

}  // namespace

LibraryHotKeys::LibraryHotKeys(MacroLibrary& library, HotKeys& hotKeys, HotKeyId firstId, Play play)
    : m_library(library), m_hotKeys(hotKeys), m_nextId(firstId), m_play(std::move(play)) {
    // Its modifiers are held for its sake, which is no tap of theirs.
    const auto pressed = [](HotKeyId) { engineState().modifierHolds.addOther(); };
    m_hotKeys.install(pressed, [this](HotKeyId id) {
        const auto row = m_rows.find(id);
        if (row != m_rows.end() && engineState().hotKeysEnabled) m_play(std::string(row->second.path));
    });
    m_hotKeys.observe([this](HotKeyId id, const HotKeyState& /*state*/) {
        const auto row = m_rows.find(id);
        if (row != m_rows.end()) tell(row->second.path);
    });
    m_library.addListener(*this);
}

LibraryHotKeys::~LibraryHotKeys() {
    m_library.removeListener(*this);
    m_hotKeys.observe({});
    m_hotKeys.install({}, {});
    for (const auto& [id, row] : m_rows) m_hotKeys.withdraw(id);
}

MacroHotKeyState LibraryHotKeys::state(const std::string& path) const {
    const auto conflict = m_conflicts.find(path);
    if (conflict != m_conflicts.end()) return {.status = HotKeyStatus::refused, .conflict = conflict->second};
    const auto id = m_idOfPath.find(path);
    if (id == m_idOfPath.end()) return {};
    const HotKeyState state = m_hotKeys.state(id->second);
    if (state.status != HotKeyStatus::refused) return {.status = state.status, .trigger = state.trigger};
    return {.status = HotKeyStatus::refused, .conflict = refusal(state)};
}

// Under the layout of the moment two combinations may be one.
HotKeyConflict LibraryHotKeys::refusal(const HotKeyState& state) const {
    if (!state.holder) return {.with = HotKeyConflict::With::other, .error = state.error};
    const auto macro = m_rows.find(*state.holder);
    if (macro != m_rows.end()) return {.with = HotKeyConflict::With::macro, .macro = macro->second.path};
    for (std::size_t index = 0; index < shortcutRows.size(); ++index) {
        if (shortcutRows[index].id == *state.holder) {
            return {.with = HotKeyConflict::With::shortcut, .shortcut = index};
        }
    }
    return {.with = HotKeyConflict::With::other, .error = state.error};
}

std::optional<HotKeyConflict> LibraryHotKeys::conflictOf(KeyCombo hotKey, const std::string& path) const {
    const Combination combination = combinationOf(hotKey);
    if (auto shortcut = shortcutWith(combination)) return shortcut;
    for (const auto& [other, wish] : wishes()) {
        if (wish == combination && other != path) {
            return HotKeyConflict{.with = HotKeyConflict::With::macro, .macro = other};
        }
    }
    return std::nullopt;
}

std::string LibraryHotKeys::macroWith(KeyCombo hotKey) const {
    // Settings are not read before there are macros that they belong to.
    if (!m_library.isRead() || hotKey.code == KeyCombo().code) return {};
    const Combination combination = combinationOf(hotKey);
    for (const auto& [path, wish] : wishes()) {
        if (wish == combination) return path;
    }
    return {};
}

LibraryHotKeys::Combination LibraryHotKeys::combinationOf(KeyCombo hotKey) {
    return {static_cast<std::uint32_t>(std::int32_t{hotKey.code}),
            hotKeyFlags(hotKey.flags) & modifiersThatCount};
}

std::optional<HotKeyConflict> LibraryHotKeys::shortcutWith(const Combination& combination) {
    for (std::size_t index = 0; index < shortcutRows.size(); ++index) {
        const std::string name(shortcutRows[index].name);
        const std::int16_t code = utils::PreferenceManager::code(name);
        const Combination taken{static_cast<std::uint32_t>(std::int32_t{code}),
                                utils::PreferenceManager::flags(name) & modifiersThatCount};
        if (code != KeyCombo().code && taken == combination) {
            return HotKeyConflict{.with = HotKeyConflict::With::shortcut, .shortcut = index};
        }
    }
    return std::nullopt;
}

void LibraryHotKeys::libraryChanged(const LibraryChanges& changes) {
    rename(changes.renamed);
    reconsider();
}

// A row whose macro has gone because another one has taken its name is left without a path, and given free
// with the others that nobody wants.
void LibraryHotKeys::rename(const std::vector<FolderChanges::Rename>& renamed) {
    std::map<std::string, HotKeyId> moved;
    for (const FolderChanges::Rename& rename : renamed) {
        const auto id = m_idOfPath.find(rename.from);
        if (id == m_idOfPath.end()) continue;
        moved[rename.to] = id->second;
        m_idOfPath.erase(id);
    }
    for (const auto& [path, id] : moved) {
        const auto replaced = m_idOfPath.find(path);
        if (replaced != m_idOfPath.end()) m_rows[replaced->second].path.clear();
        m_idOfPath[path] = id;
        m_rows[id].path = path;
    }
}

LibraryHotKeys::Wishes LibraryHotKeys::wishes() const {
    Wishes wishes;
    for (const std::string& path : m_library.pathsWithHotKeys()) {
        if (m_library.find(path) != nullptr) wishes[path] = combinationOf(m_library.settings(path).hotKey);
    }
    return wishes;
}

void LibraryHotKeys::reconsider() {
    // Settings are not read before there are macros that they belong to.
    if (!m_library.isRead()) return;
    m_isBusy = true;
    const Wishes wished = wishes();
    const Claims claimed = claims(wished);
    withdrawOthersThan(claimed);
    noteConflicts(wished, claimed);
    requestNew(claimed);
    m_isBusy = false;
    tellAll();
}

LibraryHotKeys::Claims LibraryHotKeys::claims(const Wishes& wishes) const {
    Claims claims;
    for (const auto& [id, row] : m_rows) {
        const auto wish = wishes.find(row.path);
        const bool isAsBefore = wish != wishes.end() && wish->second == row.combination;
        if (isAsBefore && !shortcutWith(row.combination)) claims[row.combination] = row.path;
    }
    for (const auto& [path, combination] : wishes) {
        if (!shortcutWith(combination)) claims.emplace(combination, path);
    }
    return claims;
}

void LibraryHotKeys::withdrawOthersThan(const Claims& claims) {
    for (auto row = m_rows.begin(); row != m_rows.end();) {
        const auto claim = claims.find(row->second.combination);
        if (claim != claims.end() && claim->second == row->second.path) {
            ++row;
            continue;
        }
        const auto [id, gone] = *row;
        row = m_rows.erase(row);
        const auto known = m_idOfPath.find(gone.path);
        if (known != m_idOfPath.end() && known->second == id) m_idOfPath.erase(known);
        m_hotKeys.withdraw(id);
        if (!gone.path.empty()) tell(gone.path);
    }
}

void LibraryHotKeys::noteConflicts(const Wishes& wishes, const Claims& claims) {
    std::map<std::string, HotKeyConflict> conflicts;
    for (const auto& [path, combination] : wishes) {
        if (auto shortcut = shortcutWith(combination)) {
            conflicts[path] = *std::move(shortcut);
        } else if (const std::string& holder = claims.at(combination); holder != path) {
            conflicts[path] = {.with = HotKeyConflict::With::macro, .macro = holder};
        }
    }
    for (const auto& [path, conflict] : conflicts) {
        const auto before = m_conflicts.find(path);
        if (before == m_conflicts.end() || before->second != conflict) tell(path);
    }
    for (const auto& [path, conflict] : m_conflicts) {
        if (!conflicts.contains(path)) tell(path);
    }
    m_conflicts = std::move(conflicts);
}

void LibraryHotKeys::requestNew(const Claims& claims) {
    std::vector<HotKeyRequest> requests;
    for (const auto& [combination, path] : claims) {
        if (m_idOfPath.contains(path)) continue;
        const HotKeyId id = m_nextId++;
        m_idOfPath[path] = id;
        m_rows[id] = {path, combination};
        requests.push_back({.id = id,
                            .name = nameFor(path),
                            .keyCode = combination.first,
                            .modifiers = combination.second,
                            .startsPlayback = true,
                            .title = decodedText(std::string(LibraryEntry{path}.name())),
                            .arguments = {"--play=" + path}});
    }
    if (!requests.empty()) m_hotKeys.requestAll(requests);
}

void LibraryHotKeys::tell(const std::string& path) {
    m_untold.insert(path);
    if (!m_isBusy) tellAll();
}

void LibraryHotKeys::tellAll() {
    for (const std::string& path : std::exchange(m_untold, {})) {
        if (m_changed) m_changed(path);
    }
}
