// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/evdev/devices/InputFolders.h"

namespace evdev {

/// Whether a device with these keys (sysfs, "capabilities/key": words of the machine's size in hexadecimal,
/// the highest first) is a keyboard: it has all keys from Escape to S, which is how udev tells keyboards from
/// what merely has keys, or all of a keypad's digits and its Enter. False for what is no such text.
bool isKeyboard(std::string_view keys);

/// The names of the device files of all keyboards ("event3"), the lowest number first, without the one that
/// Keyrill makes itself. Opens no device. Empty where there is none or sysfs cannot be read.
std::vector<std::string> listKeyboards(const InputFolders& folders);

/// Whether it is the name of an event device's file: "event" and 1 to 4 digits.
bool isEventDeviceName(std::string_view name);

}  // namespace evdev
