// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/desktops/HotKeyBinder.h"
#include "platform/desktops/SessionBus.h"

namespace wayland {

class SeatKeymap;

/// Who takes combinations for us on this desktop; null where nobody does. `bus` is KDE's, null elsewhere;
/// both outlive it.
std::unique_ptr<HotKeyBinder> openBinder(SessionBus* bus, const SeatKeymap& seat);

}  // namespace wayland
