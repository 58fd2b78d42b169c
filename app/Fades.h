// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Shows the window at once, first fully transparent, and lets it become opaque up to `alpha` within 0.35 s.
void fadeIn(QWidget& window, double alpha);

/// Hides the window at once, whatever its fade has come to.
void fadeOut(QWidget& window);
