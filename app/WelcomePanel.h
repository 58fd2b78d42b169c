// SPDX-License-Identifier: MIT
#pragma once

#include "app/Panel.h"

struct PreferencesModel;

/// Greets the user at the first start: what the program does, the four combinations as they are set, the way
/// to a first macro. Its button closes it as the frame does.
class WelcomePanel : public Panel {
    Q_OBJECT

  public:
    /// The model outlives the panel.
    explicit WelcomePanel(const PreferencesModel& model);
};
