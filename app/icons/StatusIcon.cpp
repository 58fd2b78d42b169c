// SPDX-License-Identifier: MIT
#include "app/icons/StatusIcon.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <algorithm>
#include <array>

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

QPainterPath signOf(StatusImage image) { return image == StatusImage::busy ? dots() : letter(); }

QString nameOf(StatusImage image) {
    return image == StatusImage::busy ? QStringLiteral("example.orlen.Keyrill-busy-symbolic")
                                      : QStringLiteral("example.orlen.Keyrill-symbolic");
}

/// Light and dark edges, for panels of any colour.
void drawStatus(QPainter& painter, StatusImage image, const QRect& place) {
    const int size = std::min(place.width(), place.height());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.x() + (place.width() - size) / 2.0, place.y() + (place.height() - size) / 2.0);
    painter.scale(size / grid, size / grid);
    painter.setPen(QPen(QColor(0xf2, 0xf2, 0xf2), 1));
    painter.setBrush(QColor(0x2b, 0x30, 0x3b));
    painter.drawRoundedRect(QRectF(1, 1, 14, 14), 3, 3);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(signOf(image));
}

/// May have the name of the theme's icon, and draws its own, whether there is such a theme or not.
class StatusIconEngine : public QIconEngine {
  public:
    StatusIconEngine(StatusImage image, const QString& name) : m_image(image), m_name(name) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        painter->save();
        drawStatus(*painter, m_image, place);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawStatus(painter, m_image, pixmap.rect());
        return pixmap;
    }
    QIconEngine* clone() const override { return new StatusIconEngine(*this); }
    QString iconName() override { return m_name; }
    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) override {
        QList<QSize> sizes;
        for (const int size : {16, 22, 24, 32, 48, 64}) sizes.append(QSize(size, size));
        return sizes;
    }

  private:
    StatusImage m_image;
    QString m_name;
};

}  // namespace

// The first name is the session's own; those after it only tell what it is made of.
bool paintsSymbolicIcons(const QString& desktops) {
    constexpr std::array known = {"GNOME", "ubuntu", "XFCE"};
    const QString session = desktops.section(QLatin1Char(':'), 0, 0);
    return std::any_of(known.begin(), known.end(),
                       [&session](const char* name) { return session == QLatin1String(name); });
}

QIcon statusIcon(StatusImage image) {
    const bool hasName = paintsSymbolicIcons(qEnvironmentVariable("XDG_CURRENT_DESKTOP"));
    return QIcon(new StatusIconEngine(image, hasName ? nameOf(image) : QString()));
}
