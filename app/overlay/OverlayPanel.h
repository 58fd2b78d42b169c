// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Cuts the window to the shape of the overlays' pictures, a panel with round corners: where no compositor
/// runs, the corners would show as black squares.
void shapeAsOverlayPanel(QWidget& window);
