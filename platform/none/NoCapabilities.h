// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Capabilities.h"

/// What works where that is lacking which all of it needs.
constexpr SessionCapabilities noCapabilities(Lack lack) {
    const CapabilityState none{.lack = lack};
    return {.recording = none,
            .hotKeys = none,
            .pressing = none,
            .text = none,
            .clipboard = none,
            .overlay = none,
            .windows = none,
            .tray = none};
}
