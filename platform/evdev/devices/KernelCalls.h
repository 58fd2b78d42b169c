// SPDX-License-Identifier: MIT
#pragma once

#include "platform/evdev/devices/DeviceCalls.h"

namespace evdev {

/// The kernel's answers (linux/input.h).
class KernelCalls final : public DeviceCalls {
  public:
    void useSteadyClock(int device) const override;
    KeycodeSet keysDown(int device) const override;
    LockLights lights(int device) const override;
    bool revoke(int device) const override;
};

}  // namespace evdev
