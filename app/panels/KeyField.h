// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

#include "platform/WindowKeys.h"

class QKeyEvent;

/// Shows what is recorded, and while it has the focus takes all keys for that: none of them moves the focus,
/// presses a button or is a character of its text.
class KeyField : public QLineEdit {
    Q_OBJECT

  public:
    explicit KeyField(QWidget* parent = nullptr);

  signals:
    /// A key of the keyboard was pressed, has repeated or was released.
    void keyCame(const WindowKey& key);
    /// The keyboard is another's from now on.
    void left();

  protected:
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

  private:
    void tell(const QKeyEvent& event);
};
