// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "platform/KeyEvent.h"
#include "platform/Result.h"
#include "platform/Windows.h"

class WindowKeys;

/// The keyboard events of every application, in the order in which the user made them.
///
/// - A held key gives one key-down and as many auto-repeats as the focused application got. Redundant presses
///   and releases give nothing.
/// - Modifier, lock and level-chooser keys are never key-downs, unless they switch the layout with another
/// one
///   held: such a stroke is one of its key with the others as modifiers. A modifier change comes before the
///   key-down that follows it; its mask passes through 0 only when all modifier keys are up.
/// - Locks are never reported at rest. Just before a key-down the mask is reported that types the same
///   character with locks off, after it the held modifiers again. Where that mask would be 0 while a modifier
///   key is down, Caps Lock alone (0x0400) is reported in its place: it shifts nothing but A to Z.
/// - The press, the repeats and the release of a registered hot key are not delivered; the modifier changes
///   around it are.
/// - One order with the hot keys: before a hot key is dispatched, all events up to its press are delivered.
/// - While the screen is locked no key press is delivered.
/// - While a macro is being recorded no key press is delivered either that another program gets alone, as
///   screen lockers do that tell no desktop. A menu, a hot key of another program or a game that has the
///   keyboard for a moment loses none: what is pressed meanwhile may be delivered a little later, in order.
/// - What the user does while a script runs is kept and delivered in order after the run.
///
/// The handler runs on the main thread and may run a script; it is never entered twice at a time.
class EventMonitor {
  public:
    using Handler = std::function<void(const KeyEvent&)>;

    virtual ~EventMonitor() = default;

    /// What of this does not work here though the rest does, and what is lost by it; as of the start.
    virtual std::optional<Error> shortcoming() const { return std::nullopt; }

    /// Whether foreign key events are shown at all, so that something can be recorded; the error says why not
    /// and what to do.
    virtual Result<void> showsKeys() const { return {}; }

    /// Starts delivering to `handler`; a second call replaces it. Fails where the desktop shows no foreign
    /// key events.
    virtual Result<void> install(Handler handler) = 0;

    /// While a question of the program's own is open: key presses are not delivered and hot keys are dropped,
    /// modifier changes go on.
    virtual void setWithheld(bool withheld) = 0;

    /// What is withheld now is what that window of ours gets, which has the keyboard to itself, as a menu
    /// has: what it no longer gets is delivered, though setWithheld() may follow later. Until that is called.
    ///
    /// Why: the window is told last that it has let go of the keyboard, and whoever types does not wait.
    virtual void withholdOnlyFor(WindowId /*window*/) {}

    /// Whether the strokes of a running script are delivered after the run like the user's own. Set while a
    /// macro is being recorded; off at first.
    virtual void setKeepsOwnStrokes(bool keeps) = 0;

    /// Whether a macro is being recorded; off at first. While one is, what is typed in another layout than
    /// the strokes since its beginning have switched to names that layout in its code (platform/KeyCodes.h):
    /// the layout was chosen in a panel, or is in force only while a key is held.
    virtual void setRecording(bool recording) = 0;

    /// Whether presses and releases of the keys that hold Control, Alt, Super and Shift are delivered, too,
    /// while a macro is being recorded: each beside the modifier change that it makes. Off at first. They are
    /// kept back where key presses are.
    virtual void setShowsModifierKeys(bool shows) = 0;

    /// What becomes of a recording where the desktop shows keys only to whom the user allows it.
    enum class Access {
        asked,    ///< it is being asked for; no key is seen until it is given
        given,    ///< keys are seen
        refused,  ///< none has been seen, and none will be
        ended,    ///< it has ended in the middle: no key is seen any more
    };
    using AccessObserver = std::function<void(Access access, const std::optional<Error>& why)>;
    /// Who is told of each change of it while a macro is being recorded, once the keys seen before have been
    /// delivered; at most one. Access that is given at once is not told. `why` is set where it was refused or
    /// has ended.
    // NOLINTNEXTLINE(performance-unnecessary-value-param): who shows keys by permission keeps it.
    virtual void observeAccess(AccessObserver /*changed*/) {}
    /// By which a recording that may see no keys records those of a window of ours; null where there is no
    /// such recording.
    virtual WindowKeys* windowKeys() { return nullptr; }

    /// Who is told when, in a recording, key presses are no longer delivered because another program has the
    /// keyboard to itself, and when they are again; at most one.
    virtual void observeHold(std::function<void(bool held)> changed) = 0;
};
