// SPDX-License-Identifier: MIT
#include "platform/keymap/KeyboardState.h"

#include <algorithm>

#include "platform/keymap/StateComponents.h"

namespace {

/// What a server that confirms nothing may leave behind.
constexpr std::size_t maxForeseen = 64;

}  // namespace

KeyboardState::KeyboardState(std::unique_ptr<Keymap> keymap, const XkbComponents& components)
    : m_keymap(std::move(keymap)), m_state(xkb_state_new(m_keymap->get())) {
    adopt(components);
}

xkb_layout_index_t KeyboardState::layout() const {
    return xkb_state_serialize_layout(m_state.get(), XKB_STATE_LAYOUT_EFFECTIVE);
}

xkb_mod_mask_t KeyboardState::modifiers() const {
    return xkb_state_serialize_mods(m_state.get(), XKB_STATE_MODS_EFFECTIVE) & realModifiers;
}

XkbComponents KeyboardState::components() const { return componentsOf(m_state.get()); }

void KeyboardState::feed(std::uint8_t keycode, bool press) {
    const auto changed = xkb_state_update_key(m_state.get(), keycode, press ? XKB_KEY_DOWN : XKB_KEY_UP);
    if (changed == 0) return;
    m_foreseen.push_back({keycode, press, components()});
    if (m_foreseen.size() > maxForeseen) m_foreseen.pop_front();
}

void KeyboardState::confirm(const XkbComponents& components, std::uint8_t keycode, bool press) {
    const auto match = std::find_if(m_foreseen.begin(), m_foreseen.end(), [&](const Foreseen& change) {
        return keycode != 0 && change.keycode == keycode && change.press == press;
    });
    if (match == m_foreseen.end()) {
        m_foreseen.clear();
        adopt(components);
        return;
    }
    const bool asForeseen = match->components == components;
    m_foreseen.erase(m_foreseen.begin(), match + 1);
    if (!asForeseen) adopt(components);
}

void KeyboardState::replaceKeymap(std::unique_ptr<Keymap> keymap) {
    const XkbComponents kept = components();
    m_foreseen.clear();
    m_state.reset(xkb_state_new(keymap->get()));
    m_keymap = std::move(keymap);
    adopt(kept);
}

void KeyboardState::adopt(const XkbComponents& c) {
    xkb_state_update_mask(m_state.get(), c.depressed, c.latched, c.locked, c.baseLayout, c.latchedLayout,
                          c.lockedLayout);
}
