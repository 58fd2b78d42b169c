// SPDX-License-Identifier: MIT
#pragma once

#include <xkbcommon/xkbcommon.h>

#include "platform/keymap/XkbComponents.h"

/// What is held, latched and locked in that state; of the modifiers the real ones.
XkbComponents componentsOf(xkb_state* state);
