// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "app/dialogs/Dialogs.h"

class QDialog;

/// The questions to the user as windows of the toolkit.
class QtDialogs : public Dialogs {
  public:
    /// What gives a window the focus that no window of the program has led to, as far as the desktop allows.
    using Activate = std::function<void(QWidget& window)>;

    explicit QtDialogs(Activate activate = {});

    AlertAnswer runAlert(const AlertText& text) override;
    void beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) override;
    QString runSavePanel(const QString& folder) override;
    QString runOpenPanel(const QString& folder) override;

  private:
    int run(QDialog& dialog) const;

    Activate m_activate;
};
