// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <vector>

namespace evdev {

/// How a seat's keys repeat, as its compositor tells the programs (wl_keyboard.repeat_info).
struct RepeatRule {
    /// From the press to the first repeat.
    std::chrono::milliseconds delay{600};
    /// From one repeat to the next; zero where keys do not repeat.
    std::chrono::microseconds interval{40'000};
};

/// The repeats of a held key as the focused program makes them for itself: of the key that was pressed last,
/// whatever is done to others meanwhile.
class RepeatCounter {
  public:
    /// By std::chrono::steady_clock.
    using Time = std::chrono::microseconds;

    /// For the presses to come.
    void setRule(const RepeatRule& rule) { m_rule = rule; }
    const RepeatRule& rule() const { return m_rule; }

    /// A key that repeats went down, and takes the place of the one that did.
    void press(std::uint8_t keycode, Time time);
    void release(std::uint8_t keycode);
    void stop() { m_held.reset(); }

    /// The key that repeats before that moment, and how often; nothing if none does.
    struct Repeats {
        std::uint8_t keycode = 0;
        std::vector<Time> times;
    };
    Repeats takeBefore(Time time);

    /// When the next repeat is due.
    std::optional<Time> nextTime() const;

  private:
    struct Held {
        std::uint8_t keycode = 0;
        Time next{0};
        Time interval{0};
    };

    RepeatRule m_rule;
    std::optional<Held> m_held;
};

}  // namespace evdev
