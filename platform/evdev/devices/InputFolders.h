// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// Where the kernel shows input devices.
namespace evdev {

struct InputFolders {
    /// The device files, "event3" and others.
    std::string devices = "/dev/input";
    /// What they are: "event3/device/name" and others (Documentation/ABI/testing/sysfs-class-input).
    std::string classes = "/sys/class/input";
};

}  // namespace evdev
