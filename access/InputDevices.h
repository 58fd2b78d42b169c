// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/Descriptor.h"

namespace keyaccess {

struct OpenKeyboard {
    Descriptor descriptor;
    /// Of its device file: "event3".
    std::string name;
};

/// The input devices of the machine.
class InputDevices {
  public:
    virtual ~InputDevices() = default;

    /// All keyboards but those of these names, open for reading alone. Those that cannot be opened are left
    /// out.
    virtual std::vector<OpenKeyboard> openKeyboards(const std::set<std::string>& except) = 0;

    /// Ends all reading by whoever shares the descriptor.
    virtual void revoke(int keyboard) = 0;
    /// Whether the keyboard is still there.
    virtual bool isPresent(int keyboard) const = 0;

    /// A new keyboard, which is there as long as the descriptor; empty where none can be made.
    virtual Descriptor makeKeyboard() = 0;
    /// Presses or releases a key of it; false if the system refuses.
    virtual bool type(int keyboard, std::uint16_t code, bool press) = 0;
};

}  // namespace keyaccess
