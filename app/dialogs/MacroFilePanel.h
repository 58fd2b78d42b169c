// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDialog>

class NoticeLine;
class QCompleter;
class QLineEdit;
struct AlertText;

/// Asks for a macro file. Keyrill's own window, except in a sandbox, where only the desktop's can see the
/// user's files. It leaves nothing behind in the user's settings.
class MacroFilePanel : public QFileDialog {
    Q_OBJECT

  public:
    enum class Kind { open, save };

    MacroFilePanel(Kind kind, const QString& folder);

    /// As a new one would be: in that folder, with nothing typed or chosen.
    void beginAnew(const QString& folder);

    /// After it was accepted; empty if nothing was chosen.
    QString path() const;

  protected:
    /// Goes into a folder; else takes the file if it is one to save to or to load from, or tells why not.
    void accept() override;
    /// Nothing of the panel is on the screen afterwards.
    void done(int result) override;

  private:
    void makeNotice();
    /// Whether the toolkit may go on with that name.
    bool isToBeSaved(QLineEdit& name);
    bool isToBeLoaded();
    /// What is chosen or typed now.
    QString choice() const { return selectedFiles().value(0); }
    /// By the program's own alert: the toolkit's shows names as markup.
    bool confirm(const AlertText& text);

    /// Null in a sandbox, where the window is the desktop's.
    QLineEdit* nameField() const;

    NoticeLine* m_notice = nullptr;
    /// What completes a name; null in a sandbox.
    QCompleter* m_completer = nullptr;
};
