// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Windows.h"

class QWidget;

/// The top-level window as the window system knows it, which is told of it if it was not yet.
OwnWindow ownWindow(const QWidget& window);

/// The same of one that was just hidden: the window system is told of that at once, not only when the
/// toolkit's loop rests.
OwnWindow hiddenWindow(const QWidget& window);
