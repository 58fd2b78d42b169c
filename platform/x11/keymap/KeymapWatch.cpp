// SPDX-License-Identifier: MIT
#include "platform/x11/keymap/KeymapWatch.h"

#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>

#include "platform/x11/keymap/ServerKeymap.h"
#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/XcbXkb.h"

namespace x11 {

namespace {

constexpr std::uint16_t watchedEvents =
    XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
constexpr std::uint16_t watchedParts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS |
                                       XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_KEY_ACTIONS |
                                       XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;

/// Whether two maps differ in anything but the keys of `own`.
bool differ(const DeviceMap& left, const DeviceMap& right, const KeycodeSet& own) {
    if (left.types != right.types || left.firstKeycode != right.firstKeycode) return true;
    for (std::size_t keycode = 0; keycode < left.keys.size(); ++keycode) {
        if (!own[keycode] && left.keys[keycode] != right.keys[keycode]) return true;
    }
    return false;
}

}  // namespace

KeymapWatch::KeymapWatch(XConnection connection) : m_connection(std::move(connection)) {}

Result<std::unique_ptr<KeymapWatch>> KeymapWatch::open(const std::string& display) {
    auto connection = XConnection::open(display);
    if (!connection) return connection.error();
    std::unique_ptr<KeymapWatch> watch(new KeymapWatch(std::move(connection).value()));
    const Extensions extensions(watch->m_connection);
    const auto usable = extensions.use({Extension::keyboard, Extension::input});
    if (!usable) return usable.error();
    watch->m_firstEvent = extensions.firstKeyboardEvent();
    watch->m_coreDevice = xkb_x11_get_core_keyboard_device_id(watch->m_connection);
    if (watch->m_coreDevice < 0) return unreadableKeymap();
    xcb_xkb_select_events(watch->m_connection, XCB_XKB_ID_USE_CORE_KBD, watchedEvents, 0, watchedEvents,
                          watchedParts, watchedParts, nullptr);
    return watch;
}

Result<void> KeymapWatch::read() {
    auto map = readDeviceMap(m_connection, XCB_XKB_ID_USE_CORE_KBD);
    if (!map) return unreadableKeymap();
    auto keymap = keymapOfServer(m_connection);
    if (!keymap) return keymap.error();
    m_map = std::move(*map);
    m_actions = readActions(m_connection);
    m_keymap = std::move(keymap).value();
    m_characters = CharacterTable(*m_keymap, m_ownKeys);
    return {};
}

Result<bool> KeymapWatch::refresh(bool thorough) {
    const bool hasNotice = takeNotices(thorough);
    if (!m_keymap) {
        const auto read = this->read();
        return read ? Result<bool>(true) : read.error();
    }
    if (!hasNotice) return false;
    auto map = readDeviceMap(m_connection, XCB_XKB_ID_USE_CORE_KBD);
    if (!map) return unreadableKeymap();
    const bool isNew = differ(*map, m_map, m_ownKeys) || readActions(m_connection) != m_actions;
    m_map = std::move(*map);
    if (isNew) {
        ++m_changes;
        const auto read = this->read();
        if (!read) return read.error();
    }
    return true;
}

bool KeymapWatch::takeNotices(bool thorough) {
    if (thorough) m_connection.roundTrip();
    bool hasNotice = false;
    while (const Event event = m_connection.nextEvent()) hasNotice = hasNotice || event.is(m_firstEvent);
    return hasNotice;
}

void KeymapWatch::setOwnKeys(const KeycodeSet& keys) { m_ownKeys = keys; }

std::vector<SlaveKeyboard> KeymapWatch::slaves() const {
    auto keyboards = slaveKeyboards(m_connection);
    keyboards.erase(std::remove_if(keyboards.begin(), keyboards.end(),
                                   [&](const SlaveKeyboard& one) { return one.master != m_coreDevice; }),
                    keyboards.end());
    return keyboards;
}

}  // namespace x11
