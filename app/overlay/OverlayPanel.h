// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QWidget;

/// The ground of the overlays' pictures. Their words are white and carry it with them: where a picture is
/// missing they lie on whatever is on the screen.
inline constexpr QColor overlayGround(0x1e, 0x22, 0x2a);

/// Cuts the window to the shape of the overlays' pictures, a panel with round corners: where no compositor
/// runs, the corners would show as black squares.
void shapeAsOverlayPanel(QWidget& window);
