// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QRect;
class QWidget;

/// The dark panel with round corners that the program's overlays have as their ground.
void paintOverlayPanel(QPainter& painter, const QRect& area);

/// Cuts the window to the panel's shape: where no compositor runs, corners would show as black squares.
void shapeAsOverlayPanel(QWidget& window);
