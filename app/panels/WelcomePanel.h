// SPDX-License-Identifier: MIT
#pragma once

#include "app/widgets/Panel.h"

class QGridLayout;
class QLayout;
class ShortcutModel;
struct PreferencesModel;

/// Greets the user at the first start: what the program does, the combinations as they are set, the way
/// to a first macro. Its button closes it as the frame does.
class WelcomePanel : public Panel {
    Q_OBJECT

  public:
    /// The model outlives the panel.
    explicit WelcomePanel(const PreferencesModel& model);

  private:
    QLayout* makeGreeting();
    QLayout* makeSteps(const PreferencesModel& model);
    QLayout* makeCombinations(const PreferencesModel& model);
    void addCombination(QGridLayout& grid, const ShortcutModel& shortcut, const QString& meaning);
};
