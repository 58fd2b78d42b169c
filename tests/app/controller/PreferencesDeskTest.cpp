// SPDX-License-Identifier: MIT
#include "app/controller/PreferencesDesk.h"

#include <QCoreApplication>
#include <algorithm>

#include "app/AppTest.h"
#include "app/controller/Stage.h"
#include "app/library/LibraryController.h"
#include "app/panels/PreferencesPanel.h"
#include "platform/HotKeyShares.h"
#include "prefs/Settings.h"

namespace {

class PreferencesDeskTest : public EngineTest {
  protected:
    FakeWindows windows{platform().journal};
    FakeDialogs dialogs{platform().journal};
    Stage stage{windows, [] { return std::vector<QWidget*>{}; }};
    /// Both services' hot keys are those of one desktop.
    HotKeyShares shares{platform().hotKeys};
    LibraryController library{{.folderFollower = platform().folderFollower,
                               .macroRecords = platform().macroRecords,
                               .recordings = platform().recordings,
                               .macroFiles = platform().macroFiles,
                               .hotKeys = shares.second(),
                               .firstHotKey = HotKeyShares::firstOfSecond,
                               .notifications = platform().notifications,
                               .scripting = platform().scripting,
                               .draftFolder = {}}};
    PreferencesDesk desk{platform().settings, platform().loginItems, shares.first(), library, dialogs, stage};
};

TEST_F(PreferencesDeskTest, takesEachShortcutAndEachToggleFromTheStore) {
    for (const ShortcutRow& row : shortcutRows) {
        platform().settings.put(std::string(row.name) + "Code", static_cast<std::int64_t>(row.id));
        platform().settings.put(std::string(row.name) + "Flags", 0x100000);
    }
    for (const ToggleRow& row : toggleRows) platform().settings.put(row.key, row.initiallyOn ? 0 : 1);
    desk.load();
    for (std::size_t i = 0; i < shortcutRows.size(); ++i) {
        const KeyCombo expected{.flags = 0x100000, .code = static_cast<std::int16_t>(shortcutRows[i].id)};
        EXPECT_EQ(desk.model.shortcuts[i].keyCombo(), expected) << shortcutRows[i].name;
    }
    for (std::size_t i = 0; i < toggleRows.size(); ++i)
        EXPECT_NE(desk.model.toggles[i].isOn(), toggleRows[i].initiallyOn) << toggleRows[i].key;
}

TEST_F(PreferencesDeskTest, theHistoryIsKeptAsSoonAsThatIsSaved) {
    desk.load();
    EXPECT_FALSE(library.history().isKept());
    desk.model.keepHistory.setOn(true);
    EXPECT_FALSE(library.history().isKept());
    desk.save();
    EXPECT_TRUE(library.history().isKept());
    desk.model.keepHistory.setOn(false);
    desk.save();
    EXPECT_FALSE(library.history().isKept());
}

TEST_F(PreferencesDeskTest, registersWhatItHasSaved) {
    desk.save();
    for (const ShortcutRow& row : shortcutRows) {
        const std::pair<std::uint32_t, std::uint32_t> expected{row.preset.code,
                                                               hotKeyFlags(row.preset.flags)};
        EXPECT_EQ(platform().hotKeys.registered().at(row.id), expected) << row.name;
    }
}

TEST_F(PreferencesDeskTest, switchesHotKeysOffBetweenOpeningAndClosing) {
    desk.open();
    EXPECT_FALSE(state().hotKeysEnabled);
    EXPECT_EQ(desk.shownPanel(), desk.panel());
    desk.close();
    EXPECT_TRUE(state().hotKeysEnabled);
}

TEST_F(PreferencesDeskTest, reportsWhatThePanelAsksFor) {
    int closes = 0;
    QObject::connect(&desk, &PreferencesDesk::willClose, [&closes] { ++closes; });
    EXPECT_EQ(desk.shownPanel(), nullptr);
    desk.open();
    desk.panel()->close();
    EXPECT_EQ(closes, 1);
    EXPECT_EQ(desk.shownPanel(), nullptr);
}

TEST_F(PreferencesDeskTest, bringsAHiddenLoginItemBackWhenItsBoxIsTicked) {
    EXPECT_TRUE(platform().loginItems.install(true));
    platform().loginItems.userHidesEntry();
    desk.model.launchOnLogin.setOn(true);
    desk.save();
    EXPECT_EQ(platform().loginItems.state(), LoginItems::State::hiddenByUser) << "nobody has ticked it";
    desk.open();
    EXPECT_FALSE(desk.model.launchOnLogin.isOn());
    desk.save();
    EXPECT_EQ(platform().loginItems.state(), LoginItems::State::hiddenByUser);
    desk.model.launchOnLogin.setOn(true);
    desk.close();
    EXPECT_EQ(platform().loginItems.state(), LoginItems::State::on);
}

TEST_F(PreferencesDeskTest, leavesALoginItemThatIsHiddenAfterTheTick) {
    desk.open();
    desk.model.launchOnLogin.setOn(true);
    desk.save();
    platform().loginItems.userHidesEntry();
    desk.save();
    EXPECT_EQ(platform().loginItems.state(), LoginItems::State::hiddenByUser);
}

TEST_F(PreferencesDeskTest, tellsOneFailureAfterTheOther) {
    std::size_t open = 0;
    std::size_t mostOpen = 0;
    dialogs.whileOpen([&] {
        mostOpen = std::max(mostOpen, ++open);
        QCoreApplication::processEvents();
        --open;
    });
    platform().loginItems.failNextCall({"No folder.", ""});
    platform().settings.failNextCall({"No room.", ""});
    desk.save();
    QCoreApplication::processEvents();
    ASSERT_EQ(dialogs.alerts.size(), 2U);
    EXPECT_EQ(mostOpen, 1U);
}

TEST_F(PreferencesDeskTest, aShortcutGetsTheCombinationOfAMacroAndSaysSo) {
    constexpr KeyCombo controlSuperOne{.flags = 0x140000, .code = 18};
    platform().folderFollower.userWrites("work/Mail.keyrill", "beep");
    platform().macroRecords.put("work/Mail.keyrill", {{"hotKeyCode", "18"}, {"hotKeyFlags", "1310720"}});
    library.start();
    platform().folderFollower.deliver();
    ASSERT_EQ(library.hotKeys().state("work/Mail.keyrill").status, HotKeyStatus::registered);
    desk.open();
    desk.model.record.record(controlSuperOne);
    desk.takeShortcut(desk.model.record);
    EXPECT_EQ(platform().hotKeys.state(shortcutRows[shortcutIndex("record")].id).status,
              HotKeyStatus::registered);
    EXPECT_EQ(desk.model.record.notice(), QStringLiteral("Already used by macro \"Mail\", which gives way."));
    EXPECT_EQ(library.hotKeys().state("work/Mail.keyrill").conflict,
              (HotKeyConflict{.with = HotKeyConflict::With::shortcut, .shortcut = shortcutIndex("record")}));
}

/// On a desktop that has hot keys only in its user's settings.
class PreferencesConsentTest : public PreferencesDeskTest {
  protected:
    PreferencesConsentTest() { platform().hotKeys.requireConsent(); }
    std::optional<std::int64_t> stored() { return platform().settings.integer("writeHotKeys"); }
};

TEST_F(PreferencesConsentTest, whatTheUserHasDecidedHoldsFromTheStart) {
    EXPECT_FALSE(desk.model.offersConsent) << "made before";
    PreferencesDesk asks(platform().settings, platform().loginItems, shares.first(), library, dialogs, stage);
    EXPECT_TRUE(asks.model.offersConsent);
    platform().settings.put("writeHotKeys", 1);
    asks.load();
    EXPECT_TRUE(platform().hotKeys.hasConsent());
}

TEST_F(PreferencesConsentTest, theBoxGivesItAndTakesItBack) {
    PreferencesDesk asks(platform().settings, platform().loginItems, shares.first(), library, dialogs, stage);
    asks.load();
    asks.save();
    EXPECT_EQ(stored(), std::nullopt) << "he has not been asked by that";
    asks.model.writeHotKeys.setOn(true);
    asks.save();
    EXPECT_EQ(stored(), 1);
    EXPECT_TRUE(platform().hotKeys.hasConsent());
    asks.model.writeHotKeys.setOn(false);
    asks.save();
    EXPECT_EQ(stored(), 0);
    EXPECT_FALSE(platform().hotKeys.hasConsent());
}

}  // namespace
