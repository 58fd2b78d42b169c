// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/monitor/Deliverer.h"
#include "platform/monitor/KeyboardHold.h"
#include "platform/run/RunWatch.h"
#include "platform/run/Wakeups.h"
#include "platform/x11/watch/EventOrder.h"
#include "platform/x11/watch/HoldWatch.h"
#include "platform/x11/watch/Ticker.h"
#include "platform/x11/watch/X11EventManager.h"

namespace x11 {

/// What X11EventManager is made of, joined.
class X11EventManager::Parts final : public RunWatch {
  public:
    static Result<std::unique_ptr<Parts>> open(const Clock& clock, const std::string& display);

    void dispatch();
    bool isBroken() const;

    // RunWatch
    void runStarts() override;
    void runEnds() override;
    void expectOwnKey(std::uint8_t keycode, bool press) override { m_own.expect(keycode, press); }
    int fileDescriptor() const override { return m_wakeups.fileDescriptor(); }
    void drain() override;
    void startPlayback() override { m_cancel.start(); }
    void stopPlayback() override { m_cancel.cancel(); }
    bool isCancelled() const override { return m_cancel.isCancelled(); }
    bool isLost() const override { return isBroken(); }
    bool mayBeLocked() const override;
    std::optional<Clock::Time> cancelDeadline() const override { return m_cancel.deadline(); }
    void settleOwnKeys() override;
    bool handsHoldKeys() const override { return m_hands.any(); }
    bool handsHold(std::uint8_t keycode) const override { return m_hands.holds(keycode); }
    std::uint16_t modifiersOfStop() const override { return m_hotKeys.modifiersOfStop(); }
    std::optional<Clock::Time> lastHandRelease() const override { return m_hands.lastRelease(); }
    KeycodeSet leftOvers(Clock::Time runStart) const override { return m_hands.leftOvers(runStart); }
    void endHotKeyGrab() override;
    bool liftHotKey(std::uint8_t keycode, std::uint16_t modifiers) override;
    bool liftHotKeysOf(std::uint8_t keycode) override;
    void restoreHotKeysOf(std::uint8_t keycode) override;

    HotKeyTable& hotKeys() { return m_hotKeys; }
    const HotKeyTable& hotKeys() const { return m_hotKeys; }
    const KeyboardState& keyboard() const { return m_keyboard; }
    const std::optional<Error>& problem() const { return m_problem; }
    std::uint32_t lastPressTime() const { return m_deliverer.lastPressTime(); }

    Deliverer& deliverer() { return m_deliverer; }
    void setWithheld(bool withheld);
    void withholdOnlyFor(WindowId window) { m_raw->followHoldOf(window); }
    void setKeepsOwnStrokes(bool keeps);
    void setShowsModifierKeys(bool shows);
    void setRecording(bool recording);
    void observeHold(std::function<void(bool)> changed) { m_holdChanged = std::move(changed); }
    void endPlaysWhen(std::function<bool()> endsPlays) { m_endsPlays = std::move(endsPlays); }
    /// Something may have been read in passing; the loop is to look.
    void kick() { m_wakeups.kick(); }

  private:
    struct Opened {
        std::unique_ptr<RawKeySource> raw;
        std::unique_ptr<HotKeyGrabs> grabs;
        std::unique_ptr<RepeatSource> repeats;
        std::unique_ptr<HoldWatch> holds;
        std::unique_ptr<Keymap> keymap;
        std::optional<Error> problem;
    };
    Parts(const Clock& clock, Opened opened);

    void read();
    void heedEscape();
    void heedOthers();
    void followHold();
    void tryForHotKeys();
    void lookWhoHoldsTheKeyboard();
    bool waitsForVerdict() const;
    void catchUp();
    void followKeymap();
    void watchRepeats();
    void giveUp();

    std::unique_ptr<RawKeySource> m_raw;
    std::unique_ptr<HotKeyGrabs> m_grabs;
    std::unique_ptr<RepeatSource> m_repeats;
    std::unique_ptr<HoldWatch> m_holds;
    std::optional<Error> m_problem;
    KeyboardState m_keyboard;
    CancelWatch m_cancel;
    OwnStrokes m_own;
    HandKeys m_hands;
    HotKeyTable m_hotKeys;
    KeyInterpreter m_interpreter;
    EventOrder m_order;
    Wakeups m_wakeups;
    /// When to look who has the keyboard, and when to try again for what another program holds.
    Ticker m_looks;
    Ticker m_tries;
    const Clock& m_clock;
    KeyboardHold m_hold;
    Clock::Time m_nextLookOfRun = {};

    Deliverer m_deliverer;
    std::function<void(bool)> m_holdChanged;
    std::function<bool()> m_endsPlays;
    bool m_recording = false;
    bool m_withheld = false;
    bool m_toldHeld = false;
    bool m_running = false;
    bool m_gaveUp = false;
};

}  // namespace x11
