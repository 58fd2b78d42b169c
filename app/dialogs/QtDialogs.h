// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "app/dialogs/Dialogs.h"

class QDialog;

/// The questions to the user as windows of the toolkit.
class QtDialogs : public Dialogs {
  public:
    /// What the toolkit cannot do with the focus.
    struct Focus {
        /// Gives it to a window that no window of the program has led to, as far as the desktop allows.
        std::function<void(QWidget& window)> take = {};
        /// Waits until it has gone elsewhere from a window that has just been hidden.
        std::function<void(QWidget& hidden)> awaitElsewhere = {};
    };

    QtDialogs() = default;
    explicit QtDialogs(Focus focus);

    AlertAnswer runAlert(const AlertText& text) override;
    void beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) override;
    QString runSavePanel(const QString& folder) override;
    QString runOpenPanel(const QString& folder) override;
    std::optional<ScriptAnswer> runScriptDialog(const ScriptDialog& dialog,
                                                const IsStopped& isStopped) override;

  private:
    int run(QDialog& dialog) const;

    Focus m_focus;
};
