// SPDX-License-Identifier: MIT
#include "platform/fake/FakeHotKeys.h"

#include "platform/KeyCodes.h"
#include "platform/Modifiers.h"
#include "platform/fake/FakeUsKeys.h"

namespace {

/// What of a mask belongs to a combination; locks and the function key do not.
constexpr std::uint32_t combinationMask =
    modifier::command | modifier::shift | modifier::option | modifier::control;

}  // namespace

void FakeHotKeys::install(Handler pressed, Handler released) {
    m_journal.note("installHotKeys");
    m_pressed = std::move(pressed);
    m_released = std::move(released);
}

void FakeHotKeys::request(const HotKeyRequest& request) {
    m_journal.note("request", request.id, request.name, static_cast<std::int32_t>(request.keyCode),
                   Journal::mask(request.modifiers));
    m_rows.erase(request.id);
    HotKeyState state = answer(request);
    m_rows[request.id] = {request, state};
    if (m_observer) m_observer(request.id, state);
}

void FakeHotKeys::setConsent(bool given) {
    if (std::exchange(m_hasConsent, given) == given || !m_needsConsent) return;
    for (auto& [id, row] : m_rows) {
        row.state = {};
        row.state = answer(row.request);
        if (m_observer) m_observer(id, row.state);
    }
}

HotKeyState FakeHotKeys::answer(const HotKeyRequest& request) {
    if (request.keyCode == keycode::none) return {};
    if (m_nextError) return {HotKeyStatus::refused, std::exchange(m_nextError, std::nullopt)};

    if (m_needsConsent && !m_hasConsent)
        return {HotKeyStatus::refused, Error{"The user has not agreed.", "Ask."}};
    const Combination combination{request.keyCode, request.modifiers & combinationMask};
    const std::string name = fakeus::combinationName(combination.first, combination.second);
    if (!keycode::evdevFor(request.keyCode)) {
        return {HotKeyStatus::refused, Error{"No key of this keyboard is " + name + ".", "Choose another."}};
    }
    if (const Row* holder = holderOf(combination)) {
        return {.status = HotKeyStatus::refused,
                .error = Error{name + " is used for something else.", "Choose another."},
                .holder = holder->request.id};
    }
    if (m_foreign.contains(combination)) {
        return {HotKeyStatus::refused, Error{name + " is held by another program.", "Choose another."}};
    }
    return {HotKeyStatus::registered, std::nullopt};
}

void FakeHotKeys::withdraw(HotKeyId id) {
    m_journal.note("withdraw", id);
    const auto row = m_rows.find(id);
    if (row == m_rows.end()) return;
    const bool changes = row->second.state.status != HotKeyStatus::unset;
    m_rows.erase(row);
    if (changes && m_observer) m_observer(id, {});
}

HotKeyState FakeHotKeys::state(HotKeyId id) const {
    const auto row = m_rows.find(id);
    return row == m_rows.end() ? HotKeyState{} : row->second.state;
}

void FakeHotKeys::otherProgramHolds(std::uint32_t keyCode, std::uint32_t modifiers) {
    m_foreign.insert({keyCode, modifiers & combinationMask});
}

void FakeHotKeys::desktopChanges(HotKeyId id, const std::string& trigger) {
    HotKeyState& state = m_rows.at(id).state;
    state = {.status = HotKeyStatus::changed, .trigger = trigger};
    if (m_observer) m_observer(id, HotKeyState(state));
}

std::map<HotKeyId, std::pair<std::uint32_t, std::uint32_t>> FakeHotKeys::registered() const {
    std::map<HotKeyId, std::pair<std::uint32_t, std::uint32_t>> combinations;
    for (const auto& [id, row] : m_rows) {
        if (row.state.status != HotKeyStatus::registered) continue;
        combinations[id] = {row.request.keyCode, row.request.modifiers};
    }
    return combinations;
}

const FakeHotKeys::Row* FakeHotKeys::holderOf(const Combination& combination) const {
    for (const auto& [id, row] : m_rows) {
        if (row.state.status != HotKeyStatus::registered) continue;
        if (row.request.keyCode != combination.first) continue;
        if ((row.request.modifiers & combinationMask) == combination.second) return &row;
    }
    return nullptr;
}

bool FakeHotKeys::takesPress(std::uint32_t keyCode, std::uint32_t heldModifiers) {
    if (m_desktop.isScreenLocked()) return false;
    const Combination combination{keyCode, heldModifiers & combinationMask};
    if (const Row* row = holderOf(combination)) {
        m_held[keyCode] = row->request.id;
        fire(*row);
        return true;
    }
    if (!m_foreign.contains(combination)) return false;
    m_held[keyCode] = std::nullopt;
    return true;
}

void FakeHotKeys::fire(const Row& row) {
    m_lastPressTime = static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(m_clock.now().time_since_epoch()).count());
    if (m_desktop.isRunning() && row.request.cancelsPlayback) m_desktop.cancelPlayback();
    post(row.request, [this, id = row.request.id] {
        if (!m_desktop.isWithheld() && m_pressed) m_pressed(id);
    });
}

bool FakeHotKeys::takesRelease(std::uint32_t keyCode) {
    const auto held = m_held.find(keyCode);
    if (held == m_held.end()) return false;
    const std::optional<HotKeyId> id = held->second;
    m_held.erase(held);
    if (!id) return true;
    const auto row = m_rows.find(*id);
    post(row == m_rows.end() ? HotKeyRequest{} : row->second.request, [this, id = *id] {
        if (!m_desktop.isWithheld() && m_released) m_released(id);
    });
    return true;
}

void FakeHotKeys::post(const HotKeyRequest& request, FakeDesktop::Delivery delivery) {
    if (request.startsPlayback) {
        m_desktop.postPlay(std::move(delivery));
    } else {
        m_desktop.post(std::move(delivery));
    }
}
