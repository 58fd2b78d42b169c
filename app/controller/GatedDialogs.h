// SPDX-License-Identifier: MIT
#pragma once

#include "app/dialogs/Dialogs.h"

class Gate;

/// Asks through other dialogs and keeps the gate shut as long as a question is open.
class GatedDialogs : public Dialogs {
  public:
    /// Both outlive this.
    GatedDialogs(Dialogs& dialogs, Gate& gate) : m_dialogs(dialogs), m_gate(gate) {}

    AlertAnswer runAlert(const AlertText& text) override;
    void beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) override;
    QString runSavePanel(const QString& folder) override;
    QString runOpenPanel(const QString& folder) override;
    std::optional<ScriptAnswer> runScriptDialog(const ScriptDialog& dialog,
                                                const IsStopped& isStopped) override;

  private:
    Dialogs& m_dialogs;
    Gate& m_gate;
};
