// SPDX-License-Identifier: MIT
#pragma once

#include "platform/desktops/KdeShortcuts.h"

namespace wayland {

class SeatKeymap;

/// A combination on the seat's keyboard, as KDE knows it and shows it to the user.
KdeShortcuts::Combination kdeCombination(const SeatKeymap& seat, const KeyGrab& grab);

}  // namespace wayland
