// SPDX-License-Identifier: MIT
#include "platform/keymap/ModifierMasks.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>

#include "keymap/NamedKeymap.h"

std::ostream& operator<<(std::ostream& stream, const ModifierMasks& masks) {
    stream << std::hex;
    for (const xkb_mod_mask_t mask : {masks.shift, masks.control, masks.option, masks.command, masks.capsLock,
                                      masks.numLock, masks.scrollLock, masks.thirdLevel, masks.fifthLevel}) {
        stream << ' ' << mask;
    }
    return stream << std::dec;
}

namespace {

constexpr ModifierMasks ordinary{.shift = 0x01,
                                 .control = 0x04,
                                 .option = 0x08,
                                 .command = 0x40,
                                 .capsLock = 0x02,
                                 .numLock = 0x10,
                                 .thirdLevel = 0x80};

TEST(ModifierMasksTest, layoutsOfOrdinaryKeyboardsAgree) {
    for (const char* layout :
         {"us", "de", "fr", "gb", "jp", "ru", "us,ru", "cz", "gr", "fr(bepo)", "br", "ca"}) {
        EXPECT_EQ(namedKeymap(layout)->masks(), ordinary) << layout;
    }
}

TEST(ModifierMasksTest, layoutsWithAFifthLevelHaveItsModifier) {
    ModifierMasks masks = ordinary;
    masks.fifthLevel = 0x20;
    EXPECT_EQ(namedKeymap("de(neo)")->masks(), masks);
    EXPECT_EQ(namedKeymap("de(bone)")->masks(), masks);
    EXPECT_EQ(namedKeymap("us", "lv5:ralt_switch_lock")->masks(), masks);
}

TEST(ModifierMasksTest, aModifierLiesWhereTheKeymapPutsItWhateverItsKeysAreCalled) {
    // Keys of Super that are called Alt, Meta, Hyper, Control or choose a level; Alts that choose a level.
    for (const char* option : {"altwin:alt_win", "altwin:meta_win", "altwin:hyper_win", "altwin:ctrl_win",
                               "lv3:win_switch", "lv3:alt_switch", "altwin:swap_alt_win", "caps:shiftlock",
                               "ctrl:swapcaps", "shift:both_capslock", "caps:ctrl_modifier"}) {
        EXPECT_EQ(namedKeymap("us", option)->masks(), ordinary) << option;
    }
}

/// A keymap of a few keys; `symbols` says what they are.
std::unique_ptr<Keymap> smallKeymap(const std::string& symbols) {
    const std::string text = R"(xkb_keymap {
        xkb_keycodes { <LALT> = 64; <LWIN> = 133; <NMLK> = 77; <AD01> = 24; };
        xkb_types { include "basic" };
        xkb_compat { include "basic" };
        xkb_symbols { )" + symbols +
                             R"( };
    };)";
    const XkbContextPointer context(xkb_context_new(XKB_CONTEXT_NO_ENVIRONMENT_NAMES));
    XkbKeymapPointer keymap(xkb_keymap_new_from_string(context.get(), text.c_str(), XKB_KEYMAP_FORMAT_TEXT_V1,
                                                       XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!keymap) throw std::runtime_error("no keymap: " + text);
    return std::make_unique<Keymap>(std::move(keymap));
}

TEST(ModifierMasksTest, withoutAVirtualModifierWhatItsKeysSetCounts) {
    const auto keymap = smallKeymap(R"(
        key <LALT> { [ Alt_L ], actions = [ SetMods(modifiers = Mod3) ] };
        key <LWIN> { [ Super_L ], actions = [ SetMods(modifiers = Mod5) ] };)");
    EXPECT_EQ(
        keymap->masks(),
        (ModifierMasks{.shift = 0x01, .control = 0x04, .option = 0x20, .command = 0x80, .capsLock = 0x02}));
}

TEST(ModifierMasksTest, metaStandsInForAltWhereThereIsNone) {
    const auto keymap = smallKeymap("key <LALT> { [ Meta_L ], actions = [ SetMods(modifiers = Mod1) ] };");
    EXPECT_EQ(keymap->masks().option, 0x08U);
}

TEST(ModifierMasksTest, aLockOnTheBitOfAHeldModifierIsNone) {
    const auto keymap = smallKeymap(R"(
        key <LALT> { [ Alt_L ], actions = [ SetMods(modifiers = Mod1) ] };
        key <NMLK> { [ Num_Lock ], actions = [ LockMods(modifiers = Mod1) ] };)");
    EXPECT_EQ(keymap->masks().option, 0x08U);
    EXPECT_EQ(keymap->masks().numLock, 0U);
}

}  // namespace
