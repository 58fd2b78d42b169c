// SPDX-License-Identifier: MIT
#include "app/overlay/RecorderView.h"

#include <QPainter>

RecorderView::RecorderView(const QString& folder, QWidget* parent) : QWidget(parent) { loadImage(folder); }

void RecorderView::loadImage(const QString& folder) {
    m_image = PictureReference(folder, QStringLiteral("recording"));
}

void RecorderView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawImage(painter);
}

void RecorderView::drawImage(QPainter& painter) const {
    painter.drawPixmap(0, 0, m_image.pixmap(size(), devicePixelRatioF()));
}
