// SPDX-License-Identifier: MIT
#include "platform/wayland/LayerInput.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "platform/Descriptor.h"
#include "platform/Modifiers.h"
#include "platform/XkbCodes.h"
#include "platform/wayland/KeymapText.h"

namespace wayland {

namespace {

constexpr std::uint32_t seatVersion = 5;
constexpr int millisecondsInSecond = 1000;

std::uint32_t heldModifiers(xkb_state& state) {
    static constexpr std::array names{
        std::pair{XKB_MOD_NAME_SHIFT, modifier::shift}, std::pair{XKB_MOD_NAME_CTRL, modifier::control},
        std::pair{XKB_MOD_NAME_ALT, modifier::option}, std::pair{XKB_MOD_NAME_LOGO, modifier::command}};
    std::uint32_t held = 0;
    for (const auto& [name, mask] : names) {
        if (xkb_state_mod_name_is_active(&state, name, XKB_STATE_MODS_EFFECTIVE) > 0) held |= mask;
    }
    return held;
}

std::string textOf(xkb_state& state, xkb_keycode_t keycode) {
    std::array<char, 64> text{};
    const int size = xkb_state_key_get_utf8(&state, keycode, text.data(), text.size());
    return {text.data(), std::min(static_cast<std::size_t>(std::max(0, size)), text.size() - 1)};
}

}  // namespace

LayerInput::LayerInput(const WaylandConnection& connection, wl_surface& surface, LayerContent& content)
    : m_surface(surface),
      m_content(content),
      m_seat(static_cast<wl_seat*>(connection.bind(wl_seat_interface, seatVersion))),
      m_context(xkb_context_new(XKB_CONTEXT_NO_FLAGS)) {
    static constexpr wl_seat_listener listener{.capabilities = seatHas,
                                               .name = [](void*, wl_seat*, const char*) {}};
    if (m_seat != nullptr) wl_seat_add_listener(m_seat, &listener, this);
}

LayerInput::~LayerInput() {
    followPointer(false);
    if (m_keyboard != nullptr) wl_keyboard_release(m_keyboard);
    setKeyboard(false);
    if (m_seat != nullptr) wl_seat_release(m_seat);
}

void LayerInput::seatHas(void* self, wl_seat* /*seat*/, std::uint32_t capabilities) {
    auto& input = *static_cast<LayerInput*>(self);
    input.followKeyboard((capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0);
    input.followPointer((capabilities & WL_SEAT_CAPABILITY_POINTER) != 0);
}

void LayerInput::followKeyboard(bool isThere) {
    if (isThere == (m_keyboard != nullptr)) return;
    if (!isThere) {
        wl_keyboard_release(std::exchange(m_keyboard, nullptr));
        setKeyboard(false);
        return;
    }
    using Input = LayerInput;
    static constexpr wl_keyboard_listener listener{
        .keymap =
            [](void* self, wl_keyboard*, std::uint32_t format, int file, std::uint32_t size) {
                const Descriptor owned(file);
                if (format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1) static_cast<Input*>(self)->adopt(file, size);
            },
        .enter =
            [](void* self, wl_keyboard*, std::uint32_t, wl_surface* surface, wl_array*) {
                auto& input = *static_cast<Input*>(self);
                if (surface == &input.m_surface) input.setKeyboard(true);
            },
        .leave = [](void* self, wl_keyboard*, std::uint32_t,
                    wl_surface*) { static_cast<Input*>(self)->setKeyboard(false); },
        .key =
            [](void* self, wl_keyboard*, std::uint32_t, std::uint32_t, std::uint32_t key,
               std::uint32_t state) {
                static_cast<Input*>(self)->keyChanges(key + xkbcode::evdevOffset,
                                                      state == WL_KEYBOARD_KEY_STATE_PRESSED);
            },
        .modifiers =
            [](void* self, wl_keyboard*, std::uint32_t, std::uint32_t down, std::uint32_t latched,
               std::uint32_t locked, std::uint32_t group) {
                auto& input = *static_cast<Input*>(self);
                if (input.m_state)
                    xkb_state_update_mask(input.m_state.get(), down, latched, locked, 0, 0, group);
            },
        .repeat_info =
            [](void* self, wl_keyboard*, std::int32_t rate, std::int32_t delay) {
                auto& input = *static_cast<Input*>(self);
                input.m_repeatInterval = rate > 0 ? std::max(1, millisecondsInSecond / rate) : 0;
                input.m_repeatDelay = rate > 0 ? std::max(1, delay) : 0;
            }};
    m_keyboard = wl_seat_get_keyboard(m_seat);
    wl_keyboard_add_listener(m_keyboard, &listener, this);
}

void LayerInput::followPointer(bool isThere) {
    if (isThere == (m_pointer != nullptr)) return;
    if (!isThere) {
        wl_pointer_release(std::exchange(m_pointer, nullptr));
        if (std::exchange(m_isPointerHere, false)) pointerMoves(LayerPointer::Kind::leave);
        return;
    }
    using Input = LayerInput;
    static constexpr wl_pointer_listener listener{
        .enter =
            [](void* self, wl_pointer*, std::uint32_t, wl_surface* surface, wl_fixed_t x, wl_fixed_t y) {
                auto& input = *static_cast<Input*>(self);
                input.m_isPointerHere = surface == &input.m_surface;
                input.m_pointerPlace = {wl_fixed_to_double(x), wl_fixed_to_double(y)};
                if (input.m_isPointerHere) input.pointerMoves(LayerPointer::Kind::motion);
            },
        .leave =
            [](void* self, wl_pointer*, std::uint32_t, wl_surface*) {
                auto& input = *static_cast<Input*>(self);
                if (std::exchange(input.m_isPointerHere, false))
                    input.pointerMoves(LayerPointer::Kind::leave);
            },
        .motion =
            [](void* self, wl_pointer*, std::uint32_t, wl_fixed_t x, wl_fixed_t y) {
                auto& input = *static_cast<Input*>(self);
                input.m_pointerPlace = {wl_fixed_to_double(x), wl_fixed_to_double(y)};
                if (input.m_isPointerHere) input.pointerMoves(LayerPointer::Kind::motion);
            },
        .button =
            [](void* self, wl_pointer*, std::uint32_t, std::uint32_t, std::uint32_t button,
               std::uint32_t state) {
                auto& input = *static_cast<Input*>(self);
                if (!input.m_isPointerHere || button != BTN_LEFT) return;
                input.pointerMoves(state == WL_POINTER_BUTTON_STATE_PRESSED ? LayerPointer::Kind::press
                                                                            : LayerPointer::Kind::release);
            },
        .axis = [](void*, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t) {},
        .frame = [](void*, wl_pointer*) {},
        .axis_source = [](void*, wl_pointer*, std::uint32_t) {},
        .axis_stop = [](void*, wl_pointer*, std::uint32_t, std::uint32_t) {},
        .axis_discrete = [](void*, wl_pointer*, std::uint32_t, std::int32_t) {},
        .axis_value120 = [](void*, wl_pointer*, std::uint32_t, std::int32_t) {}};
    m_pointer = wl_seat_get_pointer(m_seat);
    wl_pointer_add_listener(m_pointer, &listener, this);
}

void LayerInput::adopt(int file, std::uint32_t size) {
    m_state.reset();
    m_keymap.reset(xkb_keymap_new_from_string(m_context.get(), keymapText(file, size).c_str(),
                                              XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (m_keymap) m_state.reset(xkb_state_new(m_keymap.get()));
}

void LayerInput::setKeyboard(bool has) {
    if (std::exchange(m_hasKeyboard, has) != has) m_content.keyboardComesOrGoes(has);
}

void LayerInput::keyChanges(xkb_keycode_t keycode, bool isPress) {
    if (!m_hasKeyboard || !m_state) return;
    const xkb_keysym_t symbol = xkb_state_key_get_one_sym(m_state.get(), keycode);
    const bool repeats = xkb_keymap_key_repeats(m_keymap.get(), keycode) != 0;
    m_content.keyChanges({.keycode = keycode,
                          .symbol = symbol,
                          .character = xkb_keysym_to_utf32(symbol),
                          .text = textOf(*m_state, keycode),
                          .modifiers = heldModifiers(*m_state),
                          .isPress = isPress,
                          .repeatDelay = repeats ? m_repeatDelay : 0,
                          .repeatInterval = repeats ? m_repeatInterval : 0});
}

void LayerInput::pointerMoves(LayerPointer::Kind kind) { m_content.pointerMoves({kind, m_pointerPlace}); }

}  // namespace wayland
