// SPDX-License-Identifier: MIT
#include "app/icons/StatusIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include "app/icons/ProgramIcon.h"

namespace {

/// All drawing is on a grid of 16 by 16.
constexpr qreal grid = 16;

/// The letter K on a key cap.
QPainterPath letter() {
    QPainterPath path;
    path.moveTo(5.5, 4.5);
    path.lineTo(5.5, 11.5);
    path.moveTo(10.5, 4.5);
    path.lineTo(5.75, 8.5);
    path.moveTo(7.5, 7.25);
    path.lineTo(10.5, 11.5);
    return path;
}

/// Three dots on a key cap.
QPainterPath dots() {
    QPainterPath path;
    for (const qreal x : {4.75, 8.0, 11.25}) path.addEllipse(QPointF(x, 8), 0.6, 0.6);
    return path;
}

/// A filled circle on a key cap.
QPainterPath circle() {
    QPainterPath path;
    path.addEllipse(QPointF(8, 8), 2.5, 2.5);
    return path;
}

QPainterPath signOf(StatusImage image) {
    switch (image) {
        case StatusImage::busy:
            return dots();
        case StatusImage::recording:
            return circle();
        case StatusImage::normal:
            break;
    }
    return letter();
}

QString nameOf(StatusImage image) {
    switch (image) {
        case StatusImage::busy:
            return QStringLiteral("example.orlen.Keyrill-busy-symbolic");
        case StatusImage::recording:
            return QStringLiteral("example.orlen.Keyrill-recording-symbolic");
        case StatusImage::normal:
            break;
    }
    return QStringLiteral("example.orlen.Keyrill-symbolic");
}

QPixmap statusPixmap(StatusImage image, int size) {
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / grid, size / grid);
    painter.setPen(QPen(QColor(0xf2, 0xf2, 0xf2), 1));
    painter.setBrush(QColor(0x2b, 0x30, 0x3b));
    painter.drawRoundedRect(QRectF(1, 1, 14, 14), 3, 3);
    painter.setBrush(image == StatusImage::recording ? QBrush(Qt::white) : QBrush(Qt::NoBrush));
    painter.setPen(QPen(Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(signOf(image));
    return pixmap;
}

}  // namespace

QIcon builtInStatusIcon(StatusImage image) {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64}) icon.addPixmap(statusPixmap(image, size));
    return icon;
}

QIcon themedStatusIcon(StatusImage image) {
    findOwnIcons();
    return QIcon::fromTheme(nameOf(image), builtInStatusIcon(image));
}
