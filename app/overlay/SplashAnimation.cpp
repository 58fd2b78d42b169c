// SPDX-License-Identifier: MIT
#include "app/overlay/SplashAnimation.h"

#include <QPainter>
#include <chrono>
#include <string_view>

namespace {

constexpr std::chrono::milliseconds frame{40};
/// What is written on the keys.
constexpr std::string_view letters = "KEYRILL";
constexpr auto keys = static_cast<int>(letters.size());
constexpr int keySize = 36;
constexpr int gap = 8;
constexpr int millisecondsPerKey = 240;
constexpr int pressDepth = 5;

}  // namespace

SplashAnimation::SplashAnimation(QWidget* parent) : QWidget(parent) {
    m_frames.setInterval(frame);
    connect(&m_frames, &QTimer::timeout, this, [this] {
        m_shown = m_elapsed.elapsed();
        update();
    });
}

void SplashAnimation::startRendering() {
    m_elapsed.start();
    m_frames.start();
}

void SplashAnimation::stopRendering() { m_frames.stop(); }

QSize SplashAnimation::sizeHint() const { return {keys * keySize + (keys - 1) * gap, keySize + pressDepth}; }

void SplashAnimation::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    startRendering();
}

void SplashAnimation::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto pressed = static_cast<int>(m_shown / millisecondsPerKey % keys);
    QFont font = painter.font();
    font.setBold(true);
    painter.setFont(font);
    for (int key = 0; key < keys; ++key) {
        const bool isPressed = key == pressed;
        const QRect cap(key * (keySize + gap), isPressed ? pressDepth : 0, keySize, keySize);
        painter.setPen(Qt::NoPen);
        painter.setBrush(isPressed ? QColor(0x4c, 0xc3, 0x8a) : QColor(0xf2, 0xf2, 0xf2));
        painter.drawRoundedRect(cap, 7, 7);
        painter.setPen(QColor(0x1e, 0x22, 0x2a));
        painter.drawText(cap, Qt::AlignCenter, QString(QLatin1Char(letters[static_cast<std::size_t>(key)])));
    }
}
