// SPDX-License-Identifier: MIT
#include "app/overlay/OverlayPanel.h"

#include <QPainterPath>
#include <QRegion>
#include <QWidget>

namespace {
constexpr qreal cornerRadius = 10;
}  // namespace

void shapeAsOverlayPanel(QWidget& window) {
    QPainterPath shape;
    shape.addRoundedRect(QRectF(window.rect()), cornerRadius, cornerRadius);
    window.setMask(QRegion(shape.toFillPolygon().toPolygon()));
}
