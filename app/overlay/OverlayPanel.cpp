// SPDX-License-Identifier: MIT
#include "app/overlay/OverlayPanel.h"

#include <QBitmap>
#include <QPainter>
#include <QWidget>

namespace {
constexpr qreal cornerRadius = 10;
}  // namespace

// Drawn, not made of a polygon: that would leave out its right and lower edge, and with them the outline.
void shapeAsOverlayPanel(QWidget& window) {
    QBitmap shape(window.size());
    shape.clear();
    QPainter painter(&shape);
    painter.setPen(Qt::color1);
    painter.setBrush(Qt::color1);
    painter.drawRoundedRect(window.rect().adjusted(0, 0, -1, -1), cornerRadius, cornerRadius);
    painter.end();
    window.setMask(shape);
}
