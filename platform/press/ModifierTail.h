// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/Clock.h"
#include "platform/XkbCodes.h"
#include "platform/press/KeyOutput.h"

/// The modifier keys of a stroke with Control, Alt or Super, which stay down for a while after its key.
///
/// Why: window managers hold the keyboard from Alt+Tab until Alt is up. One that is told of both at once does
/// not see that Alt is up, and holds it for good. And where the next stroke has the same modifiers it is part
/// of the same hold: Alt over Tab, Tab switches once, to the window after the next.
class ModifierTail {
  public:
    /// From the key's release to theirs; openbox needs 20 ms.
    static constexpr std::chrono::milliseconds length{30};

    ModifierTail(KeyOutput& output, const Clock& clock) : m_output(output), m_clock(clock) {}

    bool isDown() const { return !m_keys.empty(); }
    KeycodeSet keycodes() const;
    /// When its time is over.
    Clock::Time end() const { return m_end; }
    /// Whether a stroke with that of Control, Alt and Super belongs to the same hold; without any of them,
    /// and while nothing is down, nothing does.
    bool isContinuedBy(xkb_mod_mask_t commands) const { return isDown() && commands == m_commands; }

    /// Queues what makes these keys, in this order, and no others of a tail those that are down: for a
    /// stroke.
    bool press(std::vector<std::uint8_t> keys);
    /// The stroke's key is up again: with any of Control, Alt and Super its modifiers stay down, without they
    /// are released.
    void keyIsUp(xkb_mod_mask_t commands);
    /// The server has worked the stroke off: from now on their time counts.
    void begin() { m_end = m_clock.now() + length; }
    /// Queues the releases, if any, of all but these.
    void release(const KeycodeSet& staying = {});
    /// These are up already.
    void forget(const KeycodeSet& keycodes);

  private:
    KeyOutput& m_output;
    const Clock& m_clock;
    std::vector<std::uint8_t> m_keys;
    xkb_mod_mask_t m_commands = 0;
    Clock::Time m_end = {};
};
