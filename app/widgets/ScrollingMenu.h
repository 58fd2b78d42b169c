// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

/// A menu that scrolls where it is taller than the screen. The toolkit's own would take as many columns as it
/// needs, and what does not fit into these cannot be seen or chosen.
class ScrollingMenu : public QMenu {
    Q_OBJECT

  public:
    /// `title` with its "&" doubled.
    ScrollingMenu(const QString& title, QWidget* parent);
};
