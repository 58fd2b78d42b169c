// SPDX-License-Identifier: MIT
#include "app/SplashWindow.h"

#include <QVBoxLayout>

#include "app/SplashAnimation.h"

SplashWindow::SplashWindow() : Panel(tr("Keyrill")), m_splashAnim(new SplashAnimation) {
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_splashAnim);
}
