// SPDX-License-Identifier: MIT
#include "app/StatusMenu.h"

#include "app/MenuState.h"

namespace {

void applyTo(QAction* item, const MenuItemState& state) {
    item->setVisible(state.visible);
    item->setEnabled(state.enabled);
}

}  // namespace

QString menuTitle(QString text) { return text.replace(u'&', QStringLiteral("&&")); }

StatusMenu::StatusMenu() {
    setWindowTitle(tr("Keyrill menu"));
    recordMenuItem = addAction(menuTitle(tr("Start Recording")));
    stopMenuItem = addAction(menuTitle(tr("Stop Recording")));
    saveDelayMenuItem = addAction(menuTitle(tr("Save Pause")));
    playMenuItem = addAction(menuTitle(tr("Play")));
    multiplePlayMenuItem = addAction(menuTitle(tr("Play Multiple Times...")));
    addSeparator();
    historyMenu = addMenu(menuTitle(tr("History")));
    addSeparator();
    quitMenuItem = addAction(menuTitle(tr("Quit")));
    // The toolkit would move an item to another menu because of its title on some desktops.
    for (QAction* item : actions()) item->setMenuRole(QAction::NoRole);
}

void StatusMenu::apply(const MenuState& state) {
    applyTo(recordMenuItem, state.record);
    applyTo(stopMenuItem, state.stop);
    applyTo(saveDelayMenuItem, state.saveDelay);
    applyTo(playMenuItem, state.play);
    applyTo(multiplePlayMenuItem, state.multiplePlay);
    applyTo(historyMenu->menuAction(), state.history);
}
