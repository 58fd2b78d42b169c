// SPDX-License-Identifier: MIT
#include "display/Hands.h"

#include <xcb/xtest.h>

#include <stdexcept>
#include <vector>

#include "display/Connection.h"
#include "platform/x11/server/Extensions.h"

// The C header names a structure member "explicit".
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

Hands::Hands(const std::string& display) : m_connection(connectTo(display)) {
    if (!x11::Extensions(m_connection).use({x11::Extension::keyboard})) throw std::runtime_error("no XKB");
}

void Hands::tap(std::uint8_t keycode) const {
    press(keycode);
    release(keycode);
}

void Hands::stroke(std::initializer_list<std::uint8_t> keycodes) const {
    const std::vector<std::uint8_t> keys(keycodes);
    for (const std::uint8_t key : keys) press(key);
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) release(*key);
}

void Hands::click(std::uint8_t button) const {
    for (const int type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE}) {
        xcb_test_fake_input(m_connection, static_cast<std::uint8_t>(type), button, XCB_CURRENT_TIME,
                            m_connection.root(), 0, 0, 0);
    }
}

void Hands::finish() const {
    // The first reply may be written before what the server has for others.
    m_connection.roundTrip();
    m_connection.roundTrip();
}

void Hands::lock(std::uint8_t modifiers, bool on) const {
    xcb_xkb_latch_lock_state(m_connection, XCB_XKB_ID_USE_CORE_KBD, modifiers, on ? modifiers : 0, 0, 0, 0, 0,
                             0);
}

void Hands::lockGroup(std::uint8_t group) const {
    xcb_xkb_latch_lock_state(m_connection, XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, group, 0, 0, 0);
}

void Hands::fake(std::uint8_t keycode, bool down) const {
    xcb_test_fake_input(m_connection, down ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keycode, XCB_CURRENT_TIME,
                        m_connection.root(), 0, 0, 0);
}
