// SPDX-License-Identifier: MIT
//
// keyrill --check under sway: who has the combinations.
#include "wayland/SwayProgram.h"

namespace {

class SwayCheckTest : public SwayProgramTest {
  protected:
    SwayCheckTest()
        : SwayProgramTest({.configuration = "bindsym Ctrl+Mod4+r nop mine\n", .hasXServer = false}) {}
};

bool has(const std::string& report, const std::string& line) {
    return report.find("\n" + line + "\n") != std::string::npos;
}

TEST_F(SwayCheckTest, tellsWhichHotKeysTheUsersConfigurationBinds) {
    const std::string report = check();
    EXPECT_TRUE(has(report,
                    "no  Hot key of \"Start Recording\": Ctrl+Super+R cannot be used: your configuration of "
                    "sway binds it."))
        << report;
    EXPECT_TRUE(has(report, "ok  Hot key of \"Play\": Ctrl+Super+P, which nobody else has")) << report;
    EXPECT_EQ(sway().log().find("nop keyrill"), std::string::npos);
}

TEST_F(SwayCheckTest, leavesTheRunningProgramItsHotKeys) {
    const auto target = openTarget(Target::Kind::terminal);
    start("keystroke \"ab\"");
    target->focus();
    const std::string report = check();
    EXPECT_TRUE(has(report, "ok  Hot key of \"Play\": Ctrl+Super+P, which the running Keyrill has"))
        << report;
    EXPECT_TRUE(has(report,
                    "no  Hot key of \"Start Recording\": Ctrl+Super+R cannot be used: your configuration of "
                    "sway binds it."))
        << report;
    strokeHotKey(xkey::p);
    EXPECT_EQ(target->text("ab"), "ab");
}

}  // namespace
