// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <bitset>
#include <cstdint>
#include <optional>
#include <vector>

namespace keyaccess {

/// The kernel's key codes that keymaps have, both included.
inline constexpr std::uint16_t lowestKey = 1;
inline constexpr std::uint16_t highestKey = 247;
using KeySet = std::bitset<highestKey + 1>;

/// Whether a caller may press the key: not those that switch the machine off or send it to sleep.
bool isKeyOffered(std::uint16_t code);

struct Stroke {
    std::uint16_t code = 0;
    bool press = false;

    friend bool operator==(const Stroke&, const Stroke&) = default;
};

/// The most that one call may ask for.
inline constexpr std::size_t mostStrokes = 64;

/// What a caller wants typed: `value` is of the type a(qy), whatever else it is; code and 1 for a press, 0
/// for a release. Empty where there is none, too many, or one that no caller may ask for; then nothing of it
/// is typed.
std::optional<std::vector<Stroke>> strokesOf(GVariant* value);

/// What is down of a keyboard, and what may be done with it next.
class DownKeys {
  public:
    /// False for what makes the kernel's own hot key (Alt+SysRq), which can end processes and the machine.
    bool mayFollow(const Stroke& stroke) const;
    void follow(const Stroke& stroke) { m_down[stroke.code] = stroke.press; }

  private:
    KeySet m_down;
};

}  // namespace keyaccess
