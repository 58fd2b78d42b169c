// SPDX-License-Identifier: MIT
#include "platform/x11/press/InjectionConnection.h"

#include <xcb/xtest.h>

#include <bit>

#include "platform/Sentence.h"
#include "platform/x11/server/Extensions.h"
#include "platform/x11/server/XcbXkb.h"

namespace x11 {

namespace {
constexpr std::size_t keyEventSize = 36;
constexpr std::size_t lockSize = 16;
}  // namespace

Result<InjectionConnection> InjectionConnection::open(const std::string& display, RunWatch& watch) {
    auto connection = XConnection::open(display);
    if (!connection) return connection.error();
    // Asked now, or the question would stand in the middle of the first stroke.
    const auto usable =
        Extensions(connection.value()).use({Extension::test, Extension::keyboard, Extension::input});
    if (!usable) return usable.error();
    return InjectionConnection(std::move(connection).value(), watch);
}

std::size_t InjectionConnection::sizeOf(const Stroke& stroke) {
    const auto modifiers = static_cast<std::size_t>(std::popcount(stroke.modifiers));
    constexpr std::size_t locksAndGroups = 5;
    // One more where the key goes up first.
    return ((modifiers + 2) * 2 + 1) * keyEventSize + locksAndGroups * lockSize;
}

void InjectionConnection::press(std::uint8_t keycode) { fake(keycode, true); }

void InjectionConnection::release(std::uint8_t keycode) { fake(keycode, false); }

void InjectionConnection::press(const KeycodeSet& keycodes) {
    for (std::size_t keycode = 0; keycode < keycodes.size(); ++keycode) {
        if (keycodes[keycode]) press(static_cast<std::uint8_t>(keycode));
    }
}

void InjectionConnection::release(const KeycodeSet& keycodes) {
    for (std::size_t keycode = 0; keycode < keycodes.size(); ++keycode) {
        if (keycodes[keycode]) release(static_cast<std::uint8_t>(keycode));
    }
}

void InjectionConnection::fake(std::uint8_t keycode, bool press) {
    m_watch->expectOwnKey(keycode, press);
    const std::uint8_t type = press ? XCB_KEY_PRESS : XCB_KEY_RELEASE;
    xcb_test_fake_input(get(), type, keycode, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    m_queued += keyEventSize;
}

void InjectionConnection::lockModifiers(xkb_mod_mask_t mask, xkb_mod_mask_t values) {
    // Values outside of the mask are no values to be left alone but an error of the whole request.
    xcb_xkb_latch_lock_state(get(), XCB_XKB_ID_USE_CORE_KBD, static_cast<std::uint8_t>(mask),
                             static_cast<std::uint8_t>(values & mask), 0, 0, 0, 0, 0);
    m_queued += lockSize;
}

void InjectionConnection::lockGroup(xkb_layout_index_t group) {
    xcb_xkb_latch_lock_state(get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, static_cast<std::uint8_t>(group), 0, 0,
                             0);
    m_queued += lockSize;
}

void InjectionConnection::clearLatches() {
    xcb_xkb_latch_lock_state(get(), XCB_XKB_ID_USE_CORE_KBD, 0, 0, 0, 0, 0xFF, 1, 0);
    m_queued += lockSize;
}

void InjectionConnection::flush() {
    xcb_flush(get());
    m_queued = 0;
}

Result<XkbComponents> InjectionConnection::synchronise() {
    flush();
    const auto state = stateOfServer(get());
    if (!state)
        return Error{sentence("Session", "The connection to the X server was lost."),
                     sentence("Session", "Log in again.")};
    // Nothing is selected, but some events are sent to everybody; they would pile up.
    while (const Event event{xcb_poll_for_queued_event(get())}) continue;
    return *state;
}

}  // namespace x11
