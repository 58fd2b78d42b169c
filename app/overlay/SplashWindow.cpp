// SPDX-License-Identifier: MIT
#include "app/overlay/SplashWindow.h"

#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "app/icons/DataFolder.h"
#include "app/overlay/OverlayPanel.h"
#include "app/overlay/SplashAnimation.h"
#include "app/widgets/PanelText.h"

SplashWindow::SplashWindow() : SplashWindow(dataFolder()) {}

SplashWindow::SplashWindow(const QString& folder)
    : Panel(QStringLiteral("Keyrill")),
      m_picture(folder, QStringLiteral("splash")),
      m_splashAnim(new SplashAnimation) {
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);

    QLabel* name = makeTitle(QStringLiteral("Keyrill"));
    // The picture behind is dark on every desktop.
    QPalette onDark = name->palette();
    onDark.setColor(QPalette::WindowText, Qt::white);
    name->setPalette(onDark);
    auto* logo = new QHBoxLayout;
    logo->addStretch();
    logo->addWidget(makeProgramIcon());
    logo->addSpacing(logo->spacing());
    logo->addWidget(name);
    logo->addStretch();

    auto* layout = new QVBoxLayout(this);
    layout->addStretch();
    layout->addLayout(logo);
    layout->addStretch();
    layout->addWidget(m_splashAnim, 0, Qt::AlignHCenter);
    layout->addStretch();
    setFixedSize(pictureSize);
}

void SplashWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.fillRect(rect(), Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawPixmap(0, 0, m_picture.pixmap(size(), devicePixelRatioF()));
}

void SplashWindow::resizeEvent(QResizeEvent* event) {
    Panel::resizeEvent(event);
    shapeAsOverlayPanel(*this);
}
