// SPDX-License-Identifier: MIT
#include "app/OverlayPanel.h"

#include <QPainter>
#include <QPainterPath>
#include <QRegion>
#include <QWidget>

namespace {
constexpr qreal cornerRadius = 10;
}  // namespace

void paintOverlayPanel(QPainter& painter, const QRect& area) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(area, QColor(0x1e, 0x22, 0x2a));
    painter.setPen(QPen(QColor(0x5c, 0x66, 0x78), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(area).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, cornerRadius);
}

void shapeAsOverlayPanel(QWidget& window) {
    QPainterPath shape;
    shape.addRoundedRect(QRectF(window.rect()), cornerRadius, cornerRadius);
    window.setMask(QRegion(shape.toFillPolygon().toPolygon()));
}
