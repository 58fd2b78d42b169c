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

  protected:
    void hideEvent(QHideEvent* event) override;

  private:
    class Style;

    /// The toolkit measures a submenu that is opened again before it forgets how far it was scrolled. With a
    /// style under which menus do not scroll it forgets that at once.
    void forgetScrolling();

    Style* m_style;
};
