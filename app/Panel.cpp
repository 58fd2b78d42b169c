// SPDX-License-Identifier: MIT
#include "app/Panel.h"

#include <QCloseEvent>
#include <QKeyEvent>

Panel::Panel(const QString& title) { setWindowTitle(title); }

void Panel::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    if (event->isAccepted()) emit willClose();
}

void Panel::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}
