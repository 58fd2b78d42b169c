// SPDX-License-Identifier: MIT
#include "platform/MailUrl.h"

#include <gtest/gtest.h>

namespace {

std::string subject(std::string_view text) {
    const std::string url = mailUrl("a@b.example", text, "");
    const std::string start = "mailto:a@b.example?subject=";
    return url.substr(start.size(), url.size() - start.size() - std::string("&body=").size());
}

TEST(MailUrlTest, hasAllThreeParts) {
    EXPECT_EQ(mailUrl("support@orlen.example", "Support", ""),
              "mailto:support@orlen.example?subject=Support&body=");
    EXPECT_EQ(mailUrl("feedback@orlen.example", "Keyrill Feedback", "x y"),
              "mailto:feedback@orlen.example?subject=Keyrill%20Feedback&body=x%20y");
}

TEST(MailUrlTest, leavesWhatAUrlMayHold) {
    const std::string_view allowed =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_.!~*'();/?:@&=+$,";
    EXPECT_EQ(subject(allowed), allowed);
}

TEST(MailUrlTest, escapesAllElse) {
    EXPECT_EQ(subject("#%[]"), "%23%25%5B%5D");
    EXPECT_EQ(subject(" \"<>\\^`{|}"), "%20%22%3C%3E%5C%5E%60%7B%7C%7D");
    EXPECT_EQ(subject("\t\n\r\x7F"), "%09%0A%0D%7F");
    EXPECT_EQ(subject(std::string_view("\0", 1)), "%00");
    EXPECT_EQ(subject("%41"), "%2541");
}

TEST(MailUrlTest, cutsASubjectAtAnAmpersand) {
    EXPECT_EQ(mailUrl("a@b.example", "Q&A", "b"), "mailto:a@b.example?subject=Q&A&body=b");
}

TEST(MailUrlTest, escapesLatin1Bytes) {
    EXPECT_EQ(subject("caf\u00e9"), "caf%E9");
    EXPECT_EQ(subject("\u00a0\u00ff\u0080"), "%A0%FF%80");
}

TEST(MailUrlTest, asksWhereLatin1LacksACharacter) {
    EXPECT_EQ(subject("\u20ac 5 \U0001F600"), "?%205%20?");
    EXPECT_EQ(subject("a\xFF\xC3(b"), std::string(R"(a?)") + R"(?(b)");
}

TEST(MailUrlTest, carriesABugReport) {
    EXPECT_EQ(mailUrl("bugs@orlen.example", "Keyrill Bug",
                      "Version:\t1.0\nSystem:\tDebian GNU/Linux 12 (bookworm)\nMac:\tRaspberry Pi 4 Model B\n"
                      "CPU:\t2x2400MHz\nRAM:\t4096MB\n\nDetails:\n"),
              "mailto:bugs@orlen.example?subject=Keyrill%20Bug&body="
              "Version:%091.0%0ASystem:%09Debian%20GNU/Linux%2012%20(bookworm)%0AMac:%09Raspberry%20Pi%204%20"
              "Model%20B%0ACPU:%092x2400MHz%0ARAM:%094096MB%0A%0ADetails:%0A");
}

}  // namespace
