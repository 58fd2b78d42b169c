// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Clock.h"
#include "platform/XkbCodes.h"
#include "platform/keymap/ModifierMasks.h"
#include "platform/keymap/XkbPointers.h"
#include "platform/press/KeyOutput.h"
#include "platform/wayland/WaylandConnection.h"

struct zwp_virtual_keyboard_manager_v1;
struct zwp_virtual_keyboard_v1;

namespace wayland {

/// A keyboard of our own at the seat (virtual-keyboard-unstable-v1), with a keymap, modifiers, locks and a
/// group of its own: what the user's keyboards hold and lock is not part of what is pressed here.
///
/// The compositor releases what is down when the keyboard goes, however the process ends.
class VirtualKeyboard final : public KeyOutput {
  public:
    /// Both outlive this. Fails with a hint where the compositor offers no such keyboards.
    static Result<std::unique_ptr<VirtualKeyboard>> make(WaylandConnection& connection, const Clock& clock);
    ~VirtualKeyboard() override;
    VirtualKeyboard(const VirtualKeyboard&) = delete;
    VirtualKeyboard& operator=(const VirtualKeyboard&) = delete;

    /// Comes to the seat with that keymap (XKB text), nothing down and nothing locked.
    Result<void> plugIn(const std::string& keymap, xkb_layout_index_t group);
    /// Leaves the seat; nothing that is pressed or locked goes anywhere then.
    void unplug();

    /// The keys mean something else from now on; what is down, locked and in force stays so.
    Result<void> setKeymap(const std::string& keymap);

    XkbComponents components() const;

    // KeyOutput
    void press(std::uint8_t keycode) override;
    void release(std::uint8_t keycode) override;
    void lockModifiers(xkb_mod_mask_t mask, xkb_mod_mask_t values) override;
    void lockGroup(xkb_layout_index_t group) override;
    void flush() override { m_connection.flush(); }
    Result<XkbComponents> synchronise() override;

  private:
    VirtualKeyboard(WaylandConnection& connection, const Clock& clock,
                    zwp_virtual_keyboard_manager_v1* manager);

    void send(std::uint8_t keycode, bool press);
    void lock(xkb_mod_mask_t locked, xkb_layout_index_t group);
    void tellModifiers();

    WaylandConnection& m_connection;
    const Clock& m_clock;
    zwp_virtual_keyboard_manager_v1* m_manager;
    zwp_virtual_keyboard_v1* m_keyboard = nullptr;
    XkbContextPointer m_context;
    XkbStatePointer m_state;
    KeycodeSet m_down;
};

}  // namespace wayland
