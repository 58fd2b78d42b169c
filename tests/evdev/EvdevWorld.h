// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "contracts/KeyboardContract.h"
#include "evdev/FakeInput.h"
#include "platform/evdev/DirectOpener.h"
#include "platform/evdev/EvdevEventMonitor.h"
#include "platform/fake/FakeClock.h"
#include "platform/monitor/KeyGrabber.h"

/// Other programs' hot keys.
class FakeGrabber final : public KeyGrabber {
  public:
    std::optional<std::string> grab(const KeyGrab& grab, const HotKeyRequest& request) override;
    void release(const KeyGrab& grab) override { std::erase(m_taken, grab); }

    void otherTakes(const KeyGrab& grab) { m_elsewhere.push_back(grab); }
    const std::vector<KeyGrab>& taken() const { return m_taken; }
    void forgetAll() { m_taken.clear(); }

    /// From now on the desktop's user decides.
    void leaveToUser() { m_isDecidedByUser = true; }
    bool isDecidedByUser() const override { return m_isDecidedByUser; }

    /// From now on the desktop tells of the end of a press only if no other key comes between.
    void loseReleases() { m_losesReleases = true; }
    bool losesReleases() const override { return m_losesReleases; }

  private:
    std::vector<KeyGrab> m_elsewhere;
    std::vector<KeyGrab> m_taken;
    bool m_isDecidedByUser = false;
    bool m_losesReleases = false;
};

/// Opens what is there, unless it is made to fail.
class FailingOpener final : public evdev::DeviceOpener {
  public:
    explicit FailingOpener(const evdev::InputFolders& folders) : m_direct(folders) {}

    void open(const std::set<std::string>& held, Question question, Opened opened) override {
        m_fails ? opened(Error{"Refused.", ""}) : m_direct.open(held, question, std::move(opened));
    }
    void close() override { m_direct.close(); }
    void fail(bool fails = true) { m_fails = fails; }

  private:
    evdev::DirectOpener m_direct;
    bool m_fails = false;
};

/// One keyboard, event0, and the monitor over it, which records from the beginning. Time stands still until
/// it is turned; repeats begin after 400 ms and come every 40 ms.
class EvdevWorld final : public KeyboardWorld {
  public:
    /// On a desktop that is played.
    EvdevWorld() : EvdevWorld(m_grabber) {}
    /// `desktop` outlives it; nothing is to be asked of the one that is played.
    explicit EvdevWorld(KeyGrabber& desktop);

    EventMonitor& monitor() override { return *m_monitor; }
    HotKeys& hotKeys() override { return *m_monitor; }
    void press(std::uint32_t keyCode) override { key(*m_keyboard, keyCode, 1); }
    void release(std::uint32_t keyCode) override { key(*m_keyboard, keyCode, 0); }
    void holdUntilRepeats(std::uint32_t keyCode, int atLeast) override;
    void setCapsLock(bool on) override;
    void otherClientGrabs(std::uint32_t keyCode, std::uint32_t modifiers) override;
    void settle() override;

    /// A stroke on one of several keyboards, as the kernel tells it: 1 pressed, 0 released, 2 repeated.
    void key(const FakeInput::Device& keyboard, std::uint32_t keyCode, int value);
    void advance(std::chrono::milliseconds duration) { m_clock.advance(duration); }

    evdev::EvdevEventMonitor& evdevMonitor() { return *m_monitor; }
    FakeInput& input() { return m_input; }
    FakeCalls& calls() { return m_calls; }
    FakeClock& clock() { return m_clock; }
    FakeGrabber& grabber() { return m_grabber; }
    FailingOpener& opener() { return m_opener; }
    std::unique_ptr<FakeInput::Device>& keyboard() { return m_keyboard; }

    /// The layout that is locked at the next beginning.
    void setFirstLayout(std::uint32_t layout) { m_layout = layout; }
    void loseDesktop() { m_isLost = true; }

  private:
    FakeInput m_input;
    FakeCalls m_calls;
    FakeClock m_clock;
    FakeGrabber m_grabber;
    FailingOpener m_opener;
    std::unique_ptr<FakeInput::Device> m_keyboard;
    std::unique_ptr<evdev::EvdevEventMonitor> m_monitor;
    std::uint32_t m_layout = 0;
    bool m_isLost = false;
    bool m_capsLock = false;
};

/// What the monitor tells, as words, in a world of its own.
class EvdevTest : public KeyboardContract {
  protected:
    EvdevWorld& evdevWorld() { return static_cast<EvdevWorld&>(world()); }
    evdev::EvdevEventMonitor& monitor() { return evdevWorld().evdevMonitor(); }
};

std::unique_ptr<KeyboardWorld> makeEvdevWorld();
