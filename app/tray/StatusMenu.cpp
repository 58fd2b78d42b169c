// SPDX-License-Identifier: MIT
#include "app/tray/StatusMenu.h"

#include "app/tray/MenuState.h"
#include "platform/Features.h"

namespace {

void applyTo(QAction* item, const MenuItemState& state) {
    item->setVisible(state.visible);
    item->setEnabled(state.enabled);
}

/// The toolkit would move an item to another menu because of its title on some desktops.
void keepInPlace(const QMenu& menu) {
    for (QAction* item : menu.actions()) item->setMenuRole(QAction::NoRole);
}

}  // namespace

QString menuTitle(QString text) { return text.replace(u'&', QStringLiteral("&&")); }

StatusMenu::StatusMenu() {
    setWindowTitle(tr("Keyrill menu"));
    addMacroItems();
    addSeparator();
    preferencesMenuItem = addAction(menuTitle(tr("Preferences...")));
    addHelpMenu();
    addSeparator();
    quitMenuItem = addAction(menuTitle(tr("Quit")));
    keepInPlace(*this);
    keepInPlace(*helpMenu);
}

void StatusMenu::addMacroItems() {
    recordMenuItem = addAction(menuTitle(tr("Start Recording")));
    stopMenuItem = addAction(menuTitle(tr("Stop Recording")));
    saveDelayMenuItem = addAction(menuTitle(tr("Save Pause")));
    playMenuItem = addAction(menuTitle(tr("Play")));
    multiplePlayMenuItem = addAction(menuTitle(tr("Play Multiple Times...")));
    addSeparator();
    historyMenu = addMenu(menuTitle(tr("History")));
    saveMacroMenuItem = addAction(menuTitle(tr("Save Macro...")));
    loadMacroMenuItem = addAction(menuTitle(tr("Load Macro...")));
}

void StatusMenu::addHelpMenu() {
    helpMenu = addMenu(menuTitle(tr("Help")));
    documentationMenuItem = helpMenu->addAction(menuTitle(tr("Documentation")));
    forumMenuItem = helpMenu->addAction(menuTitle(tr("Forum")));
    keyrillWebsiteMenuItem = helpMenu->addAction(menuTitle(tr("Product Page")));
    orlenWebsiteMenuItem = helpMenu->addAction(menuTitle(tr("Maker's Website")));
    helpMenu->addSeparator();
    supportMenuItem = helpMenu->addAction(menuTitle(tr("Get Support")));
    feedbackMenuItem = helpMenu->addAction(menuTitle(tr("Send Feedback")));
    bugMenuItem = helpMenu->addAction(menuTitle(tr("Report a Bug")));
    helpMenu->addSeparator();
    if (features::updateCheck) updateMenuItem = helpMenu->addAction(menuTitle(tr("Check for Updates...")));
    aboutMenuItem = helpMenu->addAction(menuTitle(tr("About Keyrill")));
}

void StatusMenu::showEvent(QShowEvent* event) {
    QMenu::showEvent(event);
    emit shown(true);
}

void StatusMenu::hideEvent(QHideEvent* event) {
    QMenu::hideEvent(event);
    emit shown(false);
}

void StatusMenu::apply(const MenuState& state) {
    applyTo(saveMacroMenuItem, state.saveMacro);
    applyTo(saveDelayMenuItem, state.saveDelay);
    applyTo(playMenuItem, state.play);
    applyTo(multiplePlayMenuItem, state.multiplePlay);
    applyTo(stopMenuItem, state.stop);
    applyTo(recordMenuItem, state.record);
    applyTo(historyMenu->menuAction(), state.history);
    applyTo(loadMacroMenuItem, state.loadMacro);
    applyTo(preferencesMenuItem, state.others);
    applyTo(helpMenu->menuAction(), state.others);
}
