// SPDX-License-Identifier: MIT
#include "app/overlay/MultiplePlayView.h"

#include <QPainter>

MultiplePlayView::MultiplePlayView(const QString& folder, QWidget* parent) : QWidget(parent) {
    loadImage(folder);
}

void MultiplePlayView::loadImage(const QString& folder) {
    m_image = PictureReference(folder, QStringLiteral("multiplePlay"));
}

void MultiplePlayView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawImage(painter);
}

void MultiplePlayView::drawImage(QPainter& painter) const {
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    painter.drawPixmap(0, 0, m_image.pixmap(size(), devicePixelRatioF()));
}
