// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

#include "app/dialogs/Dialogs.h"
#include "app/dialogs/MacroFilePanel.h"

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
    ~QtDialogs() override;
    QtDialogs(const QtDialogs&) = delete;
    QtDialogs& operator=(const QtDialogs&) = delete;

    AlertAnswer runAlert(const AlertText& text) override;
    void beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) override;
    QString runSavePanel(const QString& folder) override;
    QString runOpenPanel(const QString& folder) override;
    std::optional<ScriptAnswer> runScriptDialog(const ScriptDialog& dialog,
                                                const IsStopped& isStopped) override;

  private:
    int run(QDialog& dialog) const;
    QString run(std::unique_ptr<MacroFilePanel>& panel, MacroFilePanel::Kind kind,
                const QString& folder) const;

    Focus m_focus;
    /// Made when they are first asked for, and kept: the toolkit caches some of each new one's pictures.
    std::unique_ptr<MacroFilePanel> m_savePanel;
    std::unique_ptr<MacroFilePanel> m_openPanel;
};
