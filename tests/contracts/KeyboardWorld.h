// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>

class EventMonitor;
class HotKeys;

/// A desktop with one keyboard (US layout, no lock on, no key down), its monitor and its hot keys, and the
/// hands of a user outside. Ends with all keys up and all hot keys free.
///
/// An act of the user need not have been delivered when the call returns: settle() waits for that. Key codes
/// and modifier masks are those of platform/KeyCodes.h and platform/Modifiers.h.
class KeyboardWorld {
  public:
    virtual ~KeyboardWorld() = default;

    virtual EventMonitor& monitor() = 0;
    virtual HotKeys& hotKeys() = 0;

    virtual void press(std::uint32_t keyCode) = 0;
    virtual void release(std::uint32_t keyCode) = 0;
    /// The key, pressed first if it is up, stays down until it has repeated at least so often. It is still
    /// down afterwards.
    virtual void holdUntilRepeats(std::uint32_t keyCode, int atLeast) = 0;
    /// Switches the lock, whether by its key or not; nothing of it may reach the handlers as a key-down.
    virtual void setCapsLock(bool on) = 0;
    /// Another program takes the combination as its hot key, for the life of the world.
    virtual void otherClientGrabs(std::uint32_t keyCode, std::uint32_t modifiers) = 0;

    /// Returns once everything that was done has been delivered to the handlers.
    virtual void settle() = 0;
};

/// A desktop on which other programs may take the keyboard for themselves.
class HeldKeyboardWorld : public KeyboardWorld {
  public:
    /// Another program takes keyboard and mouse, as screen lockers do, and shows nothing that explains it.
    virtual void lockerTakesKeyboard() = 0;
    /// A menu opens and takes both.
    virtual void menuTakesKeyboard() = 0;
    /// It stays open for longer than a locker could be taken for a menu.
    virtual void menuStaysOpen() = 0;
    /// The keyboard is everybody's again.
    virtual void keyboardIsGivenBack() = 0;
};

using KeyboardWorldFactory = std::unique_ptr<KeyboardWorld> (*)();
