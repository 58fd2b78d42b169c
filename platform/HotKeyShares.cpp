// SPDX-License-Identifier: MIT
#include "platform/HotKeyShares.h"

#include <utility>

HotKeyShares::HotKeyShares(HotKeys& hotKeys) : m_hotKeys(hotKeys) {
    m_hotKeys.install([this](HotKeyId id) { of(id).press(id); }, [this](HotKeyId id) { of(id).release(id); });
    m_hotKeys.observe([this](HotKeyId id, const HotKeyState& state) { of(id).tell(id, state); });
}

HotKeyShares::~HotKeyShares() {
    m_hotKeys.install({}, {});
    m_hotKeys.observe({});
}

void HotKeyShares::Share::install(Handler pressed, Handler released) {
    m_pressed = std::move(pressed);
    m_released = std::move(released);
}

void HotKeyShares::Share::observe(Observer observer) { m_observer = std::move(observer); }

void HotKeyShares::Share::press(HotKeyId id) const {
    if (m_pressed) m_pressed(id);
}

void HotKeyShares::Share::release(HotKeyId id) const {
    if (m_released) m_released(id);
}

void HotKeyShares::Share::tell(HotKeyId id, const HotKeyState& state) const {
    if (m_observer) m_observer(id, state);
}
