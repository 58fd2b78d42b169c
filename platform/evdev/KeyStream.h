// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/Clock.h"
#include "platform/WindowKeys.h"
#include "platform/evdev/HotKeyEchoes.h"
#include "platform/evdev/Keyboards.h"
#include "platform/evdev/RepeatCounter.h"
#include "platform/evdev/SeatKeys.h"
#include "platform/monitor/HandKeys.h"
#include "platform/monitor/HotKeyTable.h"
#include "platform/monitor/KeyInterpreter.h"

namespace evdev {

/// Makes one stream of what the keyboards of a seat do, as the focused program hears it, and has it
/// interpreted: with repeats, which compositors leave to each program, and with the strokes of the running
/// script, which no keyboard makes.
class KeyStream final : public KeyboardListener {
  public:
    /// All outlive this.
    struct Rules {
        const Clock& clock;
        KeyboardState& keyboard;
        CancelWatch& cancel;
        HandKeys& hands;
        HotKeyTable& hotKeys;
        HotKeyEchoes& echoes;
    };
    KeyStream(const Rules& rules, KeyInterpreter& interpreter) : m_rules(rules), m_interpreter(interpreter) {}

    // KeyboardListener
    void keyboardsCame(const std::vector<NewKeyboard>& keyboards) override;
    void key(std::uint16_t keyboard, const DeviceKey& key) override;
    void keyboardGone(std::uint16_t keyboard) override;

    /// A stroke of the running script.
    void ownKey(std::uint8_t keycode, bool press);
    /// All keys of the running script are up.
    void releaseOwnKeys();

    /// A key of a window of ours, whose program counts the repeats itself and knows the locks.
    void windowKey(const WindowKey& key);
    /// What is down there is up.
    void windowLeft() { keyboardGone(window); }

    /// Before the first keyboard: the layout that is locked.
    void begin(xkb_layout_index_t layout);
    /// Nothing is known of any keyboard any more: what was down is up.
    void end();

    /// Nothing is heard yet, but the desktop has told of a combination: hands hold these modifiers, until
    /// keyboards come, a window of ours knows better, or they are taken for up. Real modifiers.
    void assumeModifiers(xkb_mod_mask_t modifiers);
    void assumeNone();
    /// Whether any modifier is down, for all that is known.
    bool holdsModifiers() const { return m_interpreter.holdsModifiers(); }

    void setRepeatRule(const RepeatRule& rule) { m_repeats.setRule(rule); }
    /// What repeats until now.
    void repeat() { repeatBefore(now()); }
    /// How long until a key repeats; empty if none does.
    std::optional<std::chrono::microseconds> timeToRepeat() const;

    /// A hot key that ends playbacks is heeded as soon as it is known, wherever it is known from.
    void noteHotKey(HotKeyId id);
    /// The user wishes to stop: takes back all hot keys that wait, but for those that cancel.
    void dropCommands();

    static ServerTime serverTime(RepeatCounter::Time time) {
        return static_cast<ServerTime>(time.count() / 1000);
    }
    RepeatCounter::Time now() const;

  private:
    /// All keyboards as one, the running script as another; and what makes up the first beside keyboards:
    /// what the desktop lets guess, and a window of ours.
    static constexpr std::uint16_t seat = 1;
    static constexpr std::uint16_t script = 2;
    static constexpr std::uint16_t desktop = 3;
    static constexpr std::uint16_t window = 4;
    /// The same of those alone that play: the stop is among the hot keys, and those before it are in order.
    void dropPlays();
    void adoptLights(const std::vector<NewKeyboard>& keyboards);
    void startWith(std::uint16_t keyboard, const KeycodeSet& down);
    void adoptLocks(xkb_mod_mask_t inForce);
    void checkAssumption(xkb_mod_mask_t inForce);
    /// Whether the key is a hot key.
    bool pass(const RawKey& key, RepeatCounter::Time time);
    void followRepeats(const RawKey& key, bool isHotKey, RepeatCounter::Time time);
    void repeatBefore(RepeatCounter::Time time);

    Rules m_rules;
    KeyInterpreter& m_interpreter;
    SeatKeys m_seat;
    RepeatCounter m_repeats;
    std::vector<std::uint16_t> m_keyboards;
    /// What assumeModifiers() was told.
    xkb_mod_mask_t m_assumed = 0;
};

}  // namespace evdev
