// SPDX-License-Identifier: MIT
#include "app/overlay/RecorderWindow.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QScreen>

#include "app/icons/DataFolder.h"
#include "app/overlay/MacroText.h"
#include "app/overlay/OverlayPanel.h"
#include "app/overlay/OverlayPlacement.h"
#include "app/overlay/RecorderView.h"

namespace {
constexpr int rightMargin = 16;
}  // namespace

RecorderWindow::RecorderWindow() : RecorderWindow(dataFolder()) {}

RecorderWindow::RecorderWindow(const QString& folder)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::BypassWindowManagerHint | Qt::WindowTransparentForInput |
                           Qt::WindowDoesNotAcceptFocus),
      m_macroText(new MacroText) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_TranslucentBackground);
    // Keys are a sequence in time, written as they are in the manual, whatever the language.
    setLayoutDirection(Qt::LeftToRight);
    setWindowTitle(tr("Keyrill recording"));

    auto* view = new RecorderView(folder, this);
    auto* windowLayout = new QHBoxLayout(this);
    windowLayout->setContentsMargins(0, 0, 0, 0);
    windowLayout->addWidget(view);
    auto* viewLayout = new QHBoxLayout(view);
    viewLayout->setContentsMargins(RecorderView::markWidth, 0, rightMargin, 0);
    viewLayout->addWidget(m_macroText);
    QFont font = m_macroText->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    m_macroText->setFont(font);
    connect(m_macroText, &MacroText::refreshed, this, &QWidget::raise);
    resize(RecorderView::pictureSize);
}

QPoint RecorderWindow::placeOn(const QSize& screen) const {
    const OverlayOrigin origin = overlayOrigin({screen.width(), screen.height()}, {width(), height()});
    // The formula counts upwards from the lower left corner, the window system downwards from the upper left.
    return {origin.x, screen.height() - origin.y - height()};
}

void RecorderWindow::place() {
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    move(screen.topLeft() + placeOn(screen.size()));
}

void RecorderWindow::setMacroString(const std::string& text) { m_macroText->setText(text); }

void RecorderWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    shapeAsOverlayPanel(*this);
}
