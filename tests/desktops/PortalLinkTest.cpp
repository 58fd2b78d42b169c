// SPDX-License-Identifier: MIT
//
// keyrill-portal and the line to it, at a portal that stands in for a desktop's.
#include "platform/desktops/PortalLink.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "linux/desktop/PrivateBus.h"
#include "platform/linux/SteadyClock.h"

namespace {

constexpr std::uint16_t keyA = 30;

/// Waits as a run that nobody stops, and does something meanwhile.
class Wait final : public RunWait {
  public:
    explicit Wait(std::function<Step<>()> meanwhile) : m_meanwhile(std::move(meanwhile)) {}
    Step<> waitUntil(Clock::Time deadline) override {
        if (auto done = m_meanwhile(); !done) return done;
        m_clock.sleepFor(deadline - m_clock.now());
        return {};
    }

  private:
    SteadyClock m_clock;
    std::function<Step<>()> m_meanwhile;
};

class PortalLinkTest : public testing::Test {
  public:
    ~PortalLinkTest() override { unsetenv("DBUS_SESSION_BUS_ADDRESS"); }

  protected:
    PortalLinkTest() { setenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address().c_str(), 1); }

    void havePortal(const std::vector<std::string>& how) { m_portal = std::make_unique<StandIn>(m_bus, how); }
    StandIn& portal() { return *m_portal; }
    bool isThere() const { return PortalLink::isThere(SessionBus(m_bus.address())); }
    std::unique_ptr<PortalLink> link(std::chrono::seconds patience = std::chrono::seconds(30),
                                     std::chrono::seconds rest = std::chrono::seconds(60)) {
        return std::make_unique<PortalLink>(PortalLink::Options{.program = KEYRILL_PORTAL,
                                                                .tokenFile = m_folder.file("token"),
                                                                .patience = patience,
                                                                .rest = rest},
                                            m_clock);
    }
    static Step<> open(PortalLink& link) {
        Wait wait([] { return Step<>(); });
        return link.open(wait);
    }
    const PrivateBus& messageBus() const { return m_bus; }
    std::string tokenFile() const { return m_folder.file("token"); }
    bool hears(const std::string& text) {
        return eventually([&] { return m_portal->count(text) > 0; });
    }

  private:
    TemporaryFolder m_folder;
    PrivateBus m_bus;
    std::unique_ptr<StandIn> m_portal;
    SteadyClock m_clock;
};

void expectFailure(const Step<>& step, const char* message) {
    ASSERT_FALSE(step);
    ASSERT_TRUE(step.error().error.has_value());
    EXPECT_EQ(step.error().error->message, message);
}

TEST_F(PortalLinkTest, keysReachThePortalInTheirOrder) {
    havePortal({"agrees"});
    const auto line = link();
    ASSERT_TRUE(open(*line));
    std::string expected;
    for (std::uint16_t key = keyA; key < keyA + 60; ++key) {
        line->key(key, true);
        line->key(key, false);
        expected += "key " + std::to_string(key) + " 1\nkey " + std::to_string(key) + " 0\n";
        // Many at a time, and not too many for a busy machine.
        if (key % 10 == 9) {
            ASSERT_TRUE(line->synchronise());
        }
    }
    EXPECT_TRUE(portal().heard().ends_with(expected)) << portal().heard();
}

TEST_F(PortalLinkTest, oneThatTheUserRefusesSaysSo) {
    havePortal({"refuses"});
    expectFailure(open(*link()), "The desktop was not allowed to let Keyrill press keys.");
}

TEST_F(PortalLinkTest, anAnswerThatComesLateIsWaitedFor) {
    havePortal({"waits"});
    bool isAnswered = false;
    Wait wait([&] {
        if (!isAnswered && portal().count("asked") > 0) {
            isAnswered = true;
            portal().obey("answer");
        }
        return Step<>();
    });
    EXPECT_TRUE(link()->open(wait));
    EXPECT_TRUE(isAnswered);
}

TEST_F(PortalLinkTest, whoeverStopsTheRunNeedNotAnswer) {
    havePortal({"forgets"});
    std::size_t questions = 1;
    Wait wait([&] { return portal().count("asked") < questions ? Step<>() : Step<>(Halt::cancelled()); });
    const auto line = link();
    const auto opened = line->open(wait);
    ASSERT_FALSE(opened);
    EXPECT_TRUE(opened.error().isCancelled());
    // The question goes, and may be asked again.
    EXPECT_TRUE(hears("given up"));
    questions = 2;
    EXPECT_FALSE(line->open(wait));
    EXPECT_EQ(portal().count("asked"), 2U);
}

TEST_F(PortalLinkTest, anAnswerThatNeverComesIsNotWaitedForForEver) {
    havePortal({"forgets"});
    expectFailure(open(*link(std::chrono::seconds(1))),
                  "The desktop has not answered whether Keyrill may press keys.");
    EXPECT_TRUE(hears("given up"));
}

TEST_F(PortalLinkTest, aDesktopWithoutAPortalSaysSo) {
    expectFailure(open(*link()), "This desktop lets no program press keys: no portal for it answers.");
}

TEST_F(PortalLinkTest, aDesktopThatLetsProgramsMoveThePointerAloneSaysSo) {
    havePortal({"agrees", "pointer"});
    EXPECT_FALSE(isThere());
    expectFailure(open(*link()), "This desktop lets no program press keys: no portal for it answers.");
}

/// One that was started with the desktop's part of it has asked that too early.
TEST_F(PortalLinkTest, oneThatDoesNotKnowWhatThereIsIsAsked) {
    havePortal({"agrees", "unaware"});
    EXPECT_TRUE(isThere());
    const auto line = link();
    ASSERT_TRUE(open(*line));
    line->key(keyA, true);
    ASSERT_TRUE(line->synchronise());
    EXPECT_EQ(portal().count("key 30 1"), 1U);
}

TEST_F(PortalLinkTest, aDesktopThatTurnsOutToHaveNoKeyboardsSaysSo) {
    havePortal({"agrees", "unaware", "pointer"});
    expectFailure(open(*link()), "This desktop lets no program press keys: no portal for it answers.");
}

TEST_F(PortalLinkTest, aPortalThatDiesEndsTheRun) {
    havePortal({"agrees"});
    const auto line = link();
    ASSERT_TRUE(open(*line));
    portal().obey("end");
    Result<void> looked;
    ASSERT_TRUE(eventually([&] { return !(looked = line->look()); }));
    EXPECT_EQ(looked.error().message, "The desktop no longer lets Keyrill press keys.");
}

TEST_F(PortalLinkTest, aPermissionThatIsTakenBackEndsTheRunAndIsAskedForAgain) {
    havePortal({"agrees"});
    const auto line = link();
    ASSERT_TRUE(open(*line));
    portal().obey("close");
    ASSERT_TRUE(eventually([&] { return !line->look(); }));
    EXPECT_TRUE(open(*line));
    EXPECT_EQ(portal().count("devices"), 2U);
}

TEST_F(PortalLinkTest, aPermissionIsKnownAgainByAWordThatOthersCannotRead) {
    havePortal({"agrees"});
    EXPECT_TRUE(open(*link()));
    EXPECT_EQ(contentOf(tokenFile()), "known-again\n");
    struct stat facts {};
    ASSERT_EQ(stat(tokenFile().c_str(), &facts), 0);
    EXPECT_EQ(facts.st_mode & 0777U, 0600U);
    EXPECT_TRUE(open(*link()));
    EXPECT_EQ(portal().count("devices 1 2 None"), 1U);
    EXPECT_EQ(portal().count("devices 1 2 known-again"), 1U);
}

TEST_F(PortalLinkTest, anOldPortalIsNotAskedToKnowItAgain) {
    havePortal({"agrees", "old"});
    EXPECT_TRUE(open(*link()));
    EXPECT_TRUE(hears("devices 1 None None"));
    EXPECT_EQ(contentOf(tokenFile()), "");
}

TEST_F(PortalLinkTest, thePermissionIsGivenBackAfterARest) {
    havePortal({"agrees"});
    const auto line = link(std::chrono::seconds(30), std::chrono::seconds(1));
    ASSERT_TRUE(open(*line));
    line->rest();
    EXPECT_TRUE(hears("closed"));
    EXPECT_TRUE(line->look());
    EXPECT_TRUE(open(*line));
}

TEST_F(PortalLinkTest, twoRunsInARowAskOnce) {
    havePortal({"agrees"});
    const auto line = link();
    ASSERT_TRUE(open(*line));
    line->rest();
    ASSERT_TRUE(open(*line));
    EXPECT_EQ(portal().count("devices"), 1U);
}

TEST_F(PortalLinkTest, whatIsDownAtTheEndIsReleased) {
    havePortal({"agrees"});
    auto line = link();
    ASSERT_TRUE(open(*line));
    line->key(keyA, true);
    ASSERT_TRUE(line->synchronise());
    line.reset();
    EXPECT_TRUE(portal().heard().ends_with("key 30 1\nkey 30 0\nclosed\n")) << portal().heard();
}

/// What it does not answer in time it may have done.
TEST_F(PortalLinkTest, whatIsDownIsReleasedThoughThePortalWasSlow) {
    havePortal({"agrees"});
    const auto line = link();
    ASSERT_TRUE(open(*line));
    line->key(keyA, true);
    ASSERT_TRUE(line->synchronise());
    // The next press and the first release.
    portal().obey("deaf 2");
    ASSERT_TRUE(hears("deaf"));
    line->key(keyA + 1, true);
    ASSERT_TRUE(eventually([&] { return !line->look(); }));
    EXPECT_TRUE(hears("closed"));
    EXPECT_TRUE(portal().heard().ends_with("key 31 1\nkey 30 0\nkey 31 0\nclosed\n")) << portal().heard();
}

/// KWin keeps down what it has pressed.
class KdePartTest : public PortalLinkTest {
  protected:
    using Act = std::function<void(PortalLink&)>;

    KdePartTest() {
        havePart();
        havePortal({"agrees"});
    }

    std::unique_ptr<PortalLink> lineWithKeyDown() {
        auto line = link();
        EXPECT_TRUE(open(*line));
        line->key(keyA, true);
        EXPECT_TRUE(line->synchronise());
        return line;
    }
    /// A line with a key down, whose session has ended by that.
    std::unique_ptr<PortalLink> lineAfter(const Act& end) {
        auto line = lineWithKeyDown();
        end(*line);
        Result<void> looked;
        EXPECT_TRUE(eventually([&] { return !(looked = line->look()); }));
        EXPECT_EQ(looked.error().message, "The desktop no longer lets Keyrill press keys.");
        return line;
    }
    /// There is another one at once, as the bus starts it.
    void partDies() {
        m_part.reset();
        havePart();
    }
    void expectAnotherSessionReleases(const std::string& keys) {
        EXPECT_TRUE(eventually([&] { return portal().heard().ends_with(keys + "closed\n"); }))
            << portal().heard();
    }

  private:
    void havePart() {
        m_part = std::make_unique<StandIn>(messageBus(), std::vector<std::string>{"kde-part"});
    }

    std::unique_ptr<StandIn> m_part;
};

TEST_F(KdePartTest, whatItHasLeftDownWhenItDiesIsReleasedByAnotherSession) {
    const auto line = lineAfter([this](PortalLink&) { partDies(); });
    expectAnotherSessionReleases("key 30 0\n");
    EXPECT_EQ(portal().count("devices"), 2U);
    EXPECT_EQ(portal().count("key"), 2U);
    EXPECT_EQ(portal().count("closed"), 2U);
}

TEST_F(KdePartTest, soItIsWhenTheProgramEndsAtThatMoment) {
    auto line = lineWithKeyDown();
    partDies();
    line.reset();
    expectAnotherSessionReleases("key 30 0\n");
}

/// What the portal has taken it may not have passed on yet.
TEST_F(KdePartTest, whatItMayNotHaveReleasedBeforeItDiedIsReleasedOnceMore) {
    const auto line = lineAfter([this](PortalLink& told) {
        told.key(keyA, false);
        ASSERT_TRUE(hears("key 30 0"));
        partDies();
    });
    expectAnotherSessionReleases("key 30 0\n");
    EXPECT_EQ(portal().count("key 30 0"), 2U);
}

TEST_F(KdePartTest, whatItHasReleasedIsLeftAlone) {
    lineAfter([this](PortalLink& told) {
        told.key(keyA, false);
        ASSERT_TRUE(told.synchronise());
        partDies();
    }).reset();
    EXPECT_EQ(portal().count("devices"), 1U);
    EXPECT_EQ(portal().count("key 30 0"), 1U);
}

TEST_F(KdePartTest, whatIsDownWhenThePortalDiesOfAKeyIsReleasedByTheNextOne) {
    const auto line = lineWithKeyDown();
    portal().obey("die of key");
    ASSERT_TRUE(hears("mortal"));
    line->key(keyA + 1, true);
    ASSERT_TRUE(eventually([&] { return !line->look(); }));
    havePortal({"agrees"});
    expectAnotherSessionReleases("key 30 0\nkey 31 0\n");
}

TEST_F(KdePartTest, nobodyIsAskedForThat) {
    // It waits for the end of the program.
    lineAfter([this](PortalLink&) {
        std::filesystem::remove(tokenFile());
        partDies();
    }).reset();
    EXPECT_EQ(portal().count("devices"), 1U);
    EXPECT_EQ(portal().count("key 30 0"), 0U);
}

TEST_F(KdePartTest, whoTakesThePermissionBackHasTakenItBack) {
    lineAfter([this](PortalLink&) { portal().obey("close"); }).reset();
    EXPECT_EQ(portal().count("devices"), 1U);
    EXPECT_EQ(portal().count("key 30 0"), 0U);
}

TEST_F(PortalLinkTest, theUsersLayoutIsInForceAgainAtTheEnd) {
    havePortal({"agrees", "layouts"});
    auto line = link();
    ASSERT_TRUE(open(*line));
    line->leaveLayout(2);
    ASSERT_TRUE(line->synchronise());
    EXPECT_EQ(portal().count("layout"), 0U);
    line.reset();
    EXPECT_TRUE(portal().heard().ends_with("layout 2\nclosed\n")) << portal().heard();
}

TEST_F(PortalLinkTest, aLayoutThatIsInForceAgainIsLeftAlone) {
    havePortal({"agrees", "layouts"});
    auto line = link();
    ASSERT_TRUE(open(*line));
    line->leaveLayout(2);
    line->layoutIsHome();
    line.reset();
    EXPECT_TRUE(hears("closed"));
    EXPECT_EQ(portal().count("layout"), 0U);
}

}  // namespace
