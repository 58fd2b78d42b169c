// SPDX-License-Identifier: MIT
#include "app/tray/StatusMenu.h"

#include <QCoreApplication>
#include <QPixmapCache>

#include "app/tray/MenuState.h"
#include "app/widgets/MenuTitle.h"
#include "app/widgets/ScrollingMenu.h"

namespace {

QAction* addRow(QMenu& menu, const MenuRow& row) {
    const QString title = menuTitle(QCoreApplication::translate(menuContext, row.title));
    switch (row.kind) {
        case MenuItemKind::command:
            return menu.addAction(title);
        case MenuItemKind::submenu:
            return menu.addMenu(new ScrollingMenu(title, &menu));
        case MenuItemKind::separator:
            return menu.addSeparator();
    }
    Q_UNREACHABLE();
}

}  // namespace

StatusMenu::StatusMenu() : m_items(makeItems()) { setWindowTitle(tr("Keyrill menu")); }

StatusMenu::Items StatusMenu::makeItems() {
    Items items{};
    QMenu* submenu = this;
    for (std::size_t i = 0; i < menuRows.size(); ++i) {
        const MenuRow& row = menuRows[i];
        if (!row.isOffered) continue;
        items[i] = addRow(row.isNested ? *submenu : *this, row);
        // The toolkit would move an item to another menu because of its title on some desktops.
        items[i]->setMenuRole(QAction::NoRole);
        if (row.kind == MenuItemKind::submenu) submenu = items[i]->menu();
    }
    return items;
}

void StatusMenu::showEvent(QShowEvent* event) {
    QMenu::showEvent(event);
    emit shown(true);
}

void StatusMenu::hideEvent(QHideEvent* event) {
    QMenu::hideEvent(event);
    // The style keeps pictures of its arrows, others each time that the menu is opened.
    QPixmapCache::clear();
    emit shown(false);
}

void StatusMenu::apply(const MenuState& state) {
    for (std::size_t i = 0; i < m_items.size(); ++i) {
        QAction* const item = m_items[i];
        if (item == nullptr) continue;
        item->setVisible(state.items[i].visible);
        item->setEnabled(state.items[i].enabled);
    }
}
