// SPDX-License-Identifier: MIT
#include "app/overlay/OverlayPanel.h"

#include <QBitmap>
#include <QImage>
#include <QPainter>
#include <QWidget>

namespace {
/// One less than in the pictures, so that no pixel of their outline is cut in half and left out.
constexpr qreal cornerRadius = 9;
}  // namespace

// Drawn as the pictures are, not made of a polygon: that would leave out its right and lower edge, and with
// them the outline.
void shapeAsOverlayPanel(QWidget& window) {
    QImage shape(window.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(window.rect(), cornerRadius, cornerRadius);
    painter.end();
    window.setMask(QBitmap::fromImage(shape.createAlphaMask(Qt::ThresholdDither)));
}
