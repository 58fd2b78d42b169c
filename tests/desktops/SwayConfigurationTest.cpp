// SPDX-License-Identifier: MIT
#include "platform/desktops/SwayConfiguration.h"

#include <gtest/gtest.h>

namespace {

using Binding = SwayConfiguration::Binding;
using Bindings = std::vector<Binding>;

Bindings bindingsOf(std::string_view text) {
    return SwayConfiguration(text, [](const std::string&) { return std::vector<std::string>(); }).bindings();
}

TEST(SwayConfigurationTest, modifiersHaveSeveralNames) {
    EXPECT_EQ(bindingsOf("bindsym Ctrl+Mod4+m exec a\nbindsym control+SUPER+Alt+Shift+F9 exec b\n"
                         "bindcode Mod4+33 exec c"),
              (Bindings{{0x44, 0, "m"}, {0x4D, 0, "F9"}, {0x40, 33, ""}}));
}

TEST(SwayConfigurationTest, optionsStandBeforeTheCombination) {
    EXPECT_EQ(bindingsOf("bindsym --to-code --input-device=1:1:a Mod1+x kill"), (Bindings{{0x08, 0, "x"}}));
}

TEST(SwayConfigurationTest, variablesAreReplacedTheLongestFirst) {
    EXPECT_EQ(bindingsOf("set $mod Mod4\nset $mode $mod+Ctrl\nbindsym $mod+a exec x\nbindsym $mode+b exec y"),
              (Bindings{{0x40, 0, "a"}, {0x44, 0, "b"}}));
}

TEST(SwayConfigurationTest, commentsAndOtherCommandsBindNothing) {
    EXPECT_EQ(bindingsOf("# bindsym Mod4+a exec x\n\n   \nexec bindsym\ninput * {\n  xkb_layout de\n}\n"),
              Bindings());
}

TEST(SwayConfigurationTest, whatIsTakenBackIsBoundNoMore) {
    EXPECT_EQ(bindingsOf("bindsym Ctrl+Mod4+r exec a\nbindcode Mod4+33 exec b\nbindsym Mod4+x exec c\n"
                         "unbindsym control+super+R\nunbindcode Mod4+33"),
              (Bindings{{0x40, 0, "x"}}));
    EXPECT_EQ(bindingsOf("bindsym --to-code --no-repeat a exec x\nunbindsym --to-code a"), Bindings());
    EXPECT_EQ(bindingsOf("bindsym {\n a exec x\n b exec y\n}\nunbindsym {\n a\n}"), (Bindings{{0, 0, "b"}}));
}

/// Each is a binding of its own.
TEST(SwayConfigurationTest, whatIsTakenBackOfOneKindIsLeftOfOthers) {
    EXPECT_EQ(bindingsOf("bindsym --release a exec x\nunbindsym a"), (Bindings{{0, 0, "a"}}));
    EXPECT_EQ(bindingsOf("bindsym --release a exec x\nunbindsym --release a"), Bindings());
    EXPECT_EQ(bindingsOf("bindsym a exec x\nbindsym --locked a exec y\nunbindsym --locked a"),
              (Bindings{{0, 0, "a"}}));
    EXPECT_EQ(bindingsOf("unbindsym a\nbindsym a exec x"), (Bindings{{0, 0, "a"}}));
}

TEST(SwayConfigurationTest, aBlockBindsEachOfItsLines) {
    EXPECT_EQ(bindingsOf("bindsym --locked {\n Mod4+a exec x\n --release Mod4+b exec y\n}\nbindsym c exec z"),
              (Bindings{{0x40, 0, "a"}, {0x40, 0, "b"}, {0, 0, "c"}}));
}

TEST(SwayConfigurationTest, otherModesDoNotCount) {
    EXPECT_EQ(
        bindingsOf(
            "mode \"resize\" {\n bindsym Left resize\n bindsym {\n  Mod4+a exec x\n }\n}\nbindsym d exec z"),
        (Bindings{{0, 0, "d"}}));
}

TEST(SwayConfigurationTest, aLineGoesOnBehindABackslash) {
    EXPECT_EQ(bindingsOf("bindsym \\\nMod4+a exec x"), (Bindings{{0x40, 0, "a"}}));
}

TEST(SwayConfigurationTest, includedFilesCountAndMayIncludeThemselves) {
    const SwayConfiguration configuration("include ~/more\nbindsym b exec y", [](const std::string& pattern) {
        EXPECT_EQ(pattern, "~/more");
        return std::vector<std::string>{"bindsym a exec x\ninclude ~/more"};
    });
    EXPECT_EQ(configuration.bindings().size(), 17U);
    EXPECT_EQ(configuration.bindings().front(), (Binding{0, 0, "a"}));
    EXPECT_EQ(configuration.bindings().back(), (Binding{0, 0, "b"}));
}

}  // namespace
