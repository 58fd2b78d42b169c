// SPDX-License-Identifier: MIT
#include "platform/evdev/EventReader.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace evdev {

namespace {

/// Of an input_event.
constexpr std::int32_t released = 0;
constexpr std::int32_t pressed = 1;

constexpr std::size_t eventsAtOnce = 64;

std::uint64_t microsecondsOf(const input_event& event) {
    constexpr std::uint64_t million = 1'000'000;
    return static_cast<std::uint64_t>(event.input_event_sec) * million +
           static_cast<std::uint64_t>(event.input_event_usec);
}

/// Leaves nothing of what was read.
class EventBuffer {
  public:
    EventBuffer() = default;
    ~EventBuffer() { wipe(m_events.data(), sizeof m_events); }
    EventBuffer(const EventBuffer&) = delete;
    EventBuffer& operator=(const EventBuffer&) = delete;

    ssize_t fill(int device) { return ::read(device, m_events.data(), sizeof m_events); }
    std::span<const input_event> first(std::size_t count) const { return {m_events.data(), count}; }

  private:
    std::array<input_event, eventsAtOnce> m_events{};
};

}  // namespace

EventReader::EventReader(OpenedDevice device, const DeviceCalls& calls)
    : m_device(std::move(device)), m_calls(calls) {
    m_calls.useSteadyClock(fileDescriptor());
    m_down = m_calls.keysDown(fileDescriptor());
}

bool EventReader::read(WipedQueue<DeviceKey>& keys) {
    EventBuffer buffer;
    for (;;) {
        const ssize_t length = buffer.fill(fileDescriptor());
        if (length < 0 && errno == EINTR) continue;
        if (length < 0 && errno == EAGAIN) return true;
        if (length <= 0 || static_cast<std::size_t>(length) % sizeof(input_event) != 0) return false;
        const auto events = buffer.first(static_cast<std::size_t>(length) / sizeof(input_event));
        if (take(events, keys)) continue;
        catchUp(microsecondsOf(events.back()), keys);
    }
}

bool EventReader::take(std::span<const input_event> events, WipedQueue<DeviceKey>& keys) {
    for (const input_event& event : events) {
        if (event.type == EV_SYN && event.code == SYN_DROPPED) return false;
        if (event.type == EV_KEY) takeKey(event, keys);
    }
    return true;
}

void EventReader::takeKey(const input_event& event, WipedQueue<DeviceKey>& keys) {
    // Keymaps have no more keys, and repeats come from the seat's own rule.
    if (event.code > xkbcode::toEvdev(xkbcode::last)) return;
    if (event.value != released && event.value != pressed) return;
    change(xkbcode::fromEvdev(event.code), event.value == pressed, microsecondsOf(event), keys);
}

/// After a loss: what has come up meanwhile, then what has gone down.
void EventReader::catchUp(std::uint64_t microseconds, WipedQueue<DeviceKey>& keys) {
    const KeycodeSet down = m_calls.keysDown(fileDescriptor());
    for (const bool press : {false, true}) {
        for (std::size_t keycode = xkbcode::first; keycode <= xkbcode::last; ++keycode) {
            if (down[keycode] == press) change(static_cast<std::uint8_t>(keycode), press, microseconds, keys);
        }
    }
}

void EventReader::change(std::uint8_t keycode, bool press, std::uint64_t microseconds,
                         WipedQueue<DeviceKey>& keys) {
    if (m_down[keycode] == press) return;
    m_down[keycode] = press;
    keys.emplace_back(DeviceKey{microseconds, keycode, press});
}

}  // namespace evdev
