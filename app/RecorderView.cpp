// SPDX-License-Identifier: MIT
#include "app/RecorderView.h"

#include <QPainter>

#include "app/OverlayPanel.h"

void RecorderView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintOverlayPanel(painter, rect());
    constexpr qreal radius = 9;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xe5, 0x48, 0x4d));
    painter.drawEllipse(QPointF(markWidth / 2.0, height() / 2.0), radius, radius);
}
