// SPDX-License-Identifier: MIT
#pragma once

#include "platform/press/SpareSlots.h"
#include "platform/x11/keymap/BoundKeysRecord.h"
#include "platform/x11/keymap/KeyboardMaps.h"
#include "platform/x11/keymap/KeymapWatch.h"
#include "platform/x11/press/InjectionConnection.h"
#include "platform/x11/windows/Receivers.h"

namespace x11 {

/// Puts characters that no layout types on unused keys of the keymap.
///
/// All that are wanted are bound in one request, since each change of the keymap makes every program read it
/// again, and window managers take their grabs anew. What is bound stays bound for the next text. The request
/// goes to the core keyboard, or to each keyboard with its own keys where their maps differ: the core
/// keyboard's map would overwrite theirs.
class KeyBinder {
  public:
    /// A run waits for those who are typed into for as long as `patience`.
    KeyBinder(InjectionConnection& connection, KeymapWatch& keymap, Receivers& receivers, Clock& clock,
              std::chrono::milliseconds patience);
    /// Takes everything back, when the last character typed has been read, after a second at the latest.
    ~KeyBinder();
    KeyBinder(const KeyBinder&) = delete;
    KeyBinder& operator=(const KeyBinder&) = delete;

    /// Takes back what a dead process has left, as far as the keys still are as it left them.
    void clearLeftovers();

    /// After the keymap was read again: forgets everything if a bound key has become something else.
    void recheck();

    /// Whoever gets the keys now is about to be typed into.
    void noteReader();
    std::optional<Stroke> find(char32_t character) const;
    void markUsed(char32_t character) { m_slots.markUsed(character, m_clock.now()); }
    /// Characters that can lie bound at the same time; 0 where the keymap has no unused key.
    std::size_t capacity();

    /// Whether all keyboards have the same keymap; otherwise the core keyboard has that of the one that spoke
    /// last.
    bool areKeyboardsEqual() const;

    /// What bind() would do, and from when on it may.
    SpareSlots::Plan plan(const std::vector<char32_t>& wanted);
    /// Waits until it may: the moment has come, and whoever was typed into has read what the keys were. False
    /// if somebody has not after so long that nobody can be waiting for it.
    Step<bool> awaitReaders(const SpareSlots::Plan& plan, RunWait& wait);
    /// The same for everything that is bound.
    Step<bool> awaitReaders(RunWait& wait);
    /// Fails if the server refuses the new map.
    Result<void> bind(const SpareSlots::Plan& plan);

  private:
    void survey();
    KeyboardMaps maps() const;
    void put(DeviceMap& map, const SpareBinding& binding) const;
    Step<bool> awaitReaders(RunWait& wait, std::chrono::milliseconds longest);
    void takeBack();

    InjectionConnection& m_connection;
    KeymapWatch& m_keymap;
    Receivers& m_receivers;
    Clock& m_clock;
    std::chrono::milliseconds m_patience;
    /// The last time that keys were to be bound anew; nobody waits as long a second time.
    bool m_hasGivenUp = false;
    BoundKeysRecord m_record;
    SpareSlots m_slots;
    std::uint8_t m_levels = 0;
};

}  // namespace x11
