// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QSet>
#include <QStringList>

#include "app/shortcuts/ShortcutTitles.h"
#include "app/shortcuts/Toggles.h"
#include "app/tray/Actions.h"
#include "app/tray/MenuItems.h"
#include "prefs/Shortcuts.h"

namespace {

TEST(ShortcutTitlesTest, nameEachShortcutOnce) {
    QSet<QString> labels;
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) labels.insert(shortcutTitles(i).label);
    EXPECT_EQ(labels.size(), shortcutRows.size());
}

TEST(ShortcutTitlesTest, nameEachCommandAsTheMenuDoes) {
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const MenuRow& row = menuRows.at(menuRowNamed(shortcutRows[i].name));
        const QString title = QString::fromLatin1(row.title).remove(QStringLiteral("..."));
        EXPECT_EQ(shortcutTitles(i).command.toStdString(), title.toStdString());
    }
}

TEST(ShortcutTitlesTest, doWhatTheirActionsDo) {
    for (const ShortcutRow& row : shortcutRows) {
        const ActionRow* const action = actionNamed(row.action);
        ASSERT_NE(action, nullptr) << row.name;
        EXPECT_EQ(action->menuItem, row.name);
    }
}

TEST(ShortcutTitlesTest, areTheLabelsCommandWithAMnemonic) {
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        ShortcutTitles titles = shortcutTitles(i);
        EXPECT_EQ(titles.label.count(u'&'), 1) << titles.label.toStdString();
        EXPECT_EQ(titles.label.remove(u'&').toStdString(), titles.command.toStdString() + ":");
    }
}

TEST(TogglesTest, beginOffAndAreStoredInThisOrder) {
    constexpr std::size_t updates = toggleIndex("checkForUpdatesOnLaunch");
    constexpr std::size_t login = toggleIndex("launchOnLogin");
    constexpr std::size_t modifierKeys = toggleIndex("recordModifierKeys");
    EXPECT_LT(updates, login);
    EXPECT_LT(login, modifierKeys);
    EXPECT_FALSE(toggleRows[updates].initiallyOn);
    EXPECT_FALSE(toggleRows[login].initiallyOn);
    EXPECT_FALSE(toggleRows[modifierKeys].initiallyOn);
}

TEST(TogglesTest, haveEachAKeyAndATitleOfTheirOwn) {
    QSet<QString> keys;
    QSet<QString> titles;
    for (const ToggleRow& row : toggleRows) {
        const QString title = QString::fromLatin1(row.title);
        EXPECT_EQ(title.count(u'&'), 1) << row.key;
        keys.insert(QString::fromLatin1(row.key));
        titles.insert(title);
    }
    EXPECT_EQ(keys.size(), toggleRows.size());
    EXPECT_EQ(titles.size(), toggleRows.size());
    EXPECT_FALSE(keys.contains(QString()));
}

}  // namespace
