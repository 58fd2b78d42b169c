// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

// A window has at most one running fade; each of these ends it first.

/// Sets the opacity at once.
void setAlpha(QWidget& window, double alpha);

/// Lets the opacity become `alpha` within 0.35 s. It is kept in single precision.
void animateAlpha(QWidget& window, double alpha);

/// Leaves the opacity as it is by now.
void endFade(QWidget& window);
