// SPDX-License-Identifier: MIT
#pragma once

#include <wayland-client.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/keymap/CharacterTable.h"
#include "platform/keymap/Keymap.h"
#include "platform/wayland/WaylandConnection.h"

namespace wayland {

/// What the keys of the seat mean, and which group is in force.
///
/// The compositor tells the keymap of the keyboard that spoke last to everybody; the group it tells to
/// whoever has the focus, so that has to be asked elsewhere. A keyboard of ours speaks too: its keymaps
/// (TypingKeymap) do not count, nor do those of other programs that type. When it has gone and no other one
/// has spoken since, no keymap is told, so the last one is kept for the next process in the runtime folder.
class SeatKeymap {
  public:
    /// `group` tells the group in force, from 0; may be empty. `folder` is the runtime folder, may be empty.
    SeatKeymap(WaylandConnection& connection, const std::string& folder,
               std::function<xkb_layout_index_t()> group);
    ~SeatKeymap();
    SeatKeymap(const SeatKeymap&) = delete;
    SeatKeymap& operator=(const SeatKeymap&) = delete;

    /// As of the last event; where none has been told, that of the last process, or what
    /// $XKB_DEFAULT_LAYOUT and its kin say.
    const Keymap& keymap() const { return *m_keymap; }
    const CharacterTable& characters() const { return *m_characters; }
    /// As xkbcommon writes it.
    const std::string& text() const { return m_text; }
    /// Asked for now; one that the keymap has.
    xkb_layout_index_t group() const;
    /// How a held key repeats; empty until it is told.
    struct Repeat {
        /// In milliseconds.
        std::int32_t delay = 0;
        /// In a second; 0 where keys do not repeat.
        std::int32_t rate = 0;
    };
    const std::optional<Repeat>& repeat() const { return m_repeat; }
    /// Counts the keymaps that were told while a keyboard of ours was at the seat, and are none of ours:
    /// another keyboard has spoken, or the compositor has given ours what it gives the user's.
    unsigned strangersKeymaps() const { return m_strangersKeymaps; }
    /// Whether a keyboard of ours is at the seat.
    bool hasOwnKeyboard() const { return m_isMuted; }

    /// Who is told when the keymap has become another one, or keys repeat in another way; at most one.
    void observe(std::function<void()> changed) { m_changed = std::move(changed); }

    /// A keyboard of ours comes to the seat: from now on what is told may be its keymap, or what the
    /// compositor gives a new keyboard at first. Keeps the keymap for the next process.
    void ownKeyboardComes();
    /// It has gone, and all that was told of it has come.
    void ownKeyboardHasGone() { m_isMuted = false; }

  private:
    static void seatHas(void* self, wl_seat* seat, std::uint32_t capabilities);
    static void toldRepeat(void* self, wl_keyboard* keyboard, std::int32_t rate, std::int32_t delay);
    static void told(void* self, wl_keyboard* keyboard, std::uint32_t format, int file, std::uint32_t size);

    bool adopt(std::string text);
    void keep();
    void adoptDefault();

    std::string m_file;
    std::function<xkb_layout_index_t()> m_group;
    std::function<void()> m_changed;
    XkbContextPointer m_context;
    std::string m_text;
    std::unique_ptr<const Keymap> m_keymap;
    std::unique_ptr<const CharacterTable> m_characters;
    std::optional<Repeat> m_repeat;
    bool m_isKept = false;
    bool m_isMuted = false;
    unsigned m_strangersKeymaps = 0;
    wl_seat* m_seat = nullptr;
    wl_keyboard* m_keyboard = nullptr;
};

}  // namespace wayland
