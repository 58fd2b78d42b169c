// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "platform/Clock.h"
#include "platform/XkbCodes.h"
#include "platform/monitor/MonitorEvents.h"

/// The keys that hands hold, on whichever keyboard, and since when: all that are down and that no running
/// script has pressed. What another program presses may be a hand far away.
class HandKeys {
  public:
    /// `clock` outlives this.
    explicit HandKeys(const Clock& clock) : m_clock(clock) {}

    /// Stands for whichever keyboard.
    static constexpr std::uint16_t anySource = 0;

    /// The keys that are down before the first event, since nobody knows when, on that keyboard.
    void startWith(const std::vector<std::uint8_t>& keycodes, std::uint16_t source = anySource) {
        for (const std::uint8_t keycode : keycodes) {
            m_held.insert_or_assign({source, keycode}, Hold{m_clock.now(), true});
        }
    }

    /// `own` is a stroke of the running script.
    void key(const RawKey& key, bool own) {
        m_held.erase({anySource, key.keycode});
        if (!key.press) {
            if (m_held.erase({key.source, key.keycode}) != 0) m_lastRelease = m_clock.now();
        } else if (!own) {
            m_held.try_emplace({key.source, key.keycode}, Hold{m_clock.now(), false});
        }
    }
    void keyboardGone(std::uint16_t source) {
        std::erase_if(m_held, [source](const auto& entry) { return entry.first.first == source; });
    }

    bool any() const { return !m_held.empty(); }
    bool holds(std::uint8_t keycode) const {
        return std::any_of(m_held.begin(), m_held.end(),
                           [keycode](const auto& entry) { return entry.first.second == keycode; });
    }

    /// When a hand has last let go of any; empty before.
    std::optional<Clock::Time> lastRelease() const { return m_lastRelease; }

    /// Those that have been down for so long that no hand is meant any more: for 2 s before a run started,
    /// or, where nobody knows since when, for 2 s of watching.
    KeycodeSet leftOvers(Clock::Time runStart) const {
        constexpr std::chrono::seconds age{2};
        KeycodeSet left;
        for (const auto& [place, hold] : m_held) {
            const Clock::Time end = hold.isOlder ? m_clock.now() : runStart;
            if (end - hold.since >= age) left.set(place.second);
        }
        return left;
    }

  private:
    struct Hold {
        Clock::Time since;
        /// It was down before, too.
        bool isOlder = false;
    };

    const Clock& m_clock;
    std::map<std::pair<std::uint16_t, std::uint8_t>, Hold> m_held;
    std::optional<Clock::Time> m_lastRelease;
};
