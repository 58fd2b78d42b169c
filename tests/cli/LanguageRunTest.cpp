// SPDX-License-Identifier: MIT
//
// Whole scripts by keyrill-script run, judged by a terminal and by other programs at the same server.
#include <gtest/gtest.h>

#include "cli/Play.h"
#include "platform/linux/SteadyClock.h"
#include "platform/x11/windows/X11ScriptDesktop.h"
#include "support/Terminal.h"
#include "support/XServer.h"

namespace {

constexpr const char* everything = R"(property greeting : "Grüße, "

on greet(who)
	tell application "System Events"
		keystroke greeting & who & return
	end tell
end greet

tell application "System Events"
	repeat with who in {"Ann 😀", "Борис", "Ελένη", "日本"}
		my greet(contents of who)
		delay 0.01
	end repeat
	considering case
		if "a" = "A" then keystroke "wrong"
	end considering
	try
		key code "none"
	on error number n
		keystroke n as text
	end try
	key code 36 -- Return
end tell
)";

TEST(LanguageRunTest, aScriptTypesExactlyItsText) {
    const XServer server;
    const Terminal terminal(server.display());
    Play play(server.display(), everything);
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    const std::string expected = "Grüße, Ann 😀\nGrüße, Борис\nGrüße, Ελένη\nGrüße, 日本\n-1700\n";
    EXPECT_EQ(terminal.typed(expected.size()), expected);
    EXPECT_EQ(play.output(), "");
}

TEST(ScriptDesktopTest, whatIsSetIsWhatAnotherProgramGets) {
    const XServer server;
    SteadyClock clock;
    x11::X11ScriptDesktop ours(clock, server.display());
    x11::X11ScriptDesktop theirs(clock, server.display());
    EXPECT_EQ(theirs.clipboard().value(), "");
    ASSERT_TRUE(ours.setClipboard("Grüße 😀"));
    EXPECT_EQ(theirs.clipboard().value(), "Grüße 😀");
    EXPECT_EQ(ours.clipboard().value(), "Grüße 😀");
    ASSERT_TRUE(theirs.setClipboard("b"));
    EXPECT_TRUE(eventually([&] { return ours.clipboard().value() == "b"; }));
}

TEST(ScriptDesktopTest, aPasteTypedRightBehindFindsTheClipboard) {
    const XServer server;
    const Terminal terminal(
        server.display(),
        {.xterm = {"-xrm", "XTerm*VT100.translations: #override Ctrl<Key>v: insert-selection(CLIPBOARD)"}});
    Play play(server.display(),
              R"(set the clipboard to "pasted é"
tell application "System Events"
keystroke "v" using control down
delay 0.5
end tell
)");
    EXPECT_EQ(play.program().wait(), 0) << play.output();
    EXPECT_EQ(terminal.typed(9), "pasted é");
}

}  // namespace
