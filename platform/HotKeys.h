// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Result.h"

/// The number under which a hot key is registered and reported, 1 or more.
using HotKeyId = std::uint32_t;

/// A wish for a global hot key.
struct HotKeyRequest {
    HotKeyId id = 0;
    /// As the settings call it ("play"); not for the user's eyes.
    std::string name;
    /// See platform/KeyCodes.h; keycode::none asks for nothing and leaves the hot key unset.
    std::uint32_t keyCode = 0;
    /// See platform/Modifiers.h; function key and Caps Lock are ignored.
    std::uint32_t modifiers = 0;
    /// Whether a press while a script runs also ends the playback.
    bool cancelsPlayback = false;
    /// Whether it starts a playback: one that cancels discards what is asked for and has not begun.
    bool startsPlayback = false;
    /// What it does, as the user knows it ("Play"), for a desktop that shows it to him; may be empty.
    std::string title = {};
    /// The arguments with which the program, started once more, does the same; for a desktop that does
    /// nothing at a hot key but start programs. Empty if there are none.
    std::vector<std::string> arguments = {};
};

/// How far a request has come. `changed` means registered, but as the combination that the desktop's own
/// settings have for it, which need not be the one that was asked for.
enum class HotKeyStatus { unset, pending, registered, changed, refused };

struct HotKeyState {
    HotKeyStatus status = HotKeyStatus::unset;
    /// Set while refused: its message names the combination and why it cannot be had.
    std::optional<Error> error = {};
    /// While changed: what is to be pressed, in the desktop's words; may be empty.
    std::string trigger = {};
    /// While refused because another hot key of the same service has the combination: which one.
    std::optional<HotKeyId> holder = {};

    friend bool operator==(const HotKeyState&, const HotKeyState&) = default;
};

/// Global hot keys: a combination is taken from all applications and its presses and releases come here.
///
/// A held hot key presses once. Its release is known by the key alone, whatever the modifiers are by then.
/// Lock states do not matter. Of two hot keys with one combination the first keeps it, the second is refused.
/// A change of the keyboard layout moves the grabs along. A combination that another program holds is taken
/// as soon as it is given free. Strokes of a running script never fire a hot key; the user's presses during a
/// run come after it, in one order with the monitor's events, but those that start a playback only where no
/// stop, by hot key or by Escape, came after them.
class HotKeys {
  public:
    using Handler = std::function<void(HotKeyId)>;
    using Observer = std::function<void(HotKeyId, const HotKeyState&)>;

    virtual ~HotKeys() = default;

    /// Who is told of presses and releases; a second call replaces both.
    virtual void install(Handler pressed, Handler released) = 0;

    /// Who is told of every change of a state, also of those that come later; at most one.
    virtual void observe(Observer observer) = 0;

    /// Asks for a combination, in place of what the id had. The answer may come later, by way of the
    /// observer.
    virtual void request(const HotKeyRequest& request) = 0;

    /// Asks for several, each with an id of its own, as if one after the other; where the desktop allows it,
    /// hundreds take no longer than a few.
    virtual void requestAll(const std::vector<HotKeyRequest>& requests) {
        for (const HotKeyRequest& wish : requests) request(wish);
    }

    /// Gives the combination of the id free; an id without one is ignored.
    virtual void withdraw(HotKeyId id) = 0;

    virtual HotKeyState state(HotKeyId id) const = 0;

    /// Whether hot keys are entries in the settings of the desktop's user, which are written only once he has
    /// agreed: until then each request is refused.
    virtual bool needsConsent() const { return false; }
    /// He agrees from now on, or no longer: what has been asked for is written, or taken out. He does not as
    /// long as nobody has said so.
    virtual void setConsent(bool /*given*/) {}

    /// The window system's time stamp of the latest press, 0 before the first: what a window that is raised
    /// because of it shows as its permission to take the focus.
    virtual std::uint32_t lastPressTime() const = 0;
};
