// SPDX-License-Identifier: MIT
#pragma once

#include "app/widgets/Panel.h"

class QFormLayout;
class QLayout;
class QPushButton;
class QVBoxLayout;
class ShortcutModel;
struct PreferencesModel;
struct ShortcutTitles;

/// The panel of the shortcuts and the options. It shows and changes the model, which outlives it, and
/// does nothing else.
class PreferencesPanel : public Panel {
    Q_OBJECT

  public:
    explicit PreferencesPanel(PreferencesModel& model);

    /// Pressed by the user to have the update check answered in any case. It is there, but not shown, in
    /// builds without that check.
    QPushButton* checkForUpdatesNowButton() const { return m_checkForUpdatesNowButton; }

  private:
    QLayout* makeShortcuts(PreferencesModel& model);
    void addShortcut(QFormLayout& form, ShortcutModel& shortcut, const ShortcutTitles& titles);
    QLayout* makeOptions(PreferencesModel& model);
    QLayout* makeUpdateOption(PreferencesModel& model);

    QPushButton* m_checkForUpdatesNowButton;
};
