// SPDX-License-Identifier: MIT
#pragma once

#include "app/Panel.h"

class QPushButton;
struct PreferencesModel;

/// The panel of the four shortcuts and the options. It shows and changes the model, which outlives it, and
/// does nothing else.
class PreferencesPanel : public Panel {
    Q_OBJECT

  public:
    explicit PreferencesPanel(PreferencesModel& model);

    /// Pressed by the user to have the update check answered in any case.
    QPushButton* checkForUpdatesNowButton() const { return m_checkForUpdatesNowButton; }

  private:
    QPushButton* m_checkForUpdatesNowButton;
};
