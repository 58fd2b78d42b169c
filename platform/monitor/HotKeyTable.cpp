// SPDX-License-Identifier: MIT
#include "platform/monitor/HotKeyTable.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "platform/keymap/KeyLabels.h"

namespace {

const char* const chooseAnother = "Choose another combination.";
const char* const allowIt = "Choose another combination, or allow it in the desktop's settings.";
const char* const freeIt = "Choose another combination, or free it in the program that holds it.";

/// A message as the end of another sentence.
std::string clauseOf(std::string sentence) {
    sentence.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(sentence.front())));
    sentence.pop_back();
    return sentence;
}

}  // namespace

void HotKeyTable::request(const HotKeyRequest& request) {
    Row& row = m_rows[request.id];
    freeRow(row);
    row.request = request;
    row.waits = false;
    row.isElsewhere = false;
    if (request.keyCode == keycode::none) {
        settle(row, {});
    } else {
        tryRow(row);
    }
    tryWaitingRows();
}

void HotKeyTable::withdraw(HotKeyId id) {
    const auto row = m_rows.find(id);
    if (row == m_rows.end()) return;
    freeRow(row->second);
    row->second.waits = false;
    settle(row->second, {});
    m_rows.erase(row);
    tryWaitingRows();
}

HotKeyState HotKeyTable::state(HotKeyId id) const {
    const auto row = m_rows.find(id);
    return row == m_rows.end() ? HotKeyState{} : row->second.state;
}

std::optional<HotKeyId> HotKeyTable::find(std::uint8_t keycode, std::uint16_t modifiers) const {
    for (const auto& [id, row] : m_rows) {
        if (row.keys && row.keys->matches(keycode, modifiers)) return id;
    }
    return std::nullopt;
}

std::optional<HotKeyId> HotKeyTable::ownerOf(const KeyGrab& grab) const {
    for (const auto& [id, row] : m_rows) {
        if (row.grab && row.grab->matches(grab.keycode, grab.modifiers)) return id;
    }
    return std::nullopt;
}

void HotKeyTable::answer(const KeyGrab& grab, const GrabAnswer& answer) {
    const auto id = ownerOf(grab);
    if (!id) return;
    Row& row = m_rows[*id];
    row.keys = answer.refusal ? std::nullopt : answer.keys;
    if (row.keys) row.keys->locks = row.grab->locks;
    if (answer.refusal) return refuse(row, *answer.refusal, allowIt);
    settle(row, {.status = HotKeyStatus::changed, .trigger = answer.trigger});
}

bool HotKeyTable::usesKeycode(std::uint8_t keycode) const {
    return std::any_of(m_rows.begin(), m_rows.end(), [&](const auto& entry) {
        return entry.second.keys && entry.second.keys->keycode == keycode;
    });
}

bool HotKeyTable::cancelsPlayback(HotKeyId id) const {
    const auto row = m_rows.find(id);
    return row != m_rows.end() && row->second.request.cancelsPlayback;
}

bool HotKeyTable::startsPlayback(HotKeyId id) const {
    const auto row = m_rows.find(id);
    return row != m_rows.end() && row->second.request.startsPlayback;
}

std::uint16_t HotKeyTable::modifiersOfStop() const {
    std::uint16_t modifiers = 0;
    for (const auto& [id, row] : m_rows) {
        if (row.request.cancelsPlayback && row.keys) modifiers |= row.keys->modifiers;
    }
    return modifiers;
}

bool HotKeyTable::isKeptWaiting() const {
    return std::any_of(m_rows.begin(), m_rows.end(),
                       [](const auto& entry) { return entry.second.isElsewhere; });
}

void HotKeyTable::tryAgain() {
    for (auto& [id, row] : m_rows) {
        if (row.isElsewhere) tryRow(row);
    }
}

void HotKeyTable::requestAgain() {
    for (const auto& [id, row] : std::map(m_rows)) request(row.request);
}

void HotKeyTable::followKeymap() {
    std::vector<Row*> moved;
    for (auto& [id, row] : m_rows) {
        // What is lifted is taken back by the keymap that holds then.
        if (row.request.keyCode == keycode::none || row.isLifted) continue;
        const Result<KeyGrab> grab = grabFor(row.request);
        const bool same = grab ? row.grab == grab.value() && !m_grabs.takesSymbols() : !row.grab;
        if (!same) moved.push_back(&row);
    }
    // All are given free first: two may have changed places.
    for (Row* row : moved) freeRow(*row);
    for (Row* row : moved) tryRow(*row);
}

void HotKeyTable::followLocks() {
    const xkb_mod_mask_t locked = lockedHolds();
    if (std::exchange(m_lockedHolds, locked) != locked) followKeymap();
}

xkb_mod_mask_t HotKeyTable::lockedHolds() const {
    const ModifierMasks& masks = m_keyboard.keymap().masks();
    return m_keyboard.components().locked & (masks.shift | masks.control | masks.option | masks.command);
}

bool HotKeyTable::lift(std::uint8_t keycode, std::uint16_t modifiers) {
    const auto inForce = static_cast<std::uint16_t>(modifiers | lockedHolds());
    const std::optional<HotKeyId> id = find(keycode, inForce);
    return id && liftRow(m_rows[*id]);
}

bool HotKeyTable::liftAll(std::uint8_t keycode) {
    bool any = false;
    for (auto& [id, row] : m_rows) {
        if (row.grab && row.grab->keycode == keycode) any = liftRow(row) || any;
    }
    return any;
}

bool HotKeyTable::liftRow(Row& row) {
    if (row.isLifted || !canLift()) return false;
    m_grabs.release(*row.grab);
    row.isLifted = true;
    return true;
}

void HotKeyTable::restoreAll(std::uint8_t keycode) {
    for (auto& [id, row] : m_rows) {
        if (row.isLifted && row.grab->keycode == keycode) tryRow(row);
    }
}

void HotKeyTable::tryRow(Row& row) {
    row.grab.reset();
    row.keys.reset();
    row.waits = false;
    row.isLifted = false;
    row.isElsewhere = false;
    const Result<KeyGrab> grab = grabFor(row.request);
    if (!grab) return refuse(row, grab.error().message, grab.error().hint);
    if (isHeld(grab.value())) {
        row.waits = true;
        return refuse(row, "Keyrill uses it for something else", chooseAnother);
    }
    if (const auto failure = m_grabs.grab(grab.value(), row.request)) {
        row.isElsewhere = true;
        return refuse(row, *failure, freeIt);
    }
    row.grab = grab.value();
    if (m_grabs.isDecidedByUser()) return settle(row, {.status = HotKeyStatus::pending});
    row.keys = row.grab;
    settle(row, {.status = HotKeyStatus::registered});
}

void HotKeyTable::freeRow(Row& row) {
    if (row.grab && !row.isLifted) m_grabs.release(*row.grab);
    row.grab.reset();
    row.keys.reset();
    row.isLifted = false;
}

void HotKeyTable::tryWaitingRows() {
    for (auto& [id, row] : m_rows) {
        if (!row.waits) continue;
        const Result<KeyGrab> grab = grabFor(row.request);
        if (grab && !isHeld(grab.value())) tryRow(row);
    }
}

void HotKeyTable::refuse(Row& row, const std::string& why, const std::string& hint) {
    settle(row, {HotKeyStatus::refused,
                 Error{combinationText(row.request) + " cannot be used: " + why + ".", hint}});
}

void HotKeyTable::settle(Row& row, HotKeyState state) {
    const bool changed = row.state.status != state.status || row.state.error != state.error ||
                         row.state.trigger != state.trigger;
    row.state = std::move(state);
    if (changed && m_observer) m_observer(row.request.id, row.state);
}

Result<KeyGrab> HotKeyTable::grabFor(const HotKeyRequest& request) const {
    const Keymap& keymap = m_keyboard.keymap();
    const std::uint8_t keycode = keymap.keycodeFor(request.keyCode);
    if (keycode == 0) return Error{"this desktop has no such key", chooseAnother};
    const auto modifiers = keymap.real(request.modifiers, request.keyCode);
    if (!modifiers) return Error{clauseOf(modifiers.error().message), chooseAnother};
    const ModifierMasks& masks = keymap.masks();
    const xkb_mod_mask_t lockedLevels = (masks.thirdLevel | masks.fifthLevel) & keymap.keys().lockable();
    return KeyGrab{.keycode = keycode,
                   .modifiers = static_cast<std::uint16_t>(modifiers.value() | lockedHolds()),
                   .locks = static_cast<std::uint16_t>(masks.locks() | lockedLevels)};
}

bool HotKeyTable::isHeld(const KeyGrab& grab) const {
    return std::any_of(m_rows.begin(), m_rows.end(), [&grab](const auto& entry) {
        return entry.second.grab && entry.second.grab->collidesWith(grab);
    });
}

std::string HotKeyTable::combinationText(const HotKeyRequest& request) const {
    std::string text;
    if ((request.modifiers & modifier::control) != 0) text += "Ctrl+";
    if ((request.modifiers & modifier::option) != 0) text += "Alt+";
    if ((request.modifiers & modifier::shift) != 0) text += "Shift+";
    if ((request.modifiers & modifier::command) != 0) text += "Super+";
    return text + keyLabel(m_keyboard.keymap(), m_keyboard.layout(), request.keyCode);
}
