// SPDX-License-Identifier: MIT
#include "platform/x11/X11SessionCheck.h"

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
}

constexpr CapabilityState fully(Means means) { return {Extent::fully, means, Lack::nothing}; }
constexpr CapabilityState without(Lack lack) { return {Extent::nothing, Means::none, lack}; }

SessionCapabilities capabilitiesOf(const XServer& server, const std::string& waylandDisplay = {}) {
    return x11::X11SessionCheck({server.display(), waylandDisplay, KEYRILL_GUARD}).capabilities();
}

TEST(X11SessionCheckTest, aWholeServerLetsAllBeDone) {
    const XServer server(plainServer);
    const SessionCapabilities expected = {.recording = fully(Means::xInput),
                                          .hotKeys = fully(Means::xGrab),
                                          .pressing = fully(Means::xTest),
                                          .text = fully(Means::xTest),
                                          .clipboard = fully(Means::xSelection),
                                          .overlay = fully(Means::xWindow),
                                          .windows = fully(Means::windowManager),
                                          .tray = without(Lack::tray)};
    EXPECT_EQ(capabilitiesOf(server), expected);
}

TEST(X11SessionCheckTest, whatTheServerLacksIsNamedWhereItIsNeeded) {
    const XServer noTest(serverWithout("XTEST"));
    EXPECT_EQ(capabilitiesOf(noTest).pressing, without(Lack::xTest));
    EXPECT_EQ(capabilitiesOf(noTest).text, without(Lack::xTest));
    const XServer noRecord(serverWithout("RECORD"));
    EXPECT_EQ(capabilitiesOf(noRecord).recording,
              (CapabilityState{Extent::partly, Means::xInput, Lack::record}));
    EXPECT_EQ(capabilitiesOf(noRecord).hotKeys, fully(Means::xGrab));
}

/// It is looked for beside the program that asks, and there is none beside this test.
TEST(X11SessionCheckTest, withoutItsGuardNothingIsPressed) {
    const XServer server(plainServer);
    const SessionCapabilities found = x11::X11SessionCheck({server.display(), ""}).capabilities();
    EXPECT_EQ(found.pressing, without(Lack::guard));
    EXPECT_EQ(found.text, without(Lack::guard));
    EXPECT_EQ(found.recording, fully(Means::xInput));
}

TEST(X11SessionCheckTest, withoutAServerNothingCanBeDone) {
    const SessionCapabilities none = x11::X11SessionCheck({":9999", ""}).capabilities();
    EXPECT_EQ(none.recording, without(Lack::display));
    EXPECT_EQ(none.tray, without(Lack::display));
}

TEST(X11SessionCheckTest, withinWaylandOnlyWindowsOfXAreReached) {
    const XServer server(plainServer);
    const SessionCapabilities found = capabilitiesOf(server, "wayland-0");
    EXPECT_EQ(found.recording, (CapabilityState{Extent::partly, Means::xInput, Lack::nativeWindows}));
    EXPECT_EQ(found.hotKeys, (CapabilityState{Extent::partly, Means::xGrab, Lack::nativeWindows}));
    EXPECT_EQ(found.windows, (CapabilityState{Extent::partly, Means::windowManager, Lack::nativeWindows}));
    EXPECT_EQ(found.pressing, (CapabilityState{Extent::partly, Means::xTest, Lack::nativeWindows}));
    EXPECT_EQ(found.overlay, fully(Means::xWindow));
}

TEST(X11SessionCheckTest, tellsWhatTheServerIsMadeOf) {
    const XServer server(plainServer);
    outputOf({"setxkbmap", "-layout", "us,ru"}, {{"DISPLAY", server.display()}});
    outputOf({"xdotool", "key", "Caps_Lock"}, {{"DISPLAY", server.display()}});
    const SessionDetails details = x11::X11SessionCheck({server.display(), ""}).details();
    EXPECT_EQ(details.display, server.display());
    using Parts = std::vector<SessionDetails::Part>;
    EXPECT_EQ(details.parts, (Parts{{"XInput 2.2", true}, {"XKB", true}, {"XTEST", true}, {"RECORD", true}}));
    EXPECT_EQ(details.layouts, (std::vector<std::string>{"us", "ru"}));
    EXPECT_EQ(details.locksOn, std::vector<std::string>{"Caps Lock"});
}

TEST(X11SessionCheckTest, tellsWhatTheServerIsMadeWithout) {
    // This server leaves both out together.
    const XServer server(serverWithout("RECORD"));
    using Parts = std::vector<SessionDetails::Part>;
    EXPECT_EQ(x11::X11SessionCheck({server.display(), ""}).details().parts,
              (Parts{{"XInput 2.2", true}, {"XKB", true}, {"XTEST", false}, {"RECORD", false}}));
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
}

}  // namespace
