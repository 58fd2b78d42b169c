// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <functional>

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

    /// Turns the loop until there is nothing to do; false if there always is.
    bool isQuiet() {
        return eventually([this] {
            pollfd readable{.fd = loop.fileDescriptor(), .events = POLLIN, .revents = 0};
            // Connections are made by another thread, in less than that if there is nobody.
            constexpr int patience = 100;
            if (poll(&readable, 1, patience) == 0) return true;
            loop.dispatch();
            return false;
        });
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

TEST_F(NotificationsTest, areBoundedHoweverManyComeBeforeTheLoopTurns) {
    const StandIn service(bus, {"notifications"});
    BusNotifications notifications(loop, bus.address());
    notifications.post("first", "");
    ASSERT_TRUE(isHeard(service, lineFor("first", "")));
    for (int number = 0; number < 100000; ++number) notifications.post("many", std::to_string(number));
    notifications.post("last", "");
    EXPECT_TRUE(isHeard(service, lineFor("last", ""))) << service.heard();
    EXPECT_EQ(service.count("capabilities"), 1U);
    EXPECT_LE(service.count("message"), 1U + 16U + 16U);
}

TEST_F(NotificationsTest, areShownWithoutATurnOfTheLoopOnceTheServiceIsKnown) {
    const StandIn service(bus, {"notifications"});
    BusNotifications notifications(loop, bus.address());
    notifications.post("first", "");
    ASSERT_TRUE(isHeard(service, lineFor("first", "")));
    notifications.post("while a macro plays", "");
    EXPECT_TRUE(eventually([&] { return service.count("while a macro plays") == 1; })) << service.heard();
}

TEST_F(NotificationsTest, areShownAgainAfterTheServiceHasRefusedMany) {
    const StandIn service(bus, {"notifications", "refuses"});
    BusNotifications notifications(loop, bus.address());
    for (int number = 0; number < 100; ++number) {
        const std::string title = "number " + std::to_string(number);
        notifications.post(title, "");
        ASSERT_TRUE(isHeard(service, lineFor(title, ""))) << number;
    }
}

TEST_F(NotificationsTest, knowTheServiceThatCameInTheOthersPlace) {
    BusNotifications notifications(loop, bus.address());
    {
        const StandIn service(bus, {"plain"});
        notifications.post("t", "<b>");
        ASSERT_TRUE(isHeard(service, lineFor("t", "<b>"))) << service.heard();
    }
    const StandIn service(bus, {"notifications"});
    // Told by the bus, which the loop hears in its own time; until then a message may be lost or be plain.
    EXPECT_TRUE(turnUntil(loop, [&] {
        notifications.post("t", "<b>");
        return service.heard().find(lineFor("t", "&lt;b&gt;")) != std::string::npos;
    })) << service.heard();
}

TEST_F(NotificationsTest, areCutOffWhereNobodyReadsOn) {
    const StandIn service(bus, {"plain"});
    BusNotifications notifications(loop, bus.address());
    std::string text = "a";
    while (text.size() < 10000) text += "\u00e9";
    notifications.post("t", text);
    // Not within a character.
    EXPECT_TRUE(isHeard(service, lineFor("t", text.substr(0, 8191)))) << service.heard();
}

TEST_F(NotificationsTest, areNothingWithoutABus) {
    const StandIn service(bus, {"plain"});
    // The bus that others of this process would take.
    setenv("DBUS_SESSION_BUS_ADDRESS", bus.address().c_str(), 1);
    for (const std::string address : {"", "unix:path=/nowhere/bus", "nonsense"}) {
        BusNotifications notifications(loop, address);
        notifications.post("nobody's", address);
        EXPECT_TRUE(isQuiet()) << address;
        notifications.post("nobody's", "later");
        EXPECT_TRUE(isQuiet()) << address;
    }
    BusNotifications notifications(loop, bus.address());
    notifications.post("shown", "");
    EXPECT_TRUE(isHeard(service, lineFor("shown", "")));
    EXPECT_EQ(service.count("nobody's"), 0U) << service.heard();
}

/// How often it was told that nobody shows the message.
class Unshown {
  public:
    std::function<void()> counter() {
        return [this] { ++m_times; };
    }
    int times() const { return m_times; }

  private:
    int m_times = 0;
};

TEST_F(NotificationsTest, tellWhoPostedThatThereIsNoService) {
    BusNotifications notifications(loop, bus.address());
    Unshown early;
    notifications.post("while the bus is looked for", "", early.counter());
    EXPECT_TRUE(turnUntil(loop, [&] { return early.times() == 1; }));
    Unshown late;
    notifications.post("when it is there", "", late.counter());
    EXPECT_TRUE(turnUntil(loop, [&] { return late.times() == 1; }));
    EXPECT_TRUE(isQuiet());
    EXPECT_EQ(early.times() + late.times(), 2);
}

TEST_F(NotificationsTest, tellWhoPostedThatThereIsNoBus) {
    for (const std::string address : {"", "unix:path=/nowhere/bus", "nonsense"}) {
        BusNotifications notifications(loop, address);
        Unshown unshown;
        notifications.post("t", "", unshown.counter());
        EXPECT_TRUE(turnUntil(loop, [&] { return unshown.times() == 1; })) << address;
        EXPECT_TRUE(isQuiet()) << address;
        EXPECT_EQ(unshown.times(), 1) << address;
    }
}

TEST_F(NotificationsTest, tellWhoPostedThatTheServiceRefusesAndNotWhereItShows) {
    Unshown shown;
    {
        const StandIn service(bus, {"notifications"});
        BusNotifications notifications(loop, bus.address());
        notifications.post("shown", "", shown.counter());
        EXPECT_TRUE(isHeard(service, lineFor("shown", "")));
        EXPECT_TRUE(isQuiet());
    }
    EXPECT_EQ(shown.times(), 0);
    const StandIn service(bus, {"notifications", "refuses"});
    BusNotifications notifications(loop, bus.address());
    Unshown refused;
    notifications.post("refused", "", refused.counter());
    EXPECT_TRUE(turnUntil(loop, [&] { return refused.times() == 1; }));
}

TEST_F(NotificationsTest, tellWhoPostedThatTheBusDiedBeforeAnAnswer) {
    const StandIn service(bus, {"notifications"});
    BusNotifications notifications(loop, bus.address());
    Unshown shown;
    notifications.post("first", "", shown.counter());
    ASSERT_TRUE(isHeard(service, lineFor("first", "")));
    ASSERT_TRUE(isQuiet());
    Unshown before;
    service.signal(SIGSTOP);
    notifications.post("on its way when the bus dies", "", before.counter());
    ASSERT_TRUE(isQuiet());
    ASSERT_EQ(before.times(), 0);
    bus.die();
    Unshown after;
    notifications.post("before anybody knows of the death", "", after.counter());
    EXPECT_TRUE(turnUntil(loop, [&] { return before.times() == 1 && after.times() == 1; }))
        << before.times() << ' ' << after.times();
    Unshown late;
    notifications.post("when it is known", "", late.counter());
    EXPECT_TRUE(turnUntil(loop, [&] { return late.times() == 1; }));
    EXPECT_TRUE(isQuiet());
    EXPECT_EQ(before.times(), 1);
    EXPECT_EQ(after.times(), 1);
    EXPECT_EQ(late.times(), 1);
    EXPECT_EQ(shown.times(), 0);
    service.signal(SIGCONT);
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

TEST_F(NotificationsTest, areShownAgainWhenAnotherBusHasComeInTheOthersPlace) {
    BusNotifications notifications(loop, bus.address());
    for (int buses = 1; buses <= 2; ++buses) {
        {
            const StandIn service(bus, {"plain"});
            const std::string title = "on bus " + std::to_string(buses);
            // Until the bus has been found again messages are dropped.
            EXPECT_TRUE(turnUntil(loop, [&] {
                notifications.post(title, "");
                return service.heard().find(lineFor(title, "")) != std::string::npos;
            })) << service.heard();
        }
        bus.die();
        // Some time without any.
        ASSERT_TRUE(turnUntil(loop, [this] { return !isReached(); }));
        bus.comeBack();
    }
}

}  // namespace
