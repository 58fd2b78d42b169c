// SPDX-License-Identifier: MIT
#include "library/LibraryHotKeys.h"

#include "engine/HotKeyCenter.h"
#include "engine/KeyRecorder.h"
#include "engine/MacroPlayer.h"
#include "library/LibraryTest.h"
#include "platform/Modifiers.h"
#include "support/Keys.h"

namespace {

constexpr std::uint32_t controlSuper = modifier::control | modifier::command;
constexpr HotKeyId firstId = 1000;

class LibraryHotKeysTest : public LibraryTest {
  protected:
    using Combinations = std::map<HotKeyId, std::pair<std::uint32_t, std::uint32_t>>;

    LibraryHotKeysTest() {
        hotKeys.emplace(library, platform().hotKeys, firstId,
                        [this](const std::string& path) { played.push_back(path); });
        hotKeys->observe([this](const std::string& path) { changed.push_back(path); });
    }

    void addMacro(const std::string& path, int code) {
        folder().userWrites(path, "text of " + path);
        records().put(path, hotKey(code));
    }
    Combinations registered() { return platform().hotKeys.registered(); }
    HotKeyStatus status(const std::string& path) { return hotKeys->state(path).status; }
    HotKeyConflict conflict(const std::string& path) {
        return hotKeys->state(path).conflict.value_or(HotKeyConflict{.macro = "there is none"});
    }
    void userStrikes(std::uint32_t code) {
        for (const std::uint32_t held : {key::control, key::super}) platform().keyboard.userPresses(held);
        platform().keyboard.userPresses(code);
        platform().keyboard.userReleases(code);
        for (const std::uint32_t held : {key::super, key::control}) platform().keyboard.userReleases(held);
    }

    std::optional<LibraryHotKeys> hotKeys;
    Paths played;
    Paths changed;
};

TEST_F(LibraryHotKeysTest, areRegisteredOnceTheLibraryHasBeenRead) {
    addMacro("a.keyrill", key::one);
    library.open();
    EXPECT_EQ(registered(), Combinations{});
    EXPECT_EQ(status("a.keyrill"), HotKeyStatus::unset);
    folder().deliver();
    EXPECT_EQ(registered(), (Combinations{{firstId, {key::one, controlSuper}}}));
    EXPECT_EQ(status("a.keyrill"), HotKeyStatus::registered);
    EXPECT_EQ(changed, Paths{"a.keyrill"});
}

TEST_F(LibraryHotKeysTest, playWhenTheKeyComesUp) {
    addMacro("a.keyrill", key::one);
    open();
    platform().keyboard.userPresses(key::control);
    platform().keyboard.userPresses(key::super);
    platform().keyboard.userPresses(key::one);
    EXPECT_EQ(played, Paths{});
    platform().keyboard.userReleases(key::one);
    EXPECT_EQ(played, Paths{"a.keyrill"});
}

TEST_F(LibraryHotKeysTest, doNothingWhileHotKeysAreSwitchedOff) {
    addMacro("a.keyrill", key::one);
    open();
    state().hotKeysEnabled = false;
    userStrikes(key::one);
    EXPECT_EQ(played, Paths{});
}

TEST_F(LibraryHotKeysTest, areAskedForByTheMacrosName) {
    addMacro("mail/Gr\xFC\xDF.keyrill", key::one);
    platform().journal.clear();
    open();
    EXPECT_EQ(platform().journal.of({"request"}),
              Journal::Lines{"request(1000, \"macro-mail%2FGr%FC%DF%2Ekeyrill\", 18, 0x1100)"});
}

TEST_F(LibraryHotKeysTest, ofMacrosThatAreNotThereAreNone) {
    records().put("gone.keyrill", hotKey(key::one));
    open();
    EXPECT_EQ(registered(), Combinations{});
    folder().userWrites("gone.keyrill", "back");
    folder().deliver();
    EXPECT_EQ(status("gone.keyrill"), HotKeyStatus::registered);
    folder().userRemoves("gone.keyrill");
    folder().deliver();
    EXPECT_EQ(registered(), Combinations{});
    EXPECT_EQ(status("gone.keyrill"), HotKeyStatus::unset);
}

TEST_F(LibraryHotKeysTest, ofSomebodyElsesFileAreNone) {
    open();
    folder().userWrites("somebodys.keyrill", "hotKeyCode=18\nhotKeyFlags=1310720\n");
    folder().deliver();
    EXPECT_EQ(registered(), Combinations{});
}

TEST_F(LibraryHotKeysTest, followTheSettings) {
    folder().userWrites("a.keyrill", "a");
    open();
    MacroSettings settings;
    settings.hotKey = {.flags = controlflag::control, .code = key::one};
    library.setSettings("a.keyrill", settings);
    EXPECT_EQ(registered(), (Combinations{{firstId, {key::one, modifier::control}}}));
    settings.hotKey.code = key::p;
    library.setSettings("a.keyrill", settings);
    EXPECT_EQ(registered(), (Combinations{{firstId + 1, {key::p, modifier::control}}}));
    library.setSettings("a.keyrill", {});
    EXPECT_EQ(registered(), Combinations{});
}

TEST_F(LibraryHotKeysTest, areNotAskedForAnewWhereNothingHasChanged) {
    addMacro("a.keyrill", key::one);
    open();
    platform().journal.clear();
    library.notePlayed("a.keyrill", PlayedAt(std::chrono::seconds(1)));
    folder().userWrites("a.keyrill", "another text");
    folder().userRenames("a.keyrill", "b.keyrill");
    folder().deliver();
    EXPECT_EQ(hotKeyCalls(), Journal::Lines{});
    userStrikes(key::one);
    EXPECT_EQ(played, Paths{"b.keyrill"});
    EXPECT_EQ(status("a.keyrill"), HotKeyStatus::unset);
    EXPECT_EQ(status("b.keyrill"), HotKeyStatus::registered);
}

TEST_F(LibraryHotKeysTest, goWithMacrosThatChangeTheirNames) {
    addMacro("a.keyrill", key::one);
    addMacro("b.keyrill", key::p);
    open();
    platform().journal.clear();
    folder().userRenames("a.keyrill", "c");
    folder().userRenames("b.keyrill", "a.keyrill");
    folder().userRenames("c", "b.keyrill");
    folder().deliver();
    EXPECT_EQ(hotKeyCalls(), Journal::Lines{});
    userStrikes(key::one);
    EXPECT_EQ(played, Paths{"b.keyrill"});
}

TEST_F(LibraryHotKeysTest, ofAMacroThatAnotherReplacesAreGivenFree) {
    addMacro("a.keyrill", key::one);
    addMacro("b.keyrill", key::p);
    open();
    folder().userRenames("b.keyrill", "a.keyrill");
    folder().deliver();
    EXPECT_EQ(registered(), (Combinations{{firstId + 1, {key::p, controlSuper}}}));
    userStrikes(key::p);
    EXPECT_EQ(played, Paths{"a.keyrill"});
}

TEST_F(LibraryHotKeysTest, ofAnotherProgramAreRefusedWithWhatTheDesktopSays) {
    platform().hotKeys.otherProgramHolds(key::one, controlSuper);
    addMacro("a.keyrill", key::one);
    open();
    EXPECT_EQ(status("a.keyrill"), HotKeyStatus::refused);
    EXPECT_EQ(conflict("a.keyrill"), (HotKeyConflict{.with = HotKeyConflict::With::other,
                                                     .error = platform().hotKeys.state(firstId).error}));
}

TEST_F(LibraryHotKeysTest, ofAShortcutAreTheShortcutsAlsoWhenThatIsRegisteredAnew) {
    setHotKey("record", key::r, controlSuper);
    registerHotKeys();
    addMacro("a.keyrill", key::r);
    open();
    EXPECT_EQ(status("a.keyrill"), HotKeyStatus::refused);
    EXPECT_EQ(conflict("a.keyrill"),
              (HotKeyConflict{.with = HotKeyConflict::With::shortcut, .shortcut = shortcutIndex("record")}));
    registerHotKeys();
    EXPECT_EQ(registered(), (Combinations{{1, {key::r, controlSuper}}}));
}

TEST_F(LibraryHotKeysTest, yieldToAShortcutAndComeBack) {
    addMacro("a.keyrill", key::one);
    open();
    setHotKey("play", key::one, controlSuper);
    hotKeys->followShortcuts();
    EXPECT_EQ(registered(), Combinations{});
    EXPECT_EQ(conflict("a.keyrill").shortcut, shortcutIndex("play"));
    registerHotKeys();
    EXPECT_EQ(registered(), (Combinations{{3, {key::one, controlSuper}}}));
    setHotKey("play", key::p, controlSuper);
    registerHotKeys();
    hotKeys->followShortcuts();
    EXPECT_EQ(status("a.keyrill"), HotKeyStatus::registered);
}

TEST_F(LibraryHotKeysTest, ofTwoMacrosAreTheFirstsAndTheSecondsAfterIt) {
    addMacro("a.keyrill", key::one);
    addMacro("b.keyrill", key::one);
    open();
    EXPECT_EQ(status("a.keyrill"), HotKeyStatus::registered);
    EXPECT_EQ(status("b.keyrill"), HotKeyStatus::refused);
    EXPECT_EQ(conflict("b.keyrill"),
              (HotKeyConflict{.with = HotKeyConflict::With::macro, .macro = "a.keyrill"}));
    folder().userRemoves("a.keyrill");
    folder().deliver();
    EXPECT_EQ(status("b.keyrill"), HotKeyStatus::registered);
    userStrikes(key::one);
    EXPECT_EQ(played, Paths{"b.keyrill"});
}

TEST_F(LibraryHotKeysTest, areKeptByTheMacroThatHasThem) {
    addMacro("b.keyrill", key::one);
    open();
    addMacro("a.keyrill", key::one);
    folder().deliver();
    EXPECT_EQ(status("b.keyrill"), HotKeyStatus::registered);
    EXPECT_EQ(conflict("a.keyrill").macro, "b.keyrill");
    // The one that is in its way has another name now.
    folder().userRenames("b.keyrill", "c.keyrill");
    folder().deliver();
    EXPECT_EQ(conflict("a.keyrill").macro, "c.keyrill");
}

TEST_F(LibraryHotKeysTest, tellBeforehandWhoHasACombination) {
    setHotKey("stop", key::s, controlSuper);
    addMacro("a.keyrill", key::one);
    open();
    const auto withControlSuper = [](std::uint32_t code) {
        return KeyCombo{.flags = controlflag::control | controlflag::command | controlflag::functionKey,
                        .code = static_cast<std::int16_t>(code)};
    };
    EXPECT_EQ(hotKeys->conflictOf(withControlSuper(key::p), "b.keyrill"), std::nullopt);
    EXPECT_EQ(hotKeys->conflictOf(withControlSuper(key::one), "a.keyrill"), std::nullopt);
    EXPECT_EQ(hotKeys->conflictOf(withControlSuper(key::one), "b.keyrill"),
              (HotKeyConflict{.with = HotKeyConflict::With::macro, .macro = "a.keyrill"}));
    EXPECT_EQ(hotKeys->conflictOf(withControlSuper(key::s), "a.keyrill"),
              (HotKeyConflict{.with = HotKeyConflict::With::shortcut, .shortcut = shortcutIndex("stop")}));
}

TEST_F(LibraryHotKeysTest, tellWhoseStateHasChanged) {
    addMacro("a.keyrill", key::one);
    addMacro("b.keyrill", key::one);
    open();
    EXPECT_EQ(changed, (Paths{"a.keyrill", "b.keyrill"}));
    changed.clear();
    library.setSettings("a.keyrill", {});
    EXPECT_EQ(changed, (Paths{"a.keyrill", "b.keyrill"}));
}

TEST_F(LibraryHotKeysTest, areGivenFreeAtTheEnd) {
    addMacro("a.keyrill", key::one);
    open();
    hotKeys.reset();
    EXPECT_EQ(registered(), Combinations{});
    userStrikes(key::one);
}

TEST_F(LibraryHotKeysTest, tellWhichMacroHasACombination) {
    constexpr KeyCombo controlSuperOne{.flags = 0x140000, .code = 18};
    addMacro("b.keyrill", key::one);
    addMacro("a.keyrill", key::one);
    EXPECT_EQ(hotKeys->macroWith(controlSuperOne), "") << "nothing is known yet";
    open();
    EXPECT_EQ(hotKeys->macroWith(controlSuperOne), "a.keyrill");
    EXPECT_EQ(hotKeys->macroWith({.flags = 0x100000, .code = 18}), "");
    EXPECT_EQ(hotKeys->macroWith({}), "");
}

TEST_F(LibraryHotKeysTest, areNoTapsOfTheModifiersThatAreHeldForThem) {
    addMacro("a.keyrill", key::one);
    open();
    installKeyRecorder();
    state().recordsModifierKeys = true;
    platform().eventMonitor.setShowsModifierKeys(true);
    toggleRecording();
    userStrikes(key::one);
    EXPECT_EQ(state().recordingMacro->actionCount(), 0U);
}

}  // namespace
