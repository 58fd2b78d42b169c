// SPDX-License-Identifier: MIT
#include <signal.h>

#include <algorithm>

#include "desktop/DesktopTest.h"
#include "support/Programs.h"

namespace {

TEST(StartUpTest, withoutADisplayItSaysSoInOneLine) {
    const TemporaryFolder folder;
    Child keyrill({programs::keyrill}, {.environment = {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}},
                                        .outputFile = folder.file("output")});
    EXPECT_EQ(keyrill.wait(), 1);
    const std::string output = contentOf(folder.file("output"));
    EXPECT_EQ(output,
              "keyrill: The X server of display \"\" cannot be reached. Start the program inside a desktop "
              "session, or set DISPLAY to a running X server.\n");
}

class SignalTest : public testing::TestWithParam<int> {};

TEST_P(SignalTest, endsItWithStatusZero) {
    const Desktop desktop;
    Child keyrill({programs::keyrill}, desktop.options("product.log"));
    const Hands hands(desktop.display());
    // The program that holds the hot key is ready.
    ASSERT_TRUE(eventually([&] { return desktop.isHotKeyTaken(xkey::m); }));
    keyrill.signal(GetParam());
    EXPECT_EQ(keyrill.wait(std::chrono::seconds(5)), 0);
}

INSTANTIATE_TEST_SUITE_P(Signals, SignalTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST(DemonstrationTest, recordsAndPlaysTheSame) {
    const TemporaryFolder folder;
    const std::string output = outputOf(
        {std::string(programs::tools) + "/demonstrate", programs::demonstration, folder.file("picture.png")});
    EXPECT_NE(output.find("\nIdentical.\n"), std::string::npos) << output;
    for (const char* name : {"picture.png", "picture-menu.png", "picture-history.png", "picture-played.png"})
        EXPECT_EQ(outputOf({"identify", "-format", "%wx%h", folder.file(name)}), "1280x800");
}

}  // namespace
