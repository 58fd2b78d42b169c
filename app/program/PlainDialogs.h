// SPDX-License-Identifier: MIT
#pragma once

#include "app/Dialogs.h"

/// The questions in the toolkit's own boxes.
class PlainDialogs : public Dialogs {
  public:
    AlertAnswer runAlert(const AlertText& text) override;
    void beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) override;
    QString runSavePanel(const QString& folder) override;
    QString runOpenPanel(const QString& folder) override;
};
