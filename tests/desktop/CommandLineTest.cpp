// SPDX-License-Identifier: MIT
#include "desktop/DesktopTest.h"

namespace {

/// What the program prints to somebody who has no display, and how it ends.
class WithoutDisplayTest : public testing::Test {
  protected:
    int statusOf(const std::string& argument) const {
        Child program({KEYRILL_PRODUCT, argument},
                      {.environment = {{"DISPLAY", ""}, {"WAYLAND_DISPLAY", ""}}, .outputFile = m_output});
        return program.wait();
    }
    std::string output() const { return contentOf(m_output); }

  private:
    TemporaryFolder m_folder;
    std::string m_output = m_folder.file("output");
};

TEST_F(WithoutDisplayTest, helpAndVersionArePrinted) {
    EXPECT_EQ(statusOf("--help"), 0);
    EXPECT_TRUE(output().starts_with("Usage: keyrill ")) << output();
    EXPECT_EQ(statusOf("--version"), 0);
    EXPECT_TRUE(output().starts_with("keyrill ")) << output();
}

TEST_F(WithoutDisplayTest, aKindOfSessionThatThereIsNotIsRefused) {
    EXPECT_EQ(statusOf("--session=typewriter"), 1);
    EXPECT_EQ(output(),
              "keyrill: There is no kind of session called \"typewriter\". Choose one of these: x11.\n");
}

class SessionOptionTest : public DesktopTest {};

TEST_F(SessionOptionTest, aNamedSessionIsTheOneThatIsWorkedIn) {
    Child program({KEYRILL_PRODUCT, "--session=x11"}, desktop.options("start"));
    EXPECT_TRUE(eventually([this] { return desktop.isHotKeyTaken(xkey::m); }));
    EXPECT_TRUE(program.isRunning());
}

TEST_F(SessionOptionTest, anUnknownOptionIsNoFile) {
    Child program({KEYRILL_PRODUCT, "--sesion=x11"}, desktop.options("start"));
    EXPECT_EQ(program.wait(), 1);
}

}  // namespace
