// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>

/// Colours as a desktop's dark theme has them.
QPalette darkPalette();
