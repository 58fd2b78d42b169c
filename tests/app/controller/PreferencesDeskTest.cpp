// SPDX-License-Identifier: MIT
#include "app/controller/PreferencesDesk.h"

#include "app/AppTest.h"
#include "app/controller/Stage.h"
#include "app/panels/PreferencesPanel.h"
#include "prefs/Settings.h"

namespace {

class PreferencesDeskTest : public EngineTest {
  protected:
    FakeWindows windows{platform().journal};
    FakeDialogs dialogs{platform().journal};
    Stage stage{windows, [] { return std::vector<QWidget*>{}; }};
    PreferencesDesk desk{platform().settings, platform().loginItems, platform().hotKeys, dialogs, stage};
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

}  // namespace
