// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QSet>
#include <QStringList>

#include "app/shortcuts/ShortcutTitles.h"
#include "app/shortcuts/Toggles.h"
#include "prefs/Shortcuts.h"

namespace {

TEST(ShortcutTitlesTest, nameEachShortcutOnce) {
    QSet<QString> labels;
    QSet<QString> meanings;
    QSet<QString> commands;
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const ShortcutTitles titles = shortcutTitles(i);
        for (const QString& title : {titles.label, titles.meaning, titles.command})
            EXPECT_FALSE(title.isEmpty()) << shortcutRows[i].name;
        labels.insert(titles.label);
        meanings.insert(titles.meaning);
        commands.insert(titles.command);
    }
    EXPECT_EQ(labels.size(), shortcutRows.size());
    EXPECT_EQ(meanings.size(), shortcutRows.size());
    EXPECT_EQ(commands.size(), shortcutRows.size());
}

TEST(ShortcutTitlesTest, areTheLabelsMeaningWithAMnemonic) {
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        ShortcutTitles titles = shortcutTitles(i);
        EXPECT_EQ(titles.label.count(u'&'), 1) << titles.label.toStdString();
        EXPECT_EQ(titles.label.remove(u'&').toStdString(), titles.meaning.toStdString() + ":");
    }
}

TEST(TogglesTest, beginOffAndAreStoredInThisOrder) {
    constexpr std::size_t updates = toggleIndex("checkForUpdatesOnLaunch");
    constexpr std::size_t login = toggleIndex("launchOnLogin");
    EXPECT_LT(updates, login);
    EXPECT_FALSE(toggleRows[updates].initiallyOn);
    EXPECT_FALSE(toggleRows[login].initiallyOn);
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
