// SPDX-License-Identifier: MIT
#include "platform/wayland/VirtualKeyboard.h"

#include <sys/mman.h>
#include <unistd.h>
#include <virtual-keyboard-unstable-v1-client-protocol.h>

#include <chrono>
#include <utility>

#include "platform/Descriptor.h"
#include "platform/Sentence.h"
#include "platform/keymap/StateComponents.h"

namespace wayland {

namespace {

/// A file in memory that holds the text and a zero.
Descriptor fileWith(const std::string& text) {
    Descriptor file(memfd_create("keymap", MFD_CLOEXEC));
    const std::size_t size = text.size() + 1;
    for (std::size_t written = 0; file && written < size;) {
        const ssize_t more = write(file.number(), text.c_str() + written, size - written);
        if (more <= 0) return {};
        written += static_cast<std::size_t>(more);
    }
    return file;
}

Error refusedKeymap() { return {sentence("Keys", "The keymap for typing could not be made."), ""}; }

}  // namespace

Result<std::unique_ptr<VirtualKeyboard>> VirtualKeyboard::make(WaylandConnection& connection,
                                                               const Clock& clock) {
    auto* const manager = static_cast<zwp_virtual_keyboard_manager_v1*>(
        connection.bind(zwp_virtual_keyboard_manager_v1_interface, 1));
    if (manager == nullptr || connection.seat() == nullptr) {
        return Error{
            sentence("Keys", "This compositor lets no program press keys."),
            sentence("Keys", "Use a compositor with virtual keyboards, such as sway, or an X11 session.")};
    }
    return std::unique_ptr<VirtualKeyboard>(new VirtualKeyboard(connection, clock, manager));
}

VirtualKeyboard::VirtualKeyboard(WaylandConnection& connection, const Clock& clock,
                                 zwp_virtual_keyboard_manager_v1* manager)
    : m_connection(connection),
      m_clock(clock),
      m_manager(manager),
      m_context(xkb_context_new(XKB_CONTEXT_NO_FLAGS)) {}

VirtualKeyboard::~VirtualKeyboard() {
    unplug();
    zwp_virtual_keyboard_manager_v1_destroy(m_manager);
}

Result<void> VirtualKeyboard::plugIn(const std::string& keymap, xkb_layout_index_t group) {
    unplug();
    m_keyboard = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(m_manager, m_connection.seat());
    if (auto set = setKeymap(keymap); !set) return set;
    lock(0, group);
    return m_connection.roundTrip();
}

void VirtualKeyboard::unplug() {
    if (m_keyboard == nullptr) return;
    zwp_virtual_keyboard_v1_destroy(std::exchange(m_keyboard, nullptr));
    m_connection.flush();
    m_state.reset();
    m_down.reset();
}

Result<void> VirtualKeyboard::setKeymap(const std::string& keymap) {
    const XkbKeymapPointer compiled(xkb_keymap_new_from_string(
        m_context.get(), keymap.c_str(), XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS));
    const Descriptor file = fileWith(keymap);
    if (!compiled || !file || m_keyboard == nullptr) return refusedKeymap();
    const XkbComponents before = m_state ? components() : XkbComponents();
    m_state.reset(xkb_state_new(compiled.get()));
    for (std::size_t keycode = 0; keycode < m_down.size(); ++keycode) {
        if (m_down[keycode]) {
            xkb_state_update_key(m_state.get(), static_cast<xkb_keycode_t>(keycode), XKB_KEY_DOWN);
        }
    }
    zwp_virtual_keyboard_v1_keymap(m_keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file.number(),
                                   static_cast<std::uint32_t>(keymap.size() + 1));
    // Whoever is typed into begins with nothing in force, and is told only of a change.
    zwp_virtual_keyboard_v1_modifiers(m_keyboard, 0, 0, 0, 0);
    lock(before.locked, before.lockedLayout);
    return {};
}

XkbComponents VirtualKeyboard::components() const {
    return m_state ? componentsOf(m_state.get()) : XkbComponents{};
}

void VirtualKeyboard::press(std::uint8_t keycode) { send(keycode, true); }

void VirtualKeyboard::release(std::uint8_t keycode) { send(keycode, false); }

void VirtualKeyboard::send(std::uint8_t keycode, bool press) {
    if (m_keyboard == nullptr || m_down[keycode] == press) return;
    const auto time = std::chrono::duration_cast<std::chrono::milliseconds>(m_clock.now().time_since_epoch());
    zwp_virtual_keyboard_v1_key(m_keyboard, static_cast<std::uint32_t>(time.count()),
                                xkbcode::toEvdev(keycode),
                                press ? WL_KEYBOARD_KEY_STATE_PRESSED : WL_KEYBOARD_KEY_STATE_RELEASED);
    m_down[keycode] = press;
    if (xkb_state_update_key(m_state.get(), keycode, press ? XKB_KEY_DOWN : XKB_KEY_UP) != 0) tellModifiers();
}

void VirtualKeyboard::lockModifiers(xkb_mod_mask_t mask, xkb_mod_mask_t values) {
    const XkbComponents now = components();
    lock((now.locked & ~mask) | (values & mask), now.lockedLayout);
}

void VirtualKeyboard::lockGroup(xkb_layout_index_t group) { lock(components().locked, group); }

void VirtualKeyboard::lock(xkb_mod_mask_t locked, xkb_layout_index_t group) {
    if (m_keyboard == nullptr) return;
    const XkbComponents now = components();
    xkb_state_update_mask(m_state.get(), now.depressed, now.latched, locked, now.baseLayout,
                          now.latchedLayout, group);
    tellModifiers();
}

void VirtualKeyboard::tellModifiers() {
    zwp_virtual_keyboard_v1_modifiers(m_keyboard,
                                      xkb_state_serialize_mods(m_state.get(), XKB_STATE_MODS_DEPRESSED),
                                      xkb_state_serialize_mods(m_state.get(), XKB_STATE_MODS_LATCHED),
                                      xkb_state_serialize_mods(m_state.get(), XKB_STATE_MODS_LOCKED),
                                      xkb_state_serialize_layout(m_state.get(), XKB_STATE_LAYOUT_EFFECTIVE));
}

Result<XkbComponents> VirtualKeyboard::synchronise() {
    const auto done = m_connection.roundTrip();
    if (!done) return done.error();
    return components();
}

}  // namespace wayland
