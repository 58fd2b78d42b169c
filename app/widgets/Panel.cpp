// SPDX-License-Identifier: MIT
#include "app/widgets/Panel.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>

#include "app/icons/ProgramIcon.h"
#include "app/widgets/NoticeLine.h"

Panel::Panel(const QString& title) {
    // The toolkit reads this when the window is made, not when it is shown. Who opens a panel gives it the
    // focus; one that comes back after a play is to come without.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowTitle(title);
    setWindowIcon(programIcon());
}

void Panel::setHint(const QString& hint) {
    if (m_hint == nullptr && !hint.isEmpty()) {
        m_hint = new NoticeLine(this);
        if (auto* box = qobject_cast<QBoxLayout*>(layout())) box->insertWidget(0, m_hint);
    }
    if (m_hint != nullptr) m_hint->setNotice(hint);
}

void Panel::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    if (event->isAccepted()) emit willClose();
}

void Panel::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel)) {
        close();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        pressButton();
    } else {
        QWidget::keyPressEvent(event);
    }
}

// The toolkit does this in its dialogs only.
void Panel::pressButton() {
    if (auto* focused = qobject_cast<QPushButton*>(focusWidget())) {
        focused->click();
        return;
    }
    for (QPushButton* button : findChildren<QPushButton*>()) {
        if (!button->isDefault()) continue;
        button->click();
        return;
    }
}
