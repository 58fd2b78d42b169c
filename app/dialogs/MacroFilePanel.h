// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>

/// Asks for a macro file. Keyrill's own window, except in a sandbox, where only the desktop's can see the
/// user's files. It leaves nothing behind in the user's settings.
class MacroFilePanel : public QFileDialog {
    Q_OBJECT

  public:
    enum class Kind { open, save };

    MacroFilePanel(Kind kind, const QString& folder);

    /// After it was accepted; empty if nothing was chosen.
    QString path() const;

  protected:
    /// Adds the suffix where it is missing, before the toolkit asks about replacing a file.
    void accept() override;
};
