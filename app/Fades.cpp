// SPDX-License-Identifier: MIT
#include "app/Fades.h"

#include <QPropertyAnimation>
#include <QWidget>

namespace {

constexpr int durationInMilliseconds = 350;
const QString fadeName = QStringLiteral("fade");

void stopFade(QWidget& window) {
    delete window.findChild<QPropertyAnimation*>(fadeName, Qt::FindDirectChildrenOnly);
}

}  // namespace

void fadeIn(QWidget& window, double alpha) {
    stopFade(window);
    window.setWindowOpacity(0);
    window.show();
    auto* fade = new QPropertyAnimation(&window, "windowOpacity", &window);
    fade->setObjectName(fadeName);
    fade->setDuration(durationInMilliseconds);
    fade->setEndValue(alpha);
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

void fadeOut(QWidget& window) {
    stopFade(window);
    window.hide();
}
