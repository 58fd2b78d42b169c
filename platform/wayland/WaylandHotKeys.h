// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>

#include "platform/Descriptor.h"
#include "platform/EventSource.h"
#include "platform/HotKeys.h"
#include "platform/desktops/SwayBindings.h"
#include "platform/monitor/HotKeyTable.h"
#include "platform/wayland/SeatKeymap.h"

namespace wayland {

/// Hot keys that sway takes for us and tells of.
///
/// Sway tells of a release as soon as any key of the combination is up. While a run lasts what comes is kept,
/// and dispatched by the event loop afterwards.
class WaylandHotKeys final : public HotKeys, public EventSource {
  public:
    /// Fails where the compositor is not sway. `seat` outlives this.
    static Result<std::unique_ptr<WaylandHotKeys>> open(SeatKeymap& seat);
    ~WaylandHotKeys() override;
    WaylandHotKeys(const WaylandHotKeys&) = delete;
    WaylandHotKeys& operator=(const WaylandHotKeys&) = delete;

    // HotKeys
    void install(Handler pressed, Handler released) override;
    void observe(Observer observer) override { m_table->observe(std::move(observer)); }
    void request(const HotKeyRequest& request) override;
    void withdraw(HotKeyId id) override;
    HotKeyState state(HotKeyId id) const override { return m_table->state(id); }
    /// Wayland shows no window such a time.
    std::uint32_t lastPressTime() const override { return 0; }

    // EventSource
    int fileDescriptor() const override { return m_poll.number(); }
    void dispatch() override;

    /// While a question of the program's own is open presses are dropped.
    void setWithheld(bool withheld) { m_isWithheld = withheld; }

    // What a run needs (RunWatch).
    void runStarts() { m_isRunning = true; }
    void runEnds();
    void drain();
    void startPlayback() { m_isStopped = false; }
    bool isStopped() const { return m_isStopped; }
    bool lift(std::uint8_t keycode, std::uint16_t modifiers) { return m_table->lift(keycode, modifiers); }
    bool liftAll(std::uint8_t keycode) { return m_table->liftAll(keycode); }
    void restoreAll(std::uint8_t keycode) { m_table->restoreAll(keycode); }

  private:
    struct Change {
        HotKeyId id = 0;
        bool isPress = false;
    };

    WaylandHotKeys(std::unique_ptr<SwayBindings> bindings, SeatKeymap& seat);

    static std::unique_ptr<Keymap> copyOf(const SeatKeymap& seat);
    void take(const SwayBindings::Event& event);
    void takePress(HotKeyId id);
    void bindAgain();
    void deliver(const Change& change);
    void wake() const;

    std::unique_ptr<SwayBindings> m_bindings;
    SeatKeymap& m_seat;
    KeyboardState m_keyboard;
    std::unique_ptr<HotKeyTable> m_table;
    std::map<HotKeyId, HotKeyRequest> m_requests;
    Handler m_pressed;
    Handler m_released;
    std::deque<Change> m_changes;
    std::set<HotKeyId> m_down;
    Descriptor m_wakeup;
    /// Readable with either of sway's events and the wake-up.
    Descriptor m_poll;
    bool m_isWithheld = false;
    bool m_isRunning = false;
    bool m_isDelivering = false;
    bool m_isStopped = false;
};

}  // namespace wayland
