// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// A button that opens a menu.
///
/// Why: to assistive technology the toolkit's own one neither answers while its menu is open nor has that
/// menu below it. This one has, so that all items can be found and chosen, open or not.
class MenuButton : public QPushButton {
    Q_OBJECT

  public:
    /// The menu outlives the button.
    MenuButton(const QString& text, QMenu& menu, QWidget* parent = nullptr);
};
