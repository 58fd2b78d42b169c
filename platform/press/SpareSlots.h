// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "platform/Clock.h"

/// One level of a key that the layout leaves unused.
struct SpareSlot {
    std::uint8_t keycode = 0;
    std::uint8_t level = 0;

    friend bool operator==(const SpareSlot&, const SpareSlot&) = default;
};

/// A character put on a slot.
struct SpareBinding {
    SpareSlot slot;
    char32_t character = 0;

    friend bool operator==(const SpareBinding&, const SpareBinding&) = default;
};

/// Which characters lie on which unused keys. Free slots are taken first, then the least recently used.
///
/// Applications look a key up after it was typed, in the map that they have by then. So a slot may be given a
/// new character only some time after its last use.
class SpareSlots {
  public:
    /// How long an application may take to look a key up.
    static constexpr std::chrono::milliseconds rest{100};

    /// New slots, all free: `levels` (1 to 4) of each key, key by key.
    void reset(const std::vector<std::uint8_t>& keycodes, std::uint8_t levels);

    std::size_t capacity() const { return m_entries.size(); }
    std::optional<SpareSlot> find(char32_t character) const;
    void markUsed(char32_t character, Clock::Time time);
    /// All that lie on a slot now.
    std::vector<SpareBinding> bindings() const;
    /// When everything may be taken away; empty if nothing has been typed.
    std::optional<Clock::Time> restUntil() const;

    struct Plan {
        std::vector<SpareBinding> bindings;
        /// When the slots may be given these characters; empty if at once.
        std::optional<Clock::Time> notBefore;
    };
    /// Slots for those of `wanted` that have none yet, without taking one from the others of `wanted`; what
    /// finds no slot is left out. Nothing is changed before apply().
    Plan plan(const std::vector<char32_t>& wanted) const;
    void apply(const Plan& plan);

  private:
    struct Entry {
        SpareSlot slot;
        char32_t character = 0;
        std::optional<Clock::Time> lastUse;
    };

    std::vector<const Entry*> candidates(const std::unordered_set<char32_t>& kept) const;

    std::vector<Entry> m_entries;
    std::unordered_map<char32_t, std::size_t> m_index;
};
