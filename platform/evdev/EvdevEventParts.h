// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "platform/evdev/EvdevEventMonitor.h"
#include "platform/evdev/KeyStream.h"
#include "platform/evdev/WindowKeyboard.h"
#include "platform/monitor/Deliverer.h"
#include "platform/run/RunWatch.h"
#include "platform/run/Wakeups.h"

namespace evdev {

/// What EvdevEventMonitor is made of, joined.
class EvdevEventMonitor::Parts final : public RunWatch {
  public:
    Parts(const Session& session, std::unique_ptr<Keymap> keymap);

    void dispatch();

    // RunWatch
    void runStarts() override;
    void runEnds() override;
    void expectOwnKey(std::uint8_t keycode, bool press) override;
    int fileDescriptor() const override { return m_wakeups.fileDescriptor(); }
    void drain() override;
    void startPlayback() override { m_cancel.start(); }
    void stopPlayback() override { m_cancel.cancel(); }
    bool isCancelled() const override { return m_cancel.isCancelled(); }
    bool isLost() const override { return m_isDesktopLost && m_isDesktopLost(); }
    std::optional<Clock::Time> cancelDeadline() const override { return m_cancel.deadline(); }
    void settleOwnKeys() override { m_stream.releaseOwnKeys(); }
    bool handsHoldKeys() const override { return m_hands.any(); }
    bool handsHold(std::uint8_t keycode) const override { return m_hands.holds(keycode); }
    KeycodeSet leftOvers(Clock::Time runStart) const override { return m_hands.leftOvers(runStart); }
    /// A hot key that is held swallows nothing else here.
    void endHotKeyGrab() override {}
    bool liftHotKey(std::uint8_t keycode, std::uint16_t modifiers) override;
    bool liftHotKeysOf(std::uint8_t keycode) override { return m_hotKeys.liftAll(keycode); }
    void restoreHotKeysOf(std::uint8_t keycode) override { m_hotKeys.restoreAll(keycode); }

    HotKeyTable& hotKeys() { return m_hotKeys; }
    Deliverer& deliverer() { return m_deliverer; }
    const KeyboardState& keyboard() const { return m_keyboard; }

    void setKeymap(std::unique_ptr<Keymap> keymap);
    void setLayout(std::uint32_t layout);
    void setRepeatRule(const RepeatRule& rule);
    void listenTo(EventSource& desktop);
    void desktopTells(const KeyGrab& grab, bool press);
    std::uint32_t eventTime() const { return KeyStream::serverTime(m_stream.now()); }
    void desktopForgot();
    void setWithheld(bool withheld);
    void setKeepsOwnStrokes(bool keeps);
    void setShowsModifierKeys(bool shows);
    void setRecording(bool recording);
    void endPlaysWhen(std::function<bool()> endsPlays) { m_endsPlays = std::move(endsPlays); }
    void observeAccess(EventMonitor::AccessObserver changed) { m_accessChanged = std::move(changed); }
    WindowKeys& windowKeys() { return m_window; }

  private:
    void read();
    void heedOthers();
    void readKeyboards();
    void startTimer();
    void desktopPresses(const KeyGrab& grab);
    void desktopReleases(const KeyGrab& grab);
    void awaitHands(std::uint16_t modifiers);
    void endWaitForHands();
    bool isHotKeyDown() const;
    void releaseHotKeys();
    void followNeed(DeviceOpener::Question question);
    EventMonitor::Access access() const;
    void recordWindow();
    void tellAccess();
    xkb_layout_index_t layout() const { return m_layout ? m_layout() : 0; }

    const Clock& m_clock;
    const KeyGrabber& m_grabs;
    KeyboardState m_keyboard;
    CancelWatch m_cancel;
    HandKeys m_hands;
    HotKeyTable m_hotKeys;
    HotKeyEchoes m_echoes;
    KeyInterpreter m_interpreter;
    KeyStream m_stream;
    Wakeups m_wakeups;
    Keyboards m_keyboards;
    WindowKeyboard m_window;
    Deliverer m_deliverer;

    std::function<xkb_layout_index_t()> m_layout;
    std::function<bool()> m_isDesktopLost;
    std::function<bool()> m_endsPlays;
    EventSource* m_desktop = nullptr;
    EventMonitor::AccessObserver m_accessChanged;
    EventMonitor::Access m_toldAccess = EventMonitor::Access::given;
    /// By their keys, the hot keys that the desktop has told to be down; nothing for one that a keyboard has
    /// told already.
    std::map<std::uint8_t, std::optional<HotKeyId>> m_desktopDown;
    /// A play waits, or may have to, for the modifiers of its hot key.
    bool m_awaitsHands = false;
    /// Until when these are taken for held, unless keyboards tell better.
    std::optional<Clock::Time> m_assumedUntil;
    bool m_isNeeded = false;
    bool m_recording = false;
    /// Whether the recording has seen the keyboards.
    bool m_hasSeenKeys = false;
    bool m_running = false;
    bool m_withheld = false;
};

}  // namespace evdev
