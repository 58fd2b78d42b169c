// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <memory>

#include "platform/keymap/Keymap.h"
#include "platform/keymap/XkbComponents.h"

/// The keyboard's map and its modifiers and group at the moment of the event that is being worked on.
///
/// Raw key events are fed as they come; the server's own account follows each change and corrects what was
/// foreseen wrongly. Why not that account alone: while another program holds the keyboard frozen, raw events
/// run ahead of it.
class KeyboardState {
  public:
    KeyboardState(std::unique_ptr<Keymap> keymap, const XkbComponents& components);

    const Keymap& keymap() const { return *m_keymap; }
    /// The group in force.
    xkb_layout_index_t layout() const;
    /// The real modifiers in force: held, latched and locked.
    xkb_mod_mask_t modifiers() const;
    XkbComponents components() const;

    void feed(std::uint8_t keycode, bool press);
    /// The server says what came of a key event, or of a request (keycode 0).
    void confirm(const XkbComponents& components, std::uint8_t keycode, bool press);
    /// Modifiers and group stay as they are.
    void replaceKeymap(std::unique_ptr<Keymap> keymap);
    void adopt(const XkbComponents& components);

  private:
    /// A change that was foreseen and that the server has not confirmed yet.
    struct Foreseen {
        std::uint8_t keycode = 0;
        bool press = false;
        XkbComponents components;
    };

    std::unique_ptr<Keymap> m_keymap;
    XkbStatePointer m_state;
    std::deque<Foreseen> m_foreseen;
};
