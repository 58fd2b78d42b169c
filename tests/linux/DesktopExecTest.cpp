// SPDX-License-Identifier: MIT
#include "platform/linux/DesktopExec.h"

#include <gtest/gtest.h>

namespace {

// The right column is worked out by hand from the standard: quotes around the argument, a backslash before
// `"`, `` ` ``, `$` and `\` in it, then every backslash twice.
TEST(DesktopExecTest, quotesAsTheStandardSays) {
    EXPECT_EQ(execValue("/usr/bin/keyrill").value(), "/usr/bin/keyrill");
    EXPECT_EQ(execValue("/opt/my programs/k").value(), R"("/opt/my programs/k")");
    EXPECT_EQ(execValue("/a\"b").value(), R"("/a\\"b")");
    EXPECT_EQ(execValue("/a'b").value(), R"("/a'b")");
    EXPECT_EQ(execValue("/$HOME/`id`").value(), R"("/\\$HOME/\\`id\\`")");
    EXPECT_EQ(execValue("/a\\b").value(), R"("/a\\\\b")");
    EXPECT_EQ(execValue("/a\tb\nc").value(), R"("/a\tb\nc")");
    EXPECT_EQ(execValue("/h\u00e9/\u65e5").value(), "/h\u00e9/\u65e5");
}

TEST(DesktopExecTest, readsItsOwnQuotes) {
    for (const std::string path :
         {"/usr/bin/keyrill", "/a b", "/a\"b", "/a'b", "/$HOME", "/`id`", "/a\\b", "/a\\", "/a\tb\nc\rd",
          "/h\u00e9", "/a;b&c|d<e>f(g)h*i?j#k~l=m", "/a\\nb"}) {
        EXPECT_EQ(programIn(execValue(path).value()), path);
    }
}

TEST(DesktopExecTest, readsTheFirstWordOfWhatOthersWrote) {
    EXPECT_EQ(programIn("/usr/bin/keyrill --quiet %U"), "/usr/bin/keyrill");
    EXPECT_EQ(programIn(R"("/a b" x)"), "/a b");
    EXPECT_EQ(programIn("keyrill"), "keyrill");
}

TEST(DesktopExecTest, readsNothingFromWhatIsNoCommand) {
    for (const std::string value : {"", "  ", "\"open", "\\x", "end\\"})
        EXPECT_EQ(programIn(value), std::nullopt);
}

}  // namespace
