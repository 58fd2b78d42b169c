// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>

#include "platform/evdev/EvdevEventMonitor.h"
#include "platform/evdev/KeyStream.h"
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
    void expectOwnKey(std::uint8_t keycode, bool press) override { m_stream.ownKey(keycode, press); }
    int fileDescriptor() const override { return m_wakeups.fileDescriptor(); }
    void drain() override;
    void startPlayback() override { m_cancel.start(); }
    void stopPlayback() override { m_cancel.cancel(); }
    bool isCancelled() const override { return m_cancel.isCancelled() || (m_isLocked && m_isLocked()); }
    bool isLost() const override { return false; }
    std::optional<Clock::Time> cancelDeadline() const override { return m_cancel.deadline(); }
    void settleOwnKeys() override { m_stream.releaseOwnKeys(); }
    bool handsHoldKeys() const override { return m_hands.any(); }
    KeycodeSet leftOvers(Clock::Time runStart) const override { return m_hands.leftOvers(runStart); }
    /// A hot key that is held swallows nothing else here.
    void endHotKeyGrab() override {}
    bool liftHotKey(std::uint8_t keycode, std::uint16_t modifiers) override;
    bool liftHotKeysOf(std::uint8_t keycode) override { return m_hotKeys.liftAll(keycode); }
    void restoreHotKeysOf(std::uint8_t keycode) override { m_hotKeys.restoreAll(keycode); }

    HotKeyTable& hotKeys() { return m_hotKeys; }
    Deliverer& deliverer() { return m_deliverer; }
    const KeyboardState& keyboard() const { return m_keyboard; }
    const std::optional<Error>& problem() const { return m_keyboards.problem(); }

    void setKeymap(std::unique_ptr<Keymap> keymap);
    void setLayout(std::uint32_t layout);
    void setRepeatRule(const RepeatRule& rule);
    void desktopTells(const KeyGrab& grab, bool press);
    void setWithheld(bool withheld);
    void setScreenLocked(bool locked);
    void setKeepsOwnStrokes(bool keeps);
    void setRecording(bool recording);
    void endPlaysWhen(std::function<bool()> isLocked) { m_isLocked = std::move(isLocked); }
    void observeProblem(std::function<void(const std::optional<Error>&)> changed);

  private:
    void read();
    void followNeed(DeviceOpener::Question question);
    void tellProblem();
    void mute();

    const Clock& m_clock;
    KeyboardState m_keyboard;
    CancelWatch m_cancel;
    HandKeys m_hands;
    HotKeyTable m_hotKeys;
    HotKeyEchoes m_echoes;
    KeyInterpreter m_interpreter;
    KeyStream m_stream;
    Wakeups m_wakeups;
    Keyboards m_keyboards;
    Deliverer m_deliverer;

    std::function<bool()> m_isLocked;
    std::function<void(const std::optional<Error>&)> m_problemChanged;
    std::optional<Error> m_toldProblem;
    /// By their keys, the hot keys that the desktop has told to be down.
    std::map<std::uint8_t, HotKeyId> m_desktopDown;
    std::uint32_t m_layout = 0;
    bool m_isNeeded = false;
    bool m_recording = false;
    bool m_running = false;
    bool m_withheld = false;
    bool m_screenLocked = false;
};

}  // namespace evdev
