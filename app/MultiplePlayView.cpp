// SPDX-License-Identifier: MIT
#include "app/MultiplePlayView.h"

#include <QPainter>

#include "app/OverlayPanel.h"

void MultiplePlayView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    paintOverlayPanel(painter, rect());
    // Two play marks, one behind the other.
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x4c, 0xc3, 0x8a));
    const qreal middle = height() / 2.0;
    for (const qreal x : {14.0, 26.0}) {
        const QPointF triangle[] = {{x, middle - 9}, {x + 11, middle}, {x, middle + 9}};
        painter.drawPolygon(triangle, 3);
    }
}
