// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/Clock.h"
#include "platform/XkbCodes.h"

/// What the injector needs of the event manager while a run lasts: the one who presses keys and the one who
/// watches them work on different connections of one process and one thread.
///
/// Key codes are the keymap's (evdev + 8).
class RunWatch {
  public:
    virtual ~RunWatch() = default;

    /// From the first stroke of a run to its end nothing is dispatched: what the user does is kept in order
    /// and dispatched by the event loop afterwards.
    virtual void runStarts() = 0;
    virtual void runEnds() = 0;

    /// Announces one key event before it is sent. The raw event that matches it, and a hot key press that
    /// it triggers, are known as the run's own by count.
    virtual void expectOwnKey(std::uint8_t keycode, bool press) = 0;

    /// A descriptor that is readable when drain() has something to read (it may also be readable without).
    virtual int fileDescriptor() const = 0;
    /// Reads and sorts what has come without dispatching anything. Also what a connection has read already.
    virtual void drain() = 0;

    /// A play command starts: forgets an earlier wish to stop.
    virtual void startPlayback() = 0;
    /// The program itself wishes to stop.
    virtual void stopPlayback() = 0;
    /// Whether the user has asked to stop since then: a hot key that cancels, or Escape held for 0.3 s
    /// that is none of the script's; or has locked the screen. As of the last drain(), and of the clock.
    virtual bool isCancelled() const = 0;
    /// Whether another program may be locking the screen, which is soon known: no key is to be pressed until
    /// then. As of the last drain().
    virtual bool mayBeLocked() const { return false; }
    /// Whether the desktop's server is gone. As of the last drain().
    virtual bool isLost() const = 0;
    /// When a held Escape will have become a wish to stop; empty while it is up.
    virtual std::optional<Clock::Time> cancelDeadline() const = 0;

    /// Takes in every announced key that the server has worked off, and forgets the others: it has made
    /// nothing of them. What programs press from then on and is not announced comes from other programs.
    virtual void settleOwnKeys() = 0;
    /// Whether any key is down that is none of the run's own. As of the last drain().
    virtual bool handsHoldKeys() const = 0;
    /// Whether that one is.
    virtual bool handsHold(std::uint8_t /*keycode*/) const { return false; }
    /// The real modifiers of all hot keys that end a run.
    virtual std::uint16_t modifiersOfStop() const { return 0; }
    /// When the last hand has let go of any key; empty before. As of the last drain().
    virtual std::optional<Clock::Time> lastHandRelease() const { return std::nullopt; }
    /// Those of them that have been down for 2 s before that moment, on whichever keyboard; those that were
    /// down when watching began, for 2 s since then.
    virtual KeycodeSet leftOvers(Clock::Time runStart) const = 0;

    /// Ends the hold on the keyboard that a hot key which is still held gives its watcher, which would
    /// swallow all strokes. The release of the hot key is still reported.
    virtual void endHotKeyGrab() = 0;

    /// Gives a registered combination free while a stroke of the run passes, so that it reaches the
    /// application, and so the key of a hot key that a hand still holds, whose repeats are kept from the
    /// applications; restoreHotKeysOf() takes them back. Locks are not part of `modifiers` (the keymap's real
    /// modifiers). False, and nothing done, if the combination is none of ours.
    virtual bool liftHotKey(std::uint8_t keycode, std::uint16_t modifiers) = 0;
    /// The same with all combinations of a key that the run is going to hold down: the server repeats it,
    /// with whatever modifiers come meanwhile.
    virtual bool liftHotKeysOf(std::uint8_t keycode) = 0;
    /// Takes back what is lifted of that key, which must be up for the server.
    virtual void restoreHotKeysOf(std::uint8_t keycode) = 0;
};
