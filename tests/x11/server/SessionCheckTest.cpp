// SPDX-License-Identifier: MIT
#include "platform/x11/server/X11SessionCheck.h"

#include <gtest/gtest.h>

#include "support/XServer.h"

namespace {

const std::vector<std::string> plainServer = {"Xvfb",      "-screen", "0",       "320x200x24",
                                              "-nolisten", "tcp",     "-noreset"};

std::vector<std::string> serverWithout(const std::string& extension) {
    std::vector<std::string> command = plainServer;
    command.insert(command.end(), {"-extension", extension});
    return command;
}

TEST(X11SessionCheckTest, isContentWithAWholeServer) {
    const XServer server(plainServer);
    const x11::X11SessionCheck check({server.display(), ""});
    EXPECT_TRUE(check.version());
    EXPECT_TRUE(check.access());
    EXPECT_FALSE(check.seesOnlySomeWindows());
}

TEST(X11SessionCheckTest, asksNothingThatIsKnownToWork) {
    const x11::X11SessionCheck check({":9999", ""}, true);
    EXPECT_TRUE(check.version());
    EXPECT_TRUE(check.access());
}

TEST(X11SessionCheckTest, namesTheExtensionThatAccessLacks) {
    const XServer server(serverWithout("XTEST"));
    const x11::X11SessionCheck check({server.display(), ""});
    EXPECT_TRUE(check.version());
    EXPECT_EQ(check.access().error().message, "The X server must have the XTEST extension, but it has not.");
}

TEST(X11SessionCheckTest, namesTheKindOfSessionThatItFound) {
    EXPECT_EQ(x11::X11SessionCheck({"", ""}).version().error().message,
              "An X11 session is needed, and this is no desktop session.");
    EXPECT_EQ(x11::X11SessionCheck({"", "wayland-0"}).version().error().message,
              "An X11 session is needed, and this is a Wayland session without an X server.");
}

TEST(X11SessionCheckTest, namesTheDisplayThatIsNotThere) {
    const x11::X11SessionCheck check({":9999", ""});
    const std::string message = R"(The X server of display ":9999" cannot be reached.)";
    EXPECT_EQ(check.version().error().message, message);
    EXPECT_EQ(check.access().error().message, message);
    EXPECT_FALSE(check.seesOnlySomeWindows());
}

TEST(X11SessionCheckTest, seesOnlySomeWindowsWithinWayland) {
    const XServer server(plainServer);
    EXPECT_TRUE(x11::X11SessionCheck({server.display(), "wayland-0"}).seesOnlySomeWindows());
}

}  // namespace
