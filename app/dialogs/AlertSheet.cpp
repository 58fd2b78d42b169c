// SPDX-License-Identifier: MIT
#include "app/dialogs/AlertSheet.h"

#include <QEvent>
#include <utility>

AlertSheet::AlertSheet(QWidget& panel, const AlertText& text, Dialogs::DidEnd didEnd)
    : AlertDialog(text, &panel), m_didEnd(std::move(didEnd)) {
    setAttribute(Qt::WA_DeleteOnClose);
    panel.installEventFilter(this);
    connect(this, &QDialog::finished, this, &AlertSheet::end);
}

AlertSheet::~AlertSheet() { end(); }

// A panel that is minimised stays where it is, and so does its sheet.
bool AlertSheet::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Hide && !event->spontaneous()) reject();
    return AlertDialog::eventFilter(object, event);
}

void AlertSheet::end() {
    const Dialogs::DidEnd didEnd = std::exchange(m_didEnd, nullptr);
    if (didEnd) didEnd(answer());
}
