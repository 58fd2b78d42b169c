// SPDX-License-Identifier: MIT
#pragma once

#include <linux/input.h>

#include <cstdint>
#include <span>
#include <string>

#include "platform/Wiping.h"
#include "platform/evdev/DeviceOpener.h"
#include "platform/evdev/devices/DeviceCalls.h"

namespace evdev {

/// A key of one keyboard went down or up.
struct DeviceKey {
    /// By std::chrono::steady_clock.
    std::uint64_t microseconds = 0;
    std::uint8_t keycode = 0;
    bool press = false;

    friend bool operator==(const DeviceKey&, const DeviceKey&) = default;
};

/// Reads one keyboard. Presses and releases take turns for each key; the kernel's own repeats are left out,
/// since it repeats at another pace than the desktop does.
class EventReader {
  public:
    /// `calls` outlives this.
    EventReader(OpenedDevice device, const DeviceCalls& calls);

    int fileDescriptor() const { return m_device.descriptor.number(); }
    const std::string& name() const { return m_device.name; }

    /// What is down as of the last read, by XKB key codes; those of the beginning were never read as events.
    const KeycodeSet& down() const { return m_down; }
    /// The locks as of now.
    LockLights lights() const { return m_calls.lights(fileDescriptor()); }

    /// Appends what has come, without waiting. False once the keyboard is gone or may not be read any more.
    bool read(WipedQueue<DeviceKey>& keys);

  private:
    /// False if events were lost, so that what follows is already part of what the kernel is asked then.
    bool take(std::span<const input_event> events, WipedQueue<DeviceKey>& keys);
    void takeKey(const input_event& event, WipedQueue<DeviceKey>& keys);
    void catchUp(std::uint64_t microseconds, WipedQueue<DeviceKey>& keys);
    void change(std::uint8_t keycode, bool press, std::uint64_t microseconds, WipedQueue<DeviceKey>& keys);

    OpenedDevice m_device;
    const DeviceCalls& m_calls;
    KeycodeSet m_down;
};

}  // namespace evdev
