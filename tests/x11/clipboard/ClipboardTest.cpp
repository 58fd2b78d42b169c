// SPDX-License-Identifier: MIT
#include "platform/x11/clipboard/X11Clipboard.h"

#include <gtest/gtest.h>

#include <signal.h>

#include <fstream>
#include <optional>
#include <thread>

#include "support/Child.h"
#include "support/XServer.h"

namespace {

/// The clipboard beside xclip and xsel, at a server whose requests have a megabyte at most.
class ClipboardTest : public testing::Test {
  protected:
    std::string run(const std::vector<std::string>& command) const {
        return outputOf(command, {{"DISPLAY", m_server.display()}});
    }
    std::string pastedByXclip(const std::string& form = "UTF8_STRING") const {
        return run({"xclip", "-selection", "clipboard", "-out", "-target", form});
    }
    std::string pastedByXsel() const { return run({"xsel", "--clipboard", "--output"}); }
    /// By xclip, which keeps it in the background.
    void copy(const std::string& text, const std::string& form = "UTF8_STRING") {
        std::ofstream(m_folder.file("copied"), std::ios::binary) << text;
        m_copied.emplace(std::vector<std::string>{"xclip", "-quiet", "-selection", "clipboard", "-in",
                                                  "-target", form, m_folder.file("copied")},
                         Child::Options{.environment = {{"DISPLAY", m_server.display()}},
                                        .outputFile = m_folder.file("xclip")});
        ASSERT_TRUE(eventually([&] { return isOffered(form); }));
    }
    /// Fails as long as nobody owns the clipboard, or somebody else does.
    bool isOffered(const std::string& form) const {
        Child question(
            {"xclip", "-selection", "clipboard", "-out", "-target", "TARGETS"},
            {.environment = {{"DISPLAY", m_server.display()}}, .outputFile = m_folder.file("targets")});
        const bool isAnswered = question.wait() == 0;
        return isAnswered && contentOf(m_folder.file("targets")).ends_with("TARGETS\n" + form + "\n");
    }
    Child& copied() { return *m_copied; }

    /// As long as that, with other characters all over.
    static std::string longText(std::size_t bytes) {
        std::string text;
        for (int line = 0; text.size() < bytes; ++line)
            text += "Zeile " + std::to_string(line) + " über 日本\n";
        return text;
    }

  private:
    XServer m_server{
        {"Xvfb", "-screen", "0", "640x480x24", "-nolisten", "tcp", "-noreset", "-maxbigreqsize", "1"}};
    TemporaryFolder m_folder;
    std::optional<Child> m_copied;

  protected:
    x11::X11Clipboard clipboard{m_server.display()};
};

std::string textOf(x11::X11Clipboard& clipboard) {
    const auto text = clipboard.text();
    return text ? text.value() : "error: " + text.error().message.text();
}

TEST_F(ClipboardTest, isEmptyWhereNobodyHasCopied) { EXPECT_EQ(textOf(clipboard), ""); }

TEST_F(ClipboardTest, givesWhatWasSetToOtherClients) {
    ASSERT_TRUE(clipboard.set("Grüße, 日本 & \t\n"));
    EXPECT_EQ(pastedByXclip(), "Grüße, 日本 & \t\n");
    EXPECT_EQ(pastedByXsel(), "Grüße, 日本 & \t\n");
    ASSERT_TRUE(clipboard.set("second"));
    EXPECT_EQ(pastedByXsel(), "second");
    EXPECT_EQ(textOf(clipboard), "second");
    ASSERT_TRUE(clipboard.set(""));
    EXPECT_EQ(pastedByXclip(), "");
}

TEST_F(ClipboardTest, givesTheFormsThatItSays) {
    ASSERT_TRUE(clipboard.set("Grüße €"));
    EXPECT_EQ(pastedByXclip("TARGETS"),
              R"(TARGETS
MULTIPLE
TIMESTAMP
UTF8_STRING
text/plain;charset=utf-8
text/plain
TEXT
STRING
)");
    EXPECT_EQ(pastedByXclip("text/plain;charset=utf-8"), "Grüße €");
    // Latin-1, in which there is no Euro sign.
    EXPECT_EQ(pastedByXclip("STRING"),
              "Gr\xFC\xDF"
              "e ?");
}

TEST_F(ClipboardTest, givesTextsLongerThanTheServersRequests) {
    const std::string text = longText(3U << 20U);
    ASSERT_TRUE(clipboard.set(text));
    EXPECT_TRUE(pastedByXclip() == text);
    EXPECT_TRUE(pastedByXsel() == text);
    ASSERT_TRUE(clipboard.set("short"));
    EXPECT_EQ(pastedByXclip(), "short");
}

TEST_F(ClipboardTest, givesALongTextWholeThoughItIsReplacedMeanwhile) {
    const std::string text = longText(3U << 20U);
    ASSERT_TRUE(clipboard.set(text));
    for (int i = 0; i < 5; ++i) {
        std::string pasted;
        ASSERT_TRUE(clipboard.set(text));
        std::thread other([&] { pasted = pastedByXclip(); });
        const bool isSet = static_cast<bool>(clipboard.set("short"));
        other.join();
        EXPECT_TRUE(isSet);
        EXPECT_TRUE(pasted == text || pasted == "short");
    }
}

TEST_F(ClipboardTest, readsWhatOthersCopy) {
    copy("Grüße, 日本");
    EXPECT_EQ(textOf(clipboard), "Grüße, 日本");
    ASSERT_TRUE(clipboard.set("ours"));
    copy("theirs");
    // Until then the text that is offered may be ours.
    EXPECT_TRUE(eventually([this] { return textOf(clipboard) == "theirs"; }));
}

TEST_F(ClipboardTest, readsTextsLongerThanTheServersRequests) {
    const std::string text = longText(3U << 20U);
    copy(text);
    EXPECT_TRUE(textOf(clipboard) == text);
}

TEST_F(ClipboardTest, readsLatin1FromThoseWhoHaveNothingElse) {
    copy(
        "Gr\xFC\xDF"
        "e",
        "STRING");
    EXPECT_EQ(textOf(clipboard), "Grüße");
}

TEST_F(ClipboardTest, whatHasNoTextIsEmpty) {
    copy("\x89PNG", "image/png");
    EXPECT_EQ(textOf(clipboard), "");
}

TEST_F(ClipboardTest, anOwnerThatHangsIsGivenUp) {
    copy("never");
    copied().signal(SIGSTOP);
    EXPECT_EQ(textOf(clipboard), "");
    copied().signal(SIGCONT);
    EXPECT_EQ(textOf(clipboard), "never");
}

TEST_F(ClipboardTest, anOwnerThatHangsHoldsUpNobodyWhoHasStopped) {
    copy("never");
    copied().signal(SIGSTOP);
    int questions = 0;
    clipboard.heedStops([&questions] {
        ++questions;
        return true;
    });
    EXPECT_EQ(textOf(clipboard), "");
    // One for each form that is asked for, and none again.
    EXPECT_GE(questions, 1);
    EXPECT_LE(questions, 10);
    copied().signal(SIGCONT);
}

TEST_F(ClipboardTest, hasNobodyToHandItOverToWithoutAManager) {
    EXPECT_FALSE(clipboard.handOver());
    ASSERT_TRUE(clipboard.set("text"));
    EXPECT_FALSE(clipboard.handOver());
    EXPECT_EQ(pastedByXclip(), "text");
}

}  // namespace
