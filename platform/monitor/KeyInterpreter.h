// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <variant>

#include "platform/HotKeys.h"
#include "platform/KeyEvent.h"
#include "platform/Wiping.h"
#include "platform/keymap/KeyboardState.h"
#include "platform/monitor/CancelWatch.h"
#include "platform/monitor/DownKeys.h"

/// A hot key was pressed or released.
struct HotKeyEvent {
    HotKeyId id = 0;
    bool press = false;
    ServerTime time = 0;

    friend bool operator==(const HotKeyEvent&, const HotKeyEvent&) = default;
};

using Delivery = std::variant<KeyEvent, HotKeyEvent>;

/// What is known of a raw event besides itself.
struct KeyOrigin {
    /// A stroke of the running script.
    bool own = false;
    /// Our grab took the press from the applications.
    bool grabbed = false;
    /// The hot key that the press is, if any.
    std::optional<HotKeyId> hotKey = std::nullopt;
};

/// Makes what is delivered of what the keyboards did: the meaning of each raw event, given all before it.
///
/// Needs no display. Events are given in the server's order.
class KeyInterpreter {
  public:
    /// Both outlive this.
    KeyInterpreter(KeyboardState& keyboard, CancelWatch& cancel) : m_keyboard(keyboard), m_cancel(cancel) {}

    /// Whether the event changes anything; see DownKeys.
    bool matters(const RawKey& key) const { return m_held.isChangedBy(key); }
    const DownKeys& held() const { return m_held; }

    void key(const RawKey& key, const KeyOrigin& origin);
    /// The server repeats the key; nothing if it is not down for long enough.
    void repeat(std::uint8_t keycode, ServerTime time);
    /// The keyboard itself repeats the key that is down.
    void repeatByKeyboard(const RawKey& key);
    void setRepeatDelay(std::int32_t milliseconds) { m_held.setRepeatDelay(milliseconds); }
    /// A hot key whose raw press has passed as an ordinary one.
    void lateHotKey(HotKeyId id, std::uint8_t keycode, ServerTime time);
    void keyboardGone(std::uint16_t source, ServerTime time);
    /// The keys that are down before the first event.
    void startWith(const std::vector<std::uint8_t>& keycodes);

    /// Whether a modifier key is down that is reported.
    bool holdsModifiers() const { return heldMask() != 0; }

    /// While true, presses and hot keys are dropped.
    void setMuted(bool muted) { m_muted = muted; }
    void setKeepsOwnStrokes(bool keeps) { m_keepsOwn = keeps; }
    /// See EventMonitor.
    void setRecording(bool recording);
    void setShowsModifierKeys(bool shows) { m_showsModifierKeys = shows; }

    /// Takes back what is to be delivered of these hot keys, and what would be when those that are held come
    /// up.
    void dropHotKeys(const std::function<bool(HotKeyId)>& dropped);

    /// Whether key presses or repeats are among what is to be delivered, modifier keys that are shown
    /// included; these are taken back.
    bool hasPresses() const;
    void dropPresses();

    /// What is to be delivered, oldest first.
    WipedQueue<Delivery>& deliveries() { return m_deliveries; }

  private:
    void press(const RawKey& key, const KeyOrigin& origin);
    void release(const RawKey& key, const DownKey& held);
    void pressModifier(const RawKey& key, DownKey& held);
    void pressHotKey(const RawKey& key, DownKey& held, HotKeyId id);
    void pressOrdinary(const RawKey& key, DownKey& held);
    void watchEscape(const RawKey& key);
    void reportSwitch(std::uint8_t keycode);
    void showModifierKey(std::uint8_t keycode, xkb_mod_mask_t modifiers, DownKey& held);
    void reportRepeat(const DownKey& held, std::uint8_t keycode);
    void reportPress(KeyEventKind kind, const TypedKey& typed);
    void reportModifiers(std::uint32_t mask);
    std::uint32_t heldMask() const;
    TypedKey typedBy(std::uint8_t keycode) const;
    bool needsLayout(std::uint8_t keycode) const;
    bool switchesConsole(std::uint8_t keycode) const;
    xkb_layout_index_t layoutAfterPlaying(const TypedKey& typed) const;

    KeyboardState& m_keyboard;
    CancelWatch& m_cancel;
    DownKeys m_held;
    WipedQueue<Delivery> m_deliveries;
    std::uint32_t m_reportedMask = 0;
    /// Of the event that is being told.
    ServerTime m_time = 0;
    bool m_muted = false;
    bool m_keepsOwn = false;
    bool m_isRecording = false;
    bool m_showsModifierKeys = false;
    /// The layout that is locked when what has been recorded so far has been played where that was locked
    /// in which the recording began.
    xkb_layout_index_t m_playedLayout = 0;
};
