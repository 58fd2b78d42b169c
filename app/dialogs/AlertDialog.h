// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include "app/dialogs/Dialogs.h"

class QPushButton;

/// An alert on the screen: a sign, title and message, one to three buttons. The title is also the window's;
/// all texts are shown as they are, neither as rich text nor with mnemonics. Accepted by the default button
/// (also Return; it has the focus), rejected by the alternate one, Escape and the window's frame.
class AlertDialog : public QDialog {
    Q_OBJECT

  public:
    explicit AlertDialog(const AlertText& text, QWidget* parent = nullptr);

    AlertAnswer answer() const;

  private:
    QWidget* makeButtons(const AlertText& text);

    QPushButton* m_default = nullptr;
};
