// SPDX-License-Identifier: MIT
#include "app/ControlWindow.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/StatusIcon.h"

ControlWindow::ControlWindow(QMenu& menu) : m_advice(new QLabel(this)), m_notice(new QLabel(this)) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    setWindowTitle(tr("Keyrill"));
    setWindowIcon(builtInStatusIcon(StatusImage::normal));

    m_notice->setWordWrap(true);
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->hide();
    auto* button = new QPushButton(tr("Keyrill"), this);
    button->setMenu(&menu);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_advice);
    layout->addWidget(m_notice);
    layout->addWidget(button, 0, Qt::AlignLeft);
    setStandsIn(true);
}

void ControlWindow::setStandsIn(bool standsIn) {
    m_standsIn = standsIn;
    m_advice->setText(standsIn ? tr("No tray was found, so here is the menu.")
                               : tr("Keyrill is running; its menu is in the tray too."));
}

void ControlWindow::setNotice(const QString& notice) {
    m_notice->setText(notice);
    m_notice->setVisible(!notice.isEmpty());
}

void ControlWindow::closeEvent(QCloseEvent* event) {
    if (!m_standsIn) return QWidget::closeEvent(event);
    event->ignore();
    showMinimized();
}
