// SPDX-License-Identifier: MIT
#include "app/ControlWindow.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/StatusIcon.h"

ControlWindow::ControlWindow(QMenu& menu) : m_notice(new QLabel(this)) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    setWindowTitle(tr("Keyrill"));
    setWindowIcon(builtInStatusIcon(StatusImage::normal));

    auto* advice = new QLabel(tr("No tray was found, so here is the menu."), this);
    m_notice->setWordWrap(true);
    m_notice->setTextFormat(Qt::PlainText);
    m_notice->hide();
    auto* button = new QPushButton(tr("Keyrill"), this);
    button->setMenu(&menu);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(advice);
    layout->addWidget(m_notice);
    layout->addWidget(button, 0, Qt::AlignLeft);
}

void ControlWindow::setNotice(const QString& notice) {
    m_notice->setText(notice);
    m_notice->setVisible(!notice.isEmpty());
}

void ControlWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    showMinimized();
}
