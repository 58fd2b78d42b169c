// SPDX-License-Identifier: MIT
#pragma once

#include "app/widgets/Panel.h"
#include "platform/Result.h"
#include "platform/WindowKeys.h"

class KeyField;
class QLabel;
class QPushButton;

/// Where the keys of other programs may not be seen: a window whose own are recorded. All keys are, so that
/// no key closes it; its button and its frame do.
class RecordHerePanel : public Panel {
    Q_OBJECT

  public:
    RecordHerePanel();
    ~RecordHerePanel() override;
    RecordHerePanel(const RecordHerePanel&) = delete;
    RecordHerePanel& operator=(const RecordHerePanel&) = delete;

    /// Why other programs' keys are not seen, and what can be done about it.
    void setCause(const Error& cause);
    /// The combination that ends the recording, as this desktop writes it; empty if there is none.
    void setStopCombination(const QString& combination);
    /// The same where the desktop's settings have it, in the desktop's words; empty if it does not say.
    void setStopTrigger(const QString& words);
    /// What is recorded so far.
    void setMacroString(const QString& text);
    /// The next key is the recording's.
    void takeKeys();

    /// Is to show how other programs' keys could be seen.
    QPushButton* helpButton() const { return m_helpButton; }

  signals:
    void keyCame(const WindowKey& key);
    /// The keyboard is another's from now on.
    void left();

  private:
    void setEnd(const QString& text);

    QLabel* m_cause;
    QLabel* m_hint;
    QLabel* m_end;
    KeyField* m_field;
    QPushButton* m_helpButton;
};
