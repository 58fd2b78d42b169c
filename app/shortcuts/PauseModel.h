// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include "prefs/PauseChoice.h"

/// Which pauses recordings keep, as the preferences show it, there from the program's start.
class PauseModel : public QObject {
    Q_OBJECT

  public:
    const PauseChoice& choice() const { return m_choice; }
    void setChoice(const PauseChoice& choice);

    void setKind(PauseRecording kind);
    /// In milliseconds, PauseChoice::shortestLimit to longestLimit.
    void setLimit(std::int32_t milliseconds);

  signals:
    void changed();

  private:
    PauseChoice m_choice;
};
