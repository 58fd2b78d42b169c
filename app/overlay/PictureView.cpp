// SPDX-License-Identifier: MIT
#include "app/overlay/PictureView.h"

#include <QPainter>
#include <cmath>

PictureView::PictureView(const QString& folder, const QString& name, QWidget* parent) : QWidget(parent) {
    loadImage(folder, name);
}

void PictureView::loadImage(const QString& folder, const QString& name) {
    m_image = PictureReference(folder, name);
}

void PictureView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    drawImage(painter);
}

void PictureView::drawImage(QPainter& painter) const {
    // Not this widget's own: the picture may be painted for a sharper screen than the toolkit knows of.
    const qreal ratio = std::abs(painter.deviceTransform().m11());
    painter.drawPixmap(0, 0, m_image.pixmap(size(), ratio));
}
