// SPDX-License-Identifier: MIT
//
// Hot keys by a portal that stands in for a desktop's.
#include "platform/desktops/PortalShortcuts.h"

#include <gtest/gtest.h>

#include <ostream>

#include "desktops/Woken.h"
#include "linux/desktop/PrivateBus.h"

// NOLINTNEXTLINE(readability-identifier-naming): the name is the test framework's
void PrintTo(const HotKeyBinder::Event& event, std::ostream* stream) {
    *stream << "event " << static_cast<int>(event.kind) << " key " << int{event.keycode} << " modifiers "
            << event.modifiers << " refusal " << event.answer.refusal.value_or("-") << " words "
            << event.answer.trigger;
}

namespace {

using Event = HotKeyBinder::Event;
using Kind = Event::Kind;

constexpr KeyGrab controlR{.keycode = 27, .modifiers = 4};
constexpr KeyGrab controlP{.keycode = 33, .modifiers = 4};

/// As a keyboard has it whose R is 27 and whose P is 33.
std::string triggerOf(const KeyGrab& grab) { return grab == controlR ? "CTRL+r" : "CTRL+p"; }
std::optional<KeyGrab> meaningOf(const std::string& words) {
    if (words == "Press <ctrl>r") return controlR;
    return words == "Press <ctrl>p" ? std::optional(controlP) : std::nullopt;
}

Event answerOf(const KeyGrab& grab, const GrabAnswer& answer) {
    return {Kind::answer, grab.keycode, grab.modifiers, answer};
}
Event granted(const KeyGrab& grab) {
    const std::string words = grab == controlR ? "Press <ctrl>r" : "Press <ctrl>p";
    return answerOf(grab, {.refusal = {}, .trigger = words, .keys = grab});
}
Event refused(const KeyGrab& grab, const std::string& why) { return answerOf(grab, {.refusal = why}); }
Event press(const KeyGrab& grab) { return {Kind::press, grab.keycode, grab.modifiers}; }
Event release(const KeyGrab& grab) { return {Kind::release, grab.keycode, grab.modifiers}; }

class PortalShortcutsTest : public testing::Test {
  protected:
    void havePortal(std::vector<std::string> how) {
        how.insert(how.end(), {"shortcuts", "only"});
        m_portal.reset();
        m_portal = std::make_unique<StandIn>(m_bus, how);
    }
    void open(PortalShortcuts::Patience patience = {}) {
        m_session = std::make_unique<SessionBus>(m_bus.address());
        m_shortcuts = std::make_unique<PortalShortcuts>(
            *m_session, PortalShortcuts::Words{.triggerOf = triggerOf, .meaningOf = meaningOf}, patience);
    }
    void ask(const KeyGrab& grab) {
        const bool isRecord = grab.keycode == controlR.keycode;
        ASSERT_EQ(
            m_shortcuts->grab(grab, {.id = 1, .name = isRecord ? "record" : "play", .title = "What it does"}),
            std::nullopt);
    }
    /// The next event, as the loop of a program would find it: it looks when it is woken, and not before.
    Event next() {
        std::optional<Event> event = m_shortcuts->nextEvent();
        while (!event && isWoken(m_shortcuts->fileDescriptor())) event = m_shortcuts->nextEvent();
        EXPECT_TRUE(event.has_value());
        return event.value_or(Event{});
    }
    /// Until the desktop has asked its user so often.
    void awaitQuestion(std::size_t times = 1) {
        ASSERT_TRUE(eventually([&] {
            shortcuts().nextEvent();
            return m_portal->count("asked") >= times;
        }));
    }
    bool hears(const std::string& text, std::size_t times = 1) {
        return eventually([&] { return m_portal->count(text) >= times; });
    }

    PrivateBus& bus() { return m_bus; }
    StandIn& portal() { return *m_portal; }
    void losePortal() { m_portal.reset(); }
    PortalShortcuts& shortcuts() { return *m_shortcuts; }
    void close() { m_shortcuts.reset(); }
    SessionBus& session() { return *m_session; }

  private:
    PrivateBus m_bus;
    std::unique_ptr<StandIn> m_portal;
    std::unique_ptr<SessionBus> m_session;
    std::unique_ptr<PortalShortcuts> m_shortcuts;
};

TEST_F(PortalShortcutsTest, whatIsGrantedIsPressedAndReleased) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    EXPECT_EQ(next(), granted(controlR));
    EXPECT_EQ(portal().count("shortcut record CTRL+r What it does"), 1U);
    portal().obey("press record");
    EXPECT_EQ(next(), press(controlR));
    portal().obey("release record");
    EXPECT_EQ(next(), release(controlR));
}

TEST_F(PortalShortcutsTest, thePortalKnowsWhoAsksBeforeItIsAsked) {
    havePortal({"agrees", "strict"});
    open();
    ask(controlR);
    EXPECT_EQ(next(), granted(controlR));
    EXPECT_TRUE(portal().heard().starts_with("ready\nregister example.orlen.Keyrill\nshortcut"))
        << portal().heard();
}

TEST_F(PortalShortcutsTest, allThatIsWishedInOneBreathIsAskedForAtOnce) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    ask(controlP);
    EXPECT_EQ(next(), granted(controlP));
    EXPECT_EQ(next(), granted(controlR));
    EXPECT_EQ(portal().count("register"), 1U);
    EXPECT_EQ(portal().count("shortcut"), 2U);
}

TEST_F(PortalShortcutsTest, whatTheDesktopLeavesOutIsRefused) {
    havePortal({"agrees", "leave=record"});
    open();
    ask(controlR);
    ask(controlP);
    EXPECT_EQ(next(), granted(controlP));
    EXPECT_EQ(next(), refused(controlR, "the desktop has not granted it"));
    portal().obey("press record");
    portal().obey("press play");
    EXPECT_EQ(next(), press(controlP));
}

TEST_F(PortalShortcutsTest, aUserWhoDoesNotAgreeIsNotAskedAgainForTheSame) {
    havePortal({"refuses"});
    open();
    ask(controlR);
    EXPECT_EQ(next(), refused(controlR, "you did not agree when the desktop asked"));
    shortcuts().release(controlR);
    ask(controlR);
    EXPECT_EQ(next(), refused(controlR, "you did not agree when the desktop asked"));
    EXPECT_EQ(portal().count("shortcut"), 1U);
}

TEST_F(PortalShortcutsTest, whatWasRefusedMayBeWishedAsAnotherCombination) {
    havePortal({"refuses"});
    open();
    ask(controlR);
    next();
    havePortal({"agrees"});
    shortcuts().release(controlR);
    ASSERT_EQ(shortcuts().grab(controlP, {.id = 1, .name = "record"}), std::nullopt);
    EXPECT_EQ(next(), granted(controlP));
}

TEST_F(PortalShortcutsTest, aDesktopThatClosesItsQuestionHasRefused) {
    havePortal({"fails"});
    open();
    ask(controlR);
    EXPECT_EQ(next(), refused(controlR, "the desktop has refused it"));
}

TEST_F(PortalShortcutsTest, theListCountsWhateverTheCodeSays) {
    havePortal({"agrees", "vague"});
    open();
    ask(controlR);
    EXPECT_EQ(next(), granted(controlR));
}

TEST_F(PortalShortcutsTest, whatTheUserChangesInTheSettingsIsTold) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    next();
    portal().obey("change record Press <ctrl>p");
    EXPECT_EQ(next(), answerOf(controlR, {.refusal = {}, .trigger = "Press <ctrl>p", .keys = controlP}));
    portal().obey("change record Drücke F9");
    EXPECT_EQ(next(), answerOf(controlR, {.refusal = {}, .trigger = "Drücke F9", .keys = {}}));
}

TEST_F(PortalShortcutsTest, anotherWishForWhatIsGrantedIsAnsweredFromMemory) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    next();
    shortcuts().release(controlR);
    ask(controlR);
    EXPECT_EQ(next(), granted(controlR));
    EXPECT_EQ(portal().count("shortcut"), 1U);
    EXPECT_EQ(portal().count("closed"), 0U);
}

TEST_F(PortalShortcutsTest, aNewNameIsAskedForWithTheOthersInANewSession) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    next();
    ask(controlP);
    EXPECT_EQ(next(), granted(controlP));
    EXPECT_EQ(next(), granted(controlR));
    EXPECT_EQ(portal().count("closed"), 1U);
    portal().obey("press record");
    EXPECT_EQ(next(), press(controlR));
}

TEST_F(PortalShortcutsTest, whatIsNoLongerWishedIsGivenBack) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    next();
    shortcuts().release(controlR);
    EXPECT_TRUE(eventually([&] {
        shortcuts().nextEvent();
        return portal().count("closed") > 0;
    }));
}

TEST_F(PortalShortcutsTest, theSessionIsClosedAtTheEnd) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    next();
    close();
    EXPECT_TRUE(hears("closed"));
}

TEST_F(PortalShortcutsTest, anAnswerThatComesLateCounts) {
    havePortal({"waits"});
    open();
    ask(controlR);
    awaitQuestion();
    EXPECT_EQ(shortcuts().nextEvent(), std::nullopt);
    portal().obey("answer");
    EXPECT_EQ(next(), granted(controlR));
}

TEST_F(PortalShortcutsTest, whatIsWishedMeanwhileIsNotRefusedWithTheRestButAskedForAfterIt) {
    havePortal({"waits"});
    open();
    ask(controlR);
    awaitQuestion();
    ask(controlP);
    portal().obey("refuse");
    EXPECT_EQ(next(), refused(controlR, "you did not agree when the desktop asked"));
    awaitQuestion(2);
    EXPECT_EQ(portal().count("shortcut play"), 1U);
    portal().obey("answer");
    EXPECT_EQ(next(), granted(controlP));
}

TEST_F(PortalShortcutsTest, aQuestionForAnotherCombinationIsNotRefusedWithTheOneBefore) {
    havePortal({"waits"});
    open();
    ask(controlR);
    awaitQuestion();
    shortcuts().release(controlR);
    ASSERT_EQ(shortcuts().grab(controlP, {.id = 1, .name = "record"}), std::nullopt);
    portal().obey("refuse");
    awaitQuestion(2);
    portal().obey("answer");
    EXPECT_EQ(next(), granted(controlP));
}

TEST_F(PortalShortcutsTest, theLateEndOfASessionIsNotTakenForThatOfTheNext) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    next();
    ask(controlP);
    EXPECT_EQ(next(), granted(controlP));
    EXPECT_EQ(next(), granted(controlR));
    portal().obey("close first");
    portal().obey("press play");
    EXPECT_EQ(next(), press(controlP));
}

TEST_F(PortalShortcutsTest, anAnswerThatNeverComesIsARefusalAndTheQuestionIsTakenBack) {
    havePortal({"forgets"});
    open({.user = std::chrono::seconds(1)});
    ask(controlR);
    EXPECT_EQ(next(), refused(controlR, "the desktop has not answered"));
    EXPECT_TRUE(hears("given up"));
}

TEST_F(PortalShortcutsTest, aDesktopWithoutAPortalRefuses) {
    open();
    EXPECT_FALSE(PortalShortcuts::isThere(session()));
    ask(controlR);
    EXPECT_EQ(next(), refused(controlR, "the desktop's portal gives no hot keys"));
}

TEST_F(PortalShortcutsTest, oneThatComesLaterIsAsked) {
    open();
    ask(controlR);
    next();
    havePortal({"agrees"});
    EXPECT_EQ(next(), Event{.kind = Kind::reload});
    EXPECT_TRUE(PortalShortcuts::isThere(session()));
    ask(controlR);
    EXPECT_EQ(next(), granted(controlR));
}

/// The portal passes hot keys to whoever gives any, also to another desktop's part that is installed.
TEST_F(PortalShortcutsTest, underGnomeThoseOfAnotherDesktopDoNotCount) {
    havePortal({"agrees", "gnome"});
    open();
    EXPECT_FALSE(PortalShortcuts::isThere(session()));
}

TEST_F(PortalShortcutsTest, thoseOfGnomesOwnPartCount) {
    havePortal({"agrees", "gnome", "own-part"});
    open();
    EXPECT_TRUE(PortalShortcuts::isThere(session()));
}

TEST_F(PortalShortcutsTest, oneThatDiesIsAskedAgainWhenItIsBack) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    next();
    losePortal();
    EXPECT_EQ(next(), Event{.kind = Kind::reload});
    ask(controlR);
    EXPECT_EQ(next(), refused(controlR, "the desktop's portal gives no hot keys"));
    havePortal({"agrees"});
    EXPECT_EQ(next(), Event{.kind = Kind::reload});
    ask(controlR);
    EXPECT_EQ(next(), granted(controlR));
    portal().obey("press record");
    EXPECT_EQ(next(), press(controlR));
}

TEST_F(PortalShortcutsTest, oneThatDiesWhileItIsAskedIsNotAskedAtOnce) {
    havePortal({"waits"});
    open();
    ask(controlR);
    awaitQuestion();
    losePortal();
    EXPECT_EQ(next(), refused(controlR, "the desktop's portal has ended"));
}

TEST_F(PortalShortcutsTest, whatTheDesktopTakesBackIsRefused) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    next();
    portal().obey("close");
    EXPECT_EQ(next(), refused(controlR, "the desktop has taken it back"));
}

TEST_F(PortalShortcutsTest, anotherBusInTheOldOnesPlaceIsAskedAgain) {
    havePortal({"agrees"});
    open();
    ask(controlR);
    next();
    bus().die();
    losePortal();
    bus().comeBack();
    havePortal({"agrees"});
    EXPECT_EQ(next(), Event{.kind = Kind::reload});
    ask(controlR);
    EXPECT_EQ(next(), granted(controlR));
}

}  // namespace
