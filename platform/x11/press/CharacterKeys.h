// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <optional>
#include <vector>

#include "platform/Clock.h"
#include "platform/x11/press/KeyBinder.h"

namespace x11 {

/// Which key types a character: one of the keymap, or one that it is bound to.
///
/// Remembers what was typed lately: programs look keys up when they come to them, and what has not been
/// looked up when the keymap is set anew is read as something else. Nobody can say how far they had come.
class CharacterKeys {
  public:
    /// All outlive this.
    CharacterKeys(KeymapWatch& keymap, KeyBinder& binder, const Clock& clock)
        : m_keymap(keymap), m_binder(binder), m_clock(clock) {}

    std::optional<Stroke> find(char32_t character, xkb_layout_index_t group) const;

    /// A character was typed by find()'s stroke.
    void noteTyped(char32_t character, xkb_layout_index_t group, const Stroke& stroke);

    /// What was typed until now has been read, or is no longer asked about.
    void forgetTyped() { m_typed.clear(); }

    /// What became of the keymap since the last call.
    struct Change {
        /// Keys mean something else now, other than those that are bound.
        bool isNew = false;
        /// The text, from the first character on that may have been read as another one.
        std::vector<char32_t> spoilt = {};
    };
    /// Keeps up with the keymap; see KeymapWatch::refresh().
    Result<Change> follow(bool thorough);

  private:
    struct Typed {
        char32_t character = 0;
        xkb_layout_index_t group = 0;
        Stroke stroke;
        Clock::Time time;
    };

    void forgetOld();
    std::vector<char32_t> spoilt() const;

    KeymapWatch& m_keymap;
    KeyBinder& m_binder;
    const Clock& m_clock;
    std::deque<Typed> m_typed;
    /// Those of the keymap that have been told.
    std::size_t m_changes = 0;
};

/// Says what arrived otherwise, perhaps.
Error spoiltText(const std::vector<char32_t>& characters);

}  // namespace x11
