// SPDX-License-Identifier: MIT
//
// What reaches the program that opens a page, a mail or a file.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "platform/linux/XdgWorkspace.h"
#include "support/Child.h"

namespace fs = std::filesystem;

namespace {

class WorkspaceTest : public testing::Test {
  protected:
    WorkspaceTest() {
        setenv("RECEIVED", received.c_str(), 1);
        fs::create_directories(folder.file("bin"));
    }
    ~WorkspaceTest() override { setenv("PATH", m_path.c_str(), 1); }

    /// A program that writes how many arguments it got, and the first.
    void putRecorder(const std::string& name) const {
        const std::string file = folder.file("bin/" + name);
        std::ofstream(file) << R"(#!/bin/sh
printf '%s %s' "$#" "$1" >"$RECEIVED.part"
mv "$RECEIVED.part" "$RECEIVED"
)";
        fs::permissions(file, fs::perms::owner_all);
    }
    void searchFirst(const std::string& place) const { setenv("PATH", (place + ":" + m_path).c_str(), 1); }

    std::string receivedText() const {
        EXPECT_TRUE(eventually([this] { return fs::exists(received); }));
        std::string text = contentOf(received);
        fs::remove(received);
        return text;
    }

    TemporaryFolder folder;
    const std::string received = folder.file("received");
    XdgWorkspace workspace;

  private:
    const std::string m_path = std::getenv("PATH");
};

TEST_F(WorkspaceTest, givesEveryTextAsOneArgumentByteForByte) {
    putRecorder("xdg-open");
    searchFirst(folder.file("bin"));
    for (const std::string url :
         {"https://www.orlen.example/a?b=c&d#e", "mailto:a@b.example?subject=caf%E9 &body=%0A%zz",
          "x:$(id) `id` ;'\"\\ * ~ | > <", "file:///\xFF\xC3\xA9", "x:\n\t"}) {
        EXPECT_TRUE(workspace.openUrl(url));
        EXPECT_EQ(receivedText(), "1 " + url);
    }
}

TEST_F(WorkspaceTest, givesALongMail) {
    putRecorder("xdg-open");
    searchFirst(folder.file("bin"));
    const std::string url = "mailto:a@b.example?body=" + std::string(100000, 'x');
    EXPECT_TRUE(workspace.openUrl(url));
    EXPECT_EQ(receivedText(), "1 " + url);
}

TEST_F(WorkspaceTest, leavesNoChildBehind) {
    putRecorder("xdg-open");
    searchFirst(folder.file("bin"));
    EXPECT_TRUE(workspace.openUrl("x:y"));
    receivedText();
    const auto children = "/proc/self/task/" + std::to_string(getpid()) + "/children";
    EXPECT_TRUE(fs::exists(children));
    EXPECT_EQ(contentOf(children), "");
}

TEST_F(WorkspaceTest, tellsThatNothingIsThereToOpenWith) {
    setenv("PATH", folder.file("bin").c_str(), 1);
    const Result<> opened = workspace.openUrl("https://www.orlen.example/");
    ASSERT_FALSE(opened);
    EXPECT_EQ(opened.error().message.text().substr(0, 42), "The program xdg-open cannot be started: Fa");
    EXPECT_EQ(opened.error().hint, "Install the package xdg-utils.");
}

TEST_F(WorkspaceTest, refusesAZeroByte) {
    EXPECT_EQ(workspace.openUrl(std::string_view("a\0b", 3)).error().message,
              "A text with a zero byte cannot be opened.");
}

/// The system's own xdg-open, with a program that the user prefers for pages, mails and macro files.
class PreferredProgramTest : public WorkspaceTest {
  protected:
    PreferredProgramTest() {
        putRecorder("handler");
        fs::create_directories(folder.file("data/applications"));
        std::ofstream(folder.file("data/applications/handler.desktop"))
            << "[Desktop Entry]\nType=Application\nName=Handler\nExec=" << folder.file("bin/handler")
            << " %u\n"
            << "MimeType=x-scheme-handler/https;x-scheme-handler/mailto;text/plain;\n";
        fs::create_directories(folder.file("config"));
        std::ofstream(folder.file("config/mimeapps.list"))
            << "[Default Applications]\nx-scheme-handler/https=handler.desktop\n"
            << "x-scheme-handler/mailto=handler.desktop\ntext/plain=handler.desktop\n";
        setenv("XDG_DATA_HOME", folder.file("data").c_str(), 1);
        setenv("XDG_CONFIG_HOME", folder.file("config").c_str(), 1);
        setenv("HOME", folder.path().c_str(), 1);
        // Looks for handlers at a display only, but never connects to it.
        setenv("DISPLAY", ":9999", 1);
        for (const char* name : {"XDG_CURRENT_DESKTOP", "DESKTOP_SESSION", "KDE_FULL_SESSION", "BROWSER",
                                 "GNOME_DESKTOP_SESSION_ID", "DBUS_SESSION_BUS_ADDRESS"}) {
            unsetenv(name);
        }
    }
};

TEST_F(PreferredProgramTest, getsPagesAndMailsByteForByte) {
    for (const std::string url : {"https://www.orlen.example/keyrill/?a=b&c=%C3%A9#d",
                                  "mailto:bugs@orlen.example?subject=Keyrill%20Bug&body=Version:%091.0%"
                                  "0ASystem:%09caf%E9%20(x)%0A"}) {
        EXPECT_TRUE(workspace.openUrl(url));
        EXPECT_EQ(receivedText(), "1 " + url);
    }
}

}  // namespace
