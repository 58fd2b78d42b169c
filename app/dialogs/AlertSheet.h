// SPDX-License-Identifier: MIT
#pragma once

#include "app/dialogs/AlertDialog.h"

/// An alert on a visible panel, which it blocks from open() until it is answered. It deletes itself after the
/// answer, which is given once. When the panel goes away first, that is the alternate answer.
class AlertSheet : public AlertDialog {
    Q_OBJECT

  public:
    AlertSheet(QWidget& panel, const AlertText& text, Dialogs::DidEnd didEnd);
    ~AlertSheet() override;
    AlertSheet(const AlertSheet&) = delete;
    AlertSheet& operator=(const AlertSheet&) = delete;

    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    void end();

    Dialogs::DidEnd m_didEnd;
};
