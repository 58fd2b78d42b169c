// SPDX-License-Identifier: MIT
#include "app/SplashAnimation.h"

#include <QPainter>
#include <chrono>

namespace {

constexpr std::chrono::milliseconds frame{40};
constexpr int keys = 5;
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
    for (int key = 0; key < keys; ++key) {
        const bool isPressed = key == pressed;
        painter.setPen(Qt::NoPen);
        painter.setBrush(isPressed ? QColor(0x4c, 0xc3, 0x8a) : QColor(0xf2, 0xf2, 0xf2));
        const int top = isPressed ? pressDepth : 0;
        painter.drawRoundedRect(QRect(key * (keySize + gap), top, keySize, keySize), 7, 7);
    }
}
