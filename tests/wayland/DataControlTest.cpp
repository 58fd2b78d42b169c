// SPDX-License-Identifier: MIT
//
// The clipboard of a compositor that has data control under the name of the standard. Debian's have it under
// the one before, so that a program between gives it the other; who judges speaks to the compositor itself.
#include <gtest/gtest.h>
#include <unistd.h>

#include <stdexcept>

#include "compositor/Sway.h"

namespace {

class DataControlTest : public testing::Test {
  protected:
    DataControlTest() {
        m_environment["LC_ALL"] = "C.UTF-8";
        m_environment["DBUS_SESSION_BUS_ADDRESS"] = "disabled:";
        m_environment["WAYLAND_DISPLAY"] = m_folder.file("socket");
        // Only with version 2 is it told of the primary selection, as the standard always does.
        m_renaming = std::make_unique<Child>(
            std::vector<std::string>{"/usr/bin/python3", KEYRILL_RENAMED_GLOBALS, m_sway.socket(),
                                     m_folder.file("socket"), "zwlr_data_control_manager_v1",
                                     "ext_data_control_manager_v1", "2"},
            Child::Options{.environment = {}, .outputFile = m_folder.file("log")});
        if (!eventually([this] { return access(m_folder.file("socket").c_str(), W_OK) == 0; }))
            throw std::runtime_error("there is no other name: " + contentOf(m_folder.file("log")));
    }

    std::string run(const std::string& script) {
        return outputOf({KEYRILL_SCRIPT_TOOL, "run", "-e", script}, m_environment);
    }
    /// By programs that know the compositor under its own names.
    std::string paste() { return outputOf({"wl-paste", "--no-newline"}, m_sway.environment()); }
    void copy(const std::string& option, const std::string& text) {
        outputOf({"sh", "-c", "printf '%s' '" + text + "' | wl-copy " + option}, m_sway.environment());
    }
    std::string check() {
        const std::string report = m_folder.file("report");
        Child(std::vector<std::string>{KEYRILL_PRODUCT, "--check"},
              {.environment = m_environment, .outputFile = report})
            .wait();
        return contentOf(report);
    }

  private:
    TemporaryFolder m_folder;
    Sway m_sway;
    std::map<std::string, std::string> m_environment = m_sway.environment();
    std::unique_ptr<Child> m_renaming;
};

TEST_F(DataControlTest, aScriptFillsTheClipboardForOthersAndLeavesItThere) {
    run("set the clipboard to \"Grüße, 日本\"");
    EXPECT_EQ(paste(), "Grüße, 日本");
}

TEST_F(DataControlTest, aScriptReadsWhatOthersHaveCopiedNotWhatTheyHaveSelected) {
    copy("", "één");
    copy("--primary", "selected");
    // As scripts are written.
    EXPECT_EQ(run("the clipboard"), "\"één\"\n");
}

TEST_F(DataControlTest, whatOthersHaveSelectedAloneIsNotInTheClipboard) {
    copy("--primary", "selected");
    EXPECT_EQ(run("the clipboard"), "\"\"\n");
}

TEST_F(DataControlTest, whatOthersSelectWhileAScriptHasTheClipboardLeavesItThere) {
    copy("--primary", "before");
    run("set the clipboard to \"ours\"");
    copy("--primary", "after");
    EXPECT_EQ(paste(), "ours");
}

TEST_F(DataControlTest, theCheckOfTheSessionKnowsIt) {
    const std::string report = check();
    EXPECT_NE(report.find("\nok  Clipboard: "), std::string::npos) << report;
}

}  // namespace
