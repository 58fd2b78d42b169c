// SPDX-License-Identifier: MIT
#include "app/overlay/MultiplePlayView.h"

#include <QPainter>

void MultiplePlayView::drawImage(QPainter& painter) const {
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    PictureView::drawImage(painter);
}
