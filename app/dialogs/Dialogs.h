// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "platform/ScriptDialogs.h"

class QWidget;

/// What an alert says. The texts are shown as they are.
struct AlertText {
    enum class Kind { stop, critical, informational, warning };

    Kind kind = Kind::informational;
    QString title;
    /// May be empty, and may have several lines.
    QString message;
    QString defaultButton;
    /// Empty: there is no second button.
    QString alternateButton = {};
    /// Empty: there is no third button.
    QString otherButton = {};

    friend bool operator==(const AlertText&, const AlertText&) = default;
};

/// Which button ended an alert. Escape and the close button of a window choose the alternate one.
enum class AlertAnswer { alternateButton = 0, defaultButton = 1, otherButton = 2 };

/// The program's questions to the user. Main thread only.
class Dialogs {
  public:
    using DidEnd = std::function<void(AlertAnswer)>;
    /// Asked from time to time; never empty.
    using IsStopped = std::function<bool()>;

    virtual ~Dialogs() = default;

    /// Asks in a window of its own and returns with the answer; events go on meanwhile.
    virtual AlertAnswer runAlert(const AlertText& text) = 0;

    /// Asks on a panel, which must be visible, and returns at once. `didEnd` is called once, with the answer;
    /// it may be empty. A panel that goes away while it is asked answers with the alternate button.
    virtual void beginSheet(QWidget& panel, const AlertText& text, DidEnd didEnd) = 0;

    /// Ask for a macro file, starting in `folder`, which need not exist. A path, or empty for cancelled. What
    /// is typed may begin with "~". To save, the suffix ".keyrill" is added where it is missing, before the
    /// question whether to replace a file.
    virtual QString runSavePanel(const QString& folder) = 0;
    virtual QString runOpenPanel(const QString& folder) = 0;

    /// Asks a script's question and returns with the answer, once the focus is elsewhere again. Empty if the
    /// window went without one: the program is about to end, or the user wishes to end the playback, as
    /// `isStopped` tells wherever he has said so.
    virtual std::optional<ScriptAnswer> runScriptDialog(const ScriptDialog& dialog,
                                                        const IsStopped& isStopped) = 0;
};
