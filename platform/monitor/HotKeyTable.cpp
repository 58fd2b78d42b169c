// SPDX-License-Identifier: MIT
#include "platform/monitor/HotKeyTable.h"

#include <algorithm>
#include <utility>

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "platform/Sentence.h"
#include "platform/keymap/KeyLabels.h"

namespace {

Sentence chooseAnother() { return sentence("HotKeys", "Choose another combination."); }

Sentence allowIt() {
    return sentence("HotKeys", "Choose another combination, or allow it in the desktop's settings.");
}

Sentence freeIt() {
    return sentence("HotKeys", "Choose another combination, or free it in the program that holds it.");
}

/// `why` ends the sentence.
Sentence refusal(const std::string& combination, const std::string& why) {
    //: %1 is a combination of keys, %2 one of the reasons: another program holds it
    return sentence("HotKeys", "%1 cannot be used: %2.").arg(combination).arg(why);
}

Sentence noKeyFor(HeldRole held, const std::string& combination) {
    if (held == HeldRole::thirdLevel) {
        //: %1 is a combination of keys.
        return sentence("HotKeys",
                        "%1 cannot be used: the keyboard layout has no key for the third level (AltGr).")
            .arg(combination);
    }
    if (held == HeldRole::fifthLevel) {
        //: %1 is a combination of keys.
        return sentence("HotKeys", "%1 cannot be used: the keyboard layout has no key for the fifth level.")
            .arg(combination);
    }
    //: %1 is a combination of keys, %2 a modifier: Super
    return sentence("HotKeys", "%1 cannot be used: the keyboard layout has no key for %2.")
        .arg(combination)
        .arg(modifierName(held));
}

}  // namespace

void HotKeyTable::requestAll(const std::vector<HotKeyRequest>& requests) {
    std::vector<Row*> wanted;
    for (const HotKeyRequest& request : requests) {
        Row& row = m_rows[request.id];
        freeRow(row);
        row.request = request;
        row.waits = false;
        row.isElsewhere = false;
        if (request.keyCode == keycode::none) {
            settle(row, {});
        } else {
            wanted.push_back(&row);
        }
    }
    tryRows(wanted);
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
    if (answer.refusal)
        return refuse(row, {refusal(combinationText(row.request), *answer.refusal), allowIt()});
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
    std::vector<Row*> rows;
    for (auto& [id, row] : m_rows) {
        if (row.isElsewhere) rows.push_back(&row);
    }
    tryRows(rows);
    tryWaitingRows();
}

void HotKeyTable::requestAgain() {
    std::vector<HotKeyRequest> requests;
    for (const auto& [id, row] : m_rows) requests.push_back(row.request);
    requestAll(requests);
}

void HotKeyTable::setConsent(bool given) {
    if (std::exchange(m_hasConsent, given) == given || !needsConsent()) return;
    m_grabs.setConsent(given);
    requestAgain();
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
    tryRows(moved);
    tryWaitingRows();
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

void HotKeyTable::tryRows(const std::vector<Row*>& rows) {
    std::vector<Row*> tried;
    std::vector<KeyGrabber::Wish> wishes;
    for (Row* row : rows) {
        // Taken for granted until it is refused, so that the next ones do not collide with it.
        row->grab = preparedGrab(*row);
        if (!row->grab) continue;
        tried.push_back(row);
        wishes.push_back({*row->grab, row->request});
    }
    const std::vector<std::optional<std::string>> failures = m_grabs.grabAll(wishes);
    for (std::size_t i = 0; i < tried.size(); ++i) conclude(*tried[i], failures[i]);
}

std::optional<KeyGrab> HotKeyTable::preparedGrab(Row& row) {
    row.grab.reset();
    row.keys.reset();
    row.waits = false;
    row.isLifted = false;
    row.isElsewhere = false;
    const Result<KeyGrab> grab = grabFor(row.request);
    if (!grab) {
        refuse(row, grab.error());
        return std::nullopt;
    }
    if (const auto obstacle = m_grabs.obstacleToAll()) {
        refuse(row, *obstacle);
        return std::nullopt;
    }
    if (const auto holder = holderOf(grab.value())) {
        row.waits = true;
        //: %1 is a combination of keys.
        refuse(row,
               {sentence("HotKeys", "%1 cannot be used: Keyrill uses it for something else.")
                    .arg(combinationText(row.request)),
                chooseAnother()},
               holder);
        return std::nullopt;
    }
    return grab.value();
}

void HotKeyTable::conclude(Row& row, const std::optional<std::string>& failure) {
    if (failure) {
        row.grab.reset();
        row.isElsewhere = true;
        return refuse(row, {refusal(combinationText(row.request), *failure), freeIt()});
    }
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
        if (grab && !holderOf(grab.value())) tryRow(row);
    }
}

void HotKeyTable::refuse(Row& row, const Error& why, std::optional<HotKeyId> holder) {
    settle(row, {.status = HotKeyStatus::refused, .error = why, .holder = holder});
}

void HotKeyTable::settle(Row& row, HotKeyState state) {
    const bool changed = row.state != state;
    row.state = std::move(state);
    if (changed && m_observer) m_observer(row.request.id, row.state);
}

Result<KeyGrab> HotKeyTable::grabFor(const HotKeyRequest& request) const {
    const Keymap& keymap = m_keyboard.keymap();
    const std::uint8_t keycode = keymap.keycodeFor(request.keyCode);
    if (keycode == 0) {
        //: %1 is a combination of keys.
        return Error{sentence("HotKeys", "%1 cannot be used: this desktop has no such key.")
                         .arg(combinationText(request)),
                     chooseAnother()};
    }
    if (isTyped(request)) {
        //: %1 is a key.
        return Error{sentence("HotKeys", "%1 cannot be used: nobody could type it any more.")
                         .arg(combinationText(request)),
                     sentence("HotKeys", "Add Ctrl, Alt or Super.")};
    }
    if (const auto held = keymap.heldByNoKey(request.modifiers, request.keyCode))
        return Error{noKeyFor(*held, combinationText(request)), chooseAnother()};
    const auto modifiers = keymap.real(request.modifiers, request.keyCode);
    const ModifierMasks& masks = keymap.masks();
    const xkb_mod_mask_t lockedLevels = (masks.thirdLevel | masks.fifthLevel) & keymap.keys().lockable();
    return KeyGrab{.keycode = keycode,
                   .modifiers = static_cast<std::uint16_t>(modifiers.value() | lockedHolds()),
                   .locks = static_cast<std::uint16_t>(masks.locks() | lockedLevels)};
}

bool HotKeyTable::isTyped(const HotKeyRequest& request) const {
    constexpr std::uint32_t others = modifier::control | modifier::option | modifier::command;
    if ((request.modifiers & others) != 0 || (request.keyCode & keycode::choosers) != 0) return false;
    const bool shift = (request.modifiers & modifier::shift) != 0;
    return !typedText(m_keyboard.keymap(), m_keyboard.layout(), request.keyCode, shift).empty();
}

std::optional<HotKeyId> HotKeyTable::holderOf(const KeyGrab& grab) const {
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [&grab](const auto& entry) {
        return entry.second.grab && entry.second.grab->collidesWith(grab);
    });
    if (row == m_rows.end()) return std::nullopt;
    return row->first;
}

std::string HotKeyTable::combinationText(const HotKeyRequest& request) const {
    std::string text;
    if ((request.modifiers & modifier::control) != 0)
        text += sentence("CombinationText", "Ctrl").text() + '+';
    if ((request.modifiers & modifier::option) != 0) text += modifierName(HeldRole::option) + '+';
    if ((request.modifiers & modifier::shift) != 0) text += modifierName(HeldRole::shift) + '+';
    if ((request.modifiers & modifier::command) != 0) text += modifierName(HeldRole::command) + '+';
    return text + keyLabel(m_keyboard.keymap(), m_keyboard.layout(), request.keyCode);
}
