// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "linux/desktop/BusLoopTest.h"
#include "platform/linux/BusNotifications.h"

namespace {

/// What the stand-in prints for a message.
std::string lineFor(const std::string& title, const std::string& text) {
    return "message ['Keyrill', 0, 'example.orlen.Keyrill', '" + title + "', '" + text +
           "', [], {'desktop-entry': 'example.orlen.Keyrill'}, -1]\n";
}

class NotificationsTest : public testing::Test {
  protected:
    bool isHeard(const StandIn& service, const std::string& line) {
        return turnUntil(loop, [&] { return service.heard().find(line) != std::string::npos; });
    }

    /// Whether another program finds the bus.
    bool isReached() const {
        return Child({"dbus-send", "--bus=" + bus.address(), "/", "a.b"}, {.outputFile = "/dev/null"})
                   .wait() == 0;
    }

    PrivateBus bus;
    BusLoop loop;
};

TEST_F(NotificationsTest, areShownByTheService) {
    const StandIn service(bus, {"notifications"});
    BusNotifications notifications(loop, bus.address());
    notifications.post("Macro loaded", "Play it with Ctrl+P");
    EXPECT_TRUE(isHeard(service, lineFor("Macro loaded", "Play it with Ctrl+P"))) << service.heard();
    notifications.post("Another", "caf\u00e9");
    EXPECT_TRUE(isHeard(service, lineFor("Another", "caf\u00e9"))) << service.heard();
}

TEST_F(NotificationsTest, areNoMarkup) {
    const StandIn service(bus, {"notifications"});
    BusNotifications notifications(loop, bus.address());
    notifications.post("<b>&", "<b>a & b</b>");
    EXPECT_TRUE(isHeard(service, lineFor("<b>&", "&lt;b&gt;a &amp; b&lt;/b&gt;"))) << service.heard();
}

TEST_F(NotificationsTest, areLeftAsTheyAreWhereTheServiceHasNoMarkup) {
    const StandIn service(bus, {"plain"});
    BusNotifications notifications(loop, bus.address());
    notifications.post("t", "<b>a & b</b>");
    EXPECT_TRUE(isHeard(service, lineFor("t", "<b>a & b</b>"))) << service.heard();
}

TEST_F(NotificationsTest, areMadeTextWhereTheyAreNone) {
    const StandIn service(bus, {"plain"});
    BusNotifications notifications(loop, bus.address());
    notifications.post("a\xFF", "\xC3(");
    EXPECT_TRUE(isHeard(service, lineFor("a\uFFFD", "\uFFFD("))) << service.heard();
}

TEST_F(NotificationsTest, areDroppedWhereThereIsNoServiceAndShownOnceItCame) {
    BusNotifications notifications(loop, bus.address());
    notifications.post("dropped", "");
    loop.dispatch();
    const StandIn service(bus, {"plain"});
    // What was posted first may or may not have met the service; only the next is sure.
    notifications.post("shown", "");
    EXPECT_TRUE(isHeard(service, lineFor("shown", ""))) << service.heard();
}

TEST_F(NotificationsTest, areNothingWithoutABus) {
    for (const std::string address : {"", "unix:path=/nowhere/bus", "nonsense"}) {
        BusNotifications notifications(loop, address);
        notifications.post("title", "text");
        loop.dispatch();
    }
}

TEST_F(NotificationsTest, outliveTheBus) {
    const StandIn service(bus, {"plain"});
    BusNotifications notifications(loop, bus.address());
    notifications.post("first", "");
    ASSERT_TRUE(isHeard(service, lineFor("first", "")));
    bus.die();
    EXPECT_TRUE(turnUntil(loop, [this] { return !isReached(); }));
    notifications.post("second", "");
    BusNotifications late(loop, bus.address());
    late.post("third", "");
    loop.dispatch();
}

}  // namespace
