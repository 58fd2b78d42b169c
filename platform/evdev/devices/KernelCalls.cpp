// SPDX-License-Identifier: MIT
#include "platform/evdev/devices/KernelCalls.h"

#include <linux/input.h>
#include <sys/ioctl.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <ctime>

namespace evdev {

namespace {

template <std::size_t size>
bool hasBit(const std::array<std::uint8_t, size>& bytes, std::size_t bit) {
    return (bytes[bit / 8] >> (bit % 8) & 1) != 0;
}

}  // namespace

void KernelCalls::useSteadyClock(int device) const {
    int clock = CLOCK_MONOTONIC;
    ioctl(device, EVIOCSCLOCKID, &clock);
}

KeycodeSet KernelCalls::keysDown(int device) const {
    std::array<std::uint8_t, KEY_CNT / 8> bytes{};
    KeycodeSet down;
    if (ioctl(device, EVIOCGKEY(sizeof bytes), bytes.data()) < 0) return down;
    for (std::size_t keycode = xkbcode::first; keycode <= xkbcode::last; ++keycode) {
        down[keycode] = hasBit(bytes, keycode - xkbcode::evdevOffset);
    }
    return down;
}

LockLights KernelCalls::lights(int device) const {
    std::array<std::uint8_t, LED_CNT / 8> bytes{};
    if (ioctl(device, EVIOCGLED(sizeof bytes), bytes.data()) < 0) return {};
    return {.capsLock = hasBit(bytes, LED_CAPSL),
            .numLock = hasBit(bytes, LED_NUML),
            .scrollLock = hasBit(bytes, LED_SCROLLL)};
}

bool KernelCalls::revoke(int device) const { return ioctl(device, EVIOCREVOKE, nullptr) == 0; }

}  // namespace evdev
