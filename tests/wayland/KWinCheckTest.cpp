// SPDX-License-Identifier: MIT
//
// keyrill --check under KWin: who has the combinations.
#include <gtest/gtest.h>
#include <signal.h>

#include "compositor/Field.h"
#include "wayland/KWinProgram.h"

namespace {

class KWinCheckTest : public KWinProgram, public testing::Test {
  protected:
    KWinCheckTest() : KWinProgram({.hasXServer = true}) {}

    /// Another program of the user's takes Control and Super with R.
    void takeRecord() {
        constexpr unsigned combination = 0x04000000U | 0x10000000U | 'R';
        const std::string action = "['other', 'scan', 'Other Program', 'Scan']";
        const auto call = [this](std::vector<std::string> words) {
            words.insert(words.begin(), {"-d", "org.kde.kglobalaccel", "-o", "/kglobalaccel", "-m"});
            kwin().call(words);
        };
        call({"org.kde.KGlobalAccel.doRegister", action});
        call({"org.kde.KGlobalAccel.setShortcutKeys", action,
              "[([" + std::to_string(combination) + ", 0, 0, 0],)]", "6"});
    }
};

bool has(const std::string& report, const std::string& line) {
    return report.find("\n" + line + "\n") != std::string::npos;
}

constexpr const char* taken =
    "no  Hot key of \"Start Recording\": Ctrl+Super+R cannot be used: Other Program has it for “Scan”.";

TEST_F(KWinCheckTest, namesWhoHasTheHotKeys) {
    takeRecord();
    const std::string report = check();
    EXPECT_TRUE(has(report, taken)) << report;
    EXPECT_TRUE(has(report, "ok  Hot key of \"Play\": Ctrl+Super+P, which nobody else has")) << report;
    const std::string components = kwin().call(
        {"-d", "org.kde.kglobalaccel", "-o", "/kglobalaccel", "-m", "org.kde.KGlobalAccel.allComponents"});
    EXPECT_NE(components.find("other"), std::string::npos) << components;
    EXPECT_EQ(components.find("Keyrill"), std::string::npos) << components;
}

TEST_F(KWinCheckTest, leavesTheRunningProgramItsHotKeys) {
    takeRecord();
    start("keystroke \"ab\"");
    const Field field(kwin(), Field::Toolkit::qt);
    const std::string report = check();
    EXPECT_TRUE(has(report, taken)) << report;
    EXPECT_TRUE(has(report, "ok  Hot key of \"Play\": Ctrl+Super+P, which the running Keyrill has"))
        << report;
    strokeHotKey(xkey::p);
    EXPECT_EQ(field.text("ab"), "ab");
}

/// What one of before has left in the system's settings is nobody's.
TEST_F(KWinCheckTest, whatTheProgramHadBeforeIsFree) {
    start("keystroke \"ab\"");
    program().signal(SIGTERM);
    EXPECT_EQ(program().wait(), 0);
    const std::string line = "ok  Hot key of \"Play\": Ctrl+Super+P, which nobody else has";
    const std::string report = check();
    EXPECT_TRUE(has(report, line)) << report;
    start("keystroke \"ab\"");
    program().signal(SIGKILL);
    program().wait();
    const std::string after = check();
    EXPECT_TRUE(has(after, line)) << after;
}

}  // namespace
