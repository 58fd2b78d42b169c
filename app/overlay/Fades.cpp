// SPDX-License-Identifier: MIT
#include "app/overlay/Fades.h"

#include <QPropertyAnimation>
#include <QWidget>

namespace {
constexpr int durationInMilliseconds = 350;
const QString fadeName = QStringLiteral("fade");
}  // namespace

void setAlpha(QWidget& window, double alpha) {
    endFade(window);
    window.setWindowOpacity(alpha);
}

void animateAlpha(QWidget& window, double alpha) {
    endFade(window);
    auto* fade = new QPropertyAnimation(&window, "windowOpacity", &window);
    fade->setObjectName(fadeName);
    fade->setDuration(durationInMilliseconds);
    fade->setEndValue(static_cast<double>(static_cast<float>(alpha)));
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

void endFade(QWidget& window) {
    delete window.findChild<QPropertyAnimation*>(fadeName, Qt::FindDirectChildrenOnly);
}
