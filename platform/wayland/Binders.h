// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/desktops/HotKeyBinder.h"

namespace wayland {

class DesktopServices;
class SeatKeymap;

/// Who takes combinations for us on this desktop; null where nobody does. Both outlive it.
std::unique_ptr<HotKeyBinder> openBinder(const DesktopServices& desktop, const SeatKeymap& seat);
/// Who tells whether a combination could be had on this desktop, as if it took it; null where nobody does.
/// Both outlive it.
std::unique_ptr<KeyGrabber> openLookup(const DesktopServices& desktop, const SeatKeymap& seat);

}  // namespace wayland
