// SPDX-License-Identifier: MIT
//
// The clipboard of scripts, by data control: judged by programs that paste and copy.
#include <gtest/gtest.h>

#include "compositor/SilentCopier.h"
#include "wayland/Places.h"

namespace {

class ClipboardTest : public testing::TestWithParam<Place> {
  protected:
    std::unique_ptr<Target> openTarget() const { return m_session->openTarget(GetParam().target); }
    /// Lines inside `tell application "System Events"`.
    static std::string keys(const std::string& lines) {
        return "tell application \"System Events\"\n" + lines + "\nend tell\n";
    }
    void play(const std::string& script) const {
        const std::string file = m_session->put("script", script);
        EXPECT_EQ(m_session->run({KEYRILL_SCRIPT_TOOL, "run", file}, "output")->wait(), 0)
            << m_session->log();
        EXPECT_EQ(m_session->log(), "");
    }
    /// What a command says that another program of the user's is.
    std::string outputOf(const std::string& command) const {
        return ::outputOf({"sh", "-c", command}, m_session->compositor().environment());
    }
    std::string socket() const { return m_session->socket(); }

  private:
    std::unique_ptr<ProgramSession> m_session = GetParam().open();
};

INSTANTIATE_TEST_SUITE_P(Sessions, ClipboardTest, testing::Values(place::sway, place::kwin), nameOf);

TEST_P(ClipboardTest, aScriptFillsItForOthersAndLeavesItThere) {
    play("set the clipboard to \"Grüße, 日本\"");
    EXPECT_EQ(outputOf("wl-paste --no-newline"), "Grüße, 日本");
}

TEST_P(ClipboardTest, aScriptReadsWhatOthersHaveCopied) {
    const auto target = openTarget();
    outputOf("printf 'één' | wl-copy");
    play("set found to the clipboard\nif found is \"één\" then set found to \"one\"\n" +
         keys("keystroke found & \"!\""));
    EXPECT_EQ(target->text("one!"), "one!");
}

TEST_P(ClipboardTest, aTextOfWhichOnlyAPartComesIsNone) {
    const auto target = openTarget();
    const SilentCopier copier(socket(), "half of it");
    play("set found to the clipboard\n" + keys(R"(keystroke "<" & found & ">")"));
    EXPECT_EQ(target->text("<>"), "<>");
}

TEST_P(ClipboardTest, aReaderThatLosesInterestTakesItFromNobody) {
    play("set big to \"x\"\nrepeat 20 times\nset big to big & big\nend repeat\nset the clipboard to big");
    EXPECT_EQ(outputOf("wl-paste --no-newline | head -c 3"), "xxx");
    EXPECT_EQ(outputOf("wl-paste --no-newline | wc -c"), "1048576\n");
}

TEST_P(ClipboardTest, aPasteRightAfterwardsFindsTheText) {
    const auto target = openTarget();
    play("set the clipboard to \"pasted\"\n" +
         keys("keystroke \"v\" using " + target->pasteModifiers() + "\ndelay 0.3"));
    EXPECT_EQ(target->text("pasted"), "pasted");
}

}  // namespace
