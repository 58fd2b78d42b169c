// SPDX-License-Identifier: MIT
#include "app/tray/ControlWindow.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

#include "app/icons/ProgramIcon.h"
#include "app/tray/MenuButton.h"
#include "app/widgets/NoticeLine.h"
#include "app/widgets/PanelText.h"

namespace {
constexpr int arrowGap = 16;
}  // namespace

ControlWindow::ControlWindow(QMenu& menu) : m_advice(makeLine({})), m_notice(new NoticeLine(this)) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowDoesNotAcceptFocus);
    setWindowTitle(tr("Keyrill"));
    setWindowIcon(programIcon());

    auto* button = new MenuButton(tr("Keyrill &menu"), menu, this);
    // The style leaves no room before the arrow.
    button->setMinimumWidth(button->sizeHint().width() + arrowGap);
    auto* words = new QVBoxLayout;
    words->addWidget(m_advice);
    words->addWidget(m_notice);
    words->addWidget(button, 0, Qt::AlignLeading);
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(makeProgramIcon(), 0, Qt::AlignTop);
    layout->addLayout(words, 1);
    // The window grows and shrinks with its notice.
    layout->setSizeConstraint(QLayout::SetFixedSize);
    setStandsIn(true);
}

void ControlWindow::setStandsIn(bool standsIn) {
    m_standsIn = standsIn;
    m_advice->setText(standsIn ? tr("No tray was found, so here is the menu.")
                               : tr("Keyrill is running; its menu is in the tray too."));
}

void ControlWindow::setNotice(const QString& notice) { m_notice->setNotice(notice); }

void ControlWindow::closeEvent(QCloseEvent* event) {
    if (!m_standsIn) return QWidget::closeEvent(event);
    event->ignore();
    showMinimized();
}
