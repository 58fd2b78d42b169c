// SPDX-License-Identifier: MIT
#include "compositor/WaylandHands.h"

#include <sys/mman.h>
#include <unistd.h>
#include <virtual-keyboard-unstable-v1-client-protocol.h>
#include <wayland-client.h>
#include <xkbcommon/xkbcommon.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace {

constexpr std::uint32_t evdevOffset = 8;

}  // namespace

struct WaylandHands::Parts {
    wl_display* display = nullptr;
    wl_registry* registry = nullptr;
    wl_seat* seat = nullptr;
    zwp_virtual_keyboard_manager_v1* manager = nullptr;
    zwp_virtual_keyboard_v1* keyboard = nullptr;
    xkb_context* context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    xkb_keymap* keymap = nullptr;
    xkb_state* state = nullptr;

    static void added(void* self, wl_registry* registry, std::uint32_t name, const char* interface,
                      std::uint32_t /*version*/) {
        auto& parts = *static_cast<Parts*>(self);
        const auto bind = [&](const wl_interface& wanted) {
            return std::string_view(wanted.name) == interface ? wl_registry_bind(registry, name, &wanted, 1)
                                                              : nullptr;
        };
        if (void* const seat = bind(wl_seat_interface)) parts.seat = static_cast<wl_seat*>(seat);
        if (void* const manager = bind(zwp_virtual_keyboard_manager_v1_interface)) {
            parts.manager = static_cast<zwp_virtual_keyboard_manager_v1*>(manager);
        }
    }

    void sendKeymap() const {
        char* const text = xkb_keymap_get_as_string(keymap, XKB_KEYMAP_FORMAT_TEXT_V1);
        const std::size_t size = std::strlen(text) + 1;
        const int file = memfd_create("layout", MFD_CLOEXEC);
        if (write(file, text, size) != static_cast<ssize_t>(size)) throw std::runtime_error("no keymap");
        zwp_virtual_keyboard_v1_keymap(keyboard, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file,
                                       static_cast<std::uint32_t>(size));
        wl_display_roundtrip(display);
        close(file);
        std::free(text);
    }
};

WaylandHands::WaylandHands(const std::string& socket, const std::string& layouts)
    : m_parts(std::make_unique<Parts>()) {
    m_parts->display = wl_display_connect(socket.c_str());
    if (m_parts->display == nullptr) throw std::runtime_error("no compositor at " + socket);
    static constexpr wl_registry_listener listener{
        .global = Parts::added, .global_remove = [](void*, wl_registry*, std::uint32_t) {}};
    m_parts->registry = wl_display_get_registry(m_parts->display);
    wl_registry_add_listener(m_parts->registry, &listener, m_parts.get());
    wl_display_roundtrip(m_parts->display);
    if (m_parts->manager == nullptr) throw std::runtime_error("the compositor has no virtual keyboards");
    const xkb_rule_names names{
        .rules = "evdev", .model = "pc105", .layout = layouts.c_str(), .variant = "", .options = ""};
    m_parts->keymap = xkb_keymap_new_from_names(m_parts->context, &names, XKB_KEYMAP_COMPILE_NO_FLAGS);
    if (m_parts->keymap == nullptr) throw std::runtime_error("no layouts called " + layouts);
    m_parts->state = xkb_state_new(m_parts->keymap);
    m_parts->keyboard =
        zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(m_parts->manager, m_parts->seat);
    m_parts->sendKeymap();
    // The seat takes the keyboard that spoke last.
    stroke({255});
}

WaylandHands::~WaylandHands() {
    zwp_virtual_keyboard_v1_destroy(m_parts->keyboard);
    zwp_virtual_keyboard_manager_v1_destroy(m_parts->manager);
    if (m_parts->seat != nullptr) wl_seat_destroy(m_parts->seat);
    wl_registry_destroy(m_parts->registry);
    wl_display_disconnect(m_parts->display);
    xkb_state_unref(m_parts->state);
    xkb_keymap_unref(m_parts->keymap);
    xkb_context_unref(m_parts->context);
}

void WaylandHands::send(std::uint8_t keycode, bool press) {
    const auto now = std::chrono::duration_cast<std::chrono::milliseconds>(
        std::chrono::steady_clock::now().time_since_epoch());
    zwp_virtual_keyboard_v1_key(m_parts->keyboard, static_cast<std::uint32_t>(now.count()),
                                keycode - evdevOffset, press ? 1 : 0);
    xkb_state_update_key(m_parts->state, keycode, press ? XKB_KEY_DOWN : XKB_KEY_UP);
    tellState();
}

void WaylandHands::switchTo(std::uint32_t layout) {
    xkb_state_update_mask(m_parts->state, 0, 0, 0, 0, 0, layout);
    tellState();
}

void WaylandHands::tellState() {
    zwp_virtual_keyboard_v1_modifiers(m_parts->keyboard,
                                      xkb_state_serialize_mods(m_parts->state, XKB_STATE_MODS_DEPRESSED),
                                      xkb_state_serialize_mods(m_parts->state, XKB_STATE_MODS_LATCHED),
                                      xkb_state_serialize_mods(m_parts->state, XKB_STATE_MODS_LOCKED),
                                      xkb_state_serialize_layout(m_parts->state, XKB_STATE_LAYOUT_EFFECTIVE));
    if (wl_display_roundtrip(m_parts->display) < 0) throw std::runtime_error("the compositor has gone");
}
