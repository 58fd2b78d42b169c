// SPDX-License-Identifier: MIT
#include <filesystem>
#include <set>

#include "evdev/EvdevWorld.h"
#include "keymap/NamedKeymap.h"
#include "platform/run/RunWatch.h"

namespace {

using std::chrono::milliseconds;

class EvdevMonitorTest : public EvdevTest {
  protected:
    /// What this process has open beside the test's own ends of the pipes.
    static std::multiset<std::string> openFiles() {
        std::multiset<std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
            std::error_code gone;
            const std::string file = std::filesystem::read_symlink(entry.path(), gone);
            if (!file.empty() && file.find("/fd") == std::string::npos) files.insert(file);
        }
        return files;
    }
};

TEST_P(EvdevMonitorTest, nothingIsOpenBeforeAndAfterARecording) {
    const auto recording = openFiles();
    monitor().setRecording(false);
    const auto idle = openFiles();
    monitor().setRecording(true);
    EXPECT_EQ(openFiles(), recording);
    monitor().setRecording(false);
    EXPECT_EQ(openFiles(), idle);
    // The keyboard, and the folder that new ones come to.
    EXPECT_EQ(recording.size(), idle.size() + 2);
}

TEST_P(EvdevMonitorTest, nothingIsHeardOutsideARecording) {
    monitor().setRecording(false);
    tap(key::a);
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevMonitorTest, whatIsHeldWhenARecordingEndsIsUp) {
    press({key::shift, key::a});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "down 0 A"}));
    monitor().setRecording(false);
    EXPECT_EQ(delivered(), (Log{"up 0", "modifiers 0x0"}));
}

TEST_P(EvdevMonitorTest, aKeyOnTwoKeyboardsIsUpWhenTheLastLetsGo) {
    const auto second = evdevWorld().input().plug(1);
    delivered();
    press({key::a});
    evdevWorld().advance(milliseconds(1));
    evdevWorld().key(*second, key::a, 1);
    evdevWorld().advance(milliseconds(1));
    release({key::a});
    EXPECT_EQ(delivered(), (Log{"down 0 a"}));
    evdevWorld().key(*second, key::a, 0);
    EXPECT_EQ(delivered(), (Log{"up 0"}));
}

TEST_P(EvdevMonitorTest, aModifierOfOneKeyboardHoldsForTheOther) {
    const auto second = evdevWorld().input().plug(1);
    delivered();
    evdevWorld().key(*second, key::shift, 1);
    evdevWorld().advance(milliseconds(1));
    tap(key::a);
    evdevWorld().advance(milliseconds(1));
    evdevWorld().key(*second, key::shift, 0);
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "down 0 A", "up 0", "modifiers 0x0"}));
}

TEST_P(EvdevMonitorTest, severalKeyboardsAreReadInTheOrderOfTime) {
    const auto second = evdevWorld().input().plug(1);
    delivered();
    evdevWorld().key(*second, key::s, 1);
    evdevWorld().advance(milliseconds(1));
    press({key::a});
    evdevWorld().advance(milliseconds(1));
    evdevWorld().key(*second, key::s, 0);
    evdevWorld().advance(milliseconds(1));
    release({key::a});
    EXPECT_EQ(delivered(), (Log{"down 1 s", "down 0 a", "up 1", "up 0"}));
}

TEST_P(EvdevMonitorTest, whatIsHeldOnAKeyboardThatIsPulledOutIsUp) {
    press({key::shift, key::a});
    delivered();
    evdevWorld().keyboard().reset();
    EXPECT_EQ(delivered(), (Log{"up 0", "modifiers 0x0"}));
}

TEST_P(EvdevMonitorTest, whatTwoHoldIsUpWithTheSecond) {
    auto second = evdevWorld().input().plug(1);
    delivered();
    press({key::a});
    evdevWorld().key(*second, key::a, 1);
    delivered();
    evdevWorld().keyboard().reset();
    EXPECT_EQ(delivered(), Log{});
    second.reset();
    EXPECT_EQ(delivered(), (Log{"up 0"}));
}

TEST_P(EvdevMonitorTest, aKeyboardThatIsPluggedInIsHeard) {
    const auto mouse = evdevWorld().input().plug(1, sysfskeys::mouse);
    const auto own = evdevWorld().input().plug(2, sysfskeys::keyboard, "keyrill/typing");
    const auto second = evdevWorld().input().plug(3);
    delivered();
    evdevWorld().key(*mouse, key::b, 1);
    evdevWorld().key(*own, key::r, 1);
    evdevWorld().key(*second, key::s, 1);
    EXPECT_EQ(delivered(), (Log{"down 1 s"}));
}

TEST_P(EvdevMonitorTest, aKeyboardThatComesBackIsHeard) {
    evdevWorld().keyboard().reset();
    delivered();
    evdevWorld().keyboard() = evdevWorld().input().plug(0);
    delivered();
    tap(key::a);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
}

TEST_P(EvdevMonitorTest, keysThatAreDownAtTheBeginningCountFromThenOn) {
    monitor().setRecording(false);
    delivered();
    auto& answers = evdevWorld().calls().of(*evdevWorld().keyboard());
    answers.down.set(xkey::shift).set(xkey::s);
    monitor().setRecording(true);
    tap(key::a);
    release({key::shift, key::s});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "down 0 A", "up 0", "modifiers 0x0"}));
    EXPECT_FALSE(monitor().runWatch().handsHoldKeys());
}

TEST_P(EvdevMonitorTest, locksAreReadFromTheLights) {
    monitor().setRecording(false);
    evdevWorld().calls().of(*evdevWorld().keyboard()).lights = {.capsLock = true, .numLock = true};
    monitor().setRecording(true);
    tap(key::a);
    tap(key::keypadOne);
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"down 0 A", "up 0", "down 83 1", "up 83"}));
}

TEST_P(EvdevMonitorTest, locksOfAnEarlierRecordingAreForgotten) {
    world().setCapsLock(true);
    delivered();
    monitor().setRecording(false);
    monitor().setRecording(true);
    tap(key::a);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
}

TEST_P(EvdevMonitorTest, theSeatsKeymapAndLayoutTellWhatIsTyped) {
    monitor().setKeymap(namedKeymap("us,de"));
    tap(key::one);
    press({key::shift});
    tap(6);
    release({key::shift});
    EXPECT_EQ(deliveredWithout("modifiers"), (Log{"down 18 1", "up 18", "down 6 Z", "up 6"}));
    monitor().setRecording(false);
    evdevWorld().setFirstLayout(1);
    monitor().setRecording(true);
    tap(6);
    EXPECT_EQ(delivered(), (Log{"down 6 y", "up 6"}));
    monitor().setLayout(0);
    tap(6);
    // Typed in another layout than the recording began in, it names that in its code.
    const Log log = delivered();
    ASSERT_EQ(log.size(), 2U);
    EXPECT_EQ(log.front().substr(log.front().size() - 2), " z");
}

TEST_P(EvdevMonitorTest, aLossIsMadeGood) {
    press({key::a});
    delivered();
    auto& answers = evdevWorld().calls().of(*evdevWorld().keyboard());
    answers.down.set(xkey::s);
    evdevWorld().keyboard()->lost(evdevWorld().clock().now());
    EXPECT_EQ(delivered(), (Log{"up 0", "down 1 s"}));
}

TEST_P(EvdevMonitorTest, aKeyboardThatMayNotBeReadAnyMoreIsToldOf) {
    std::vector<std::string> told;
    monitor().observeAccess([&told](EventMonitor::Access access, const std::optional<Error>& why) {
        told.push_back(std::to_string(static_cast<int>(access)) + " " + (why ? why->message.text() : ""));
    });
    press({key::a});
    delivered();
    evdevWorld().keyboard()->revoke();
    EXPECT_EQ(delivered(), (Log{"up 0"}));
    EXPECT_EQ(told,
              std::vector<std::string>{"3 The keyboard can no longer be read: the permission has ended."});
}

TEST_P(EvdevMonitorTest, withheldPressesAreNotDelivered) {
    monitor().setWithheld(true);
    press({key::shift});
    tap(key::a);
    release({key::shift});
    EXPECT_EQ(delivered(), (Log{"modifiers 0x200", "modifiers 0x0"}));
    monitor().setWithheld(false);
    tap(key::a);
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
}

INSTANTIATE_TEST_SUITE_P(Evdev, EvdevMonitorTest, testing::Values(&makeEvdevWorld));

}  // namespace
