// SPDX-License-Identifier: MIT
#include <algorithm>

#include "evdev/EvdevWorld.h"
#include "keymap/NamedKeymap.h"
#include "platform/evdev/RepeatCounter.h"

namespace {

using std::chrono::milliseconds;

/// With 400 ms before the first repeat and 40 ms between two.
class EvdevRepeatTest : public EvdevTest {
  protected:
    static long repeatsOf(const Log& log, const std::string& words) {
        return std::count(log.begin(), log.end(), "repeat " + words);
    }
    void hold(std::uint32_t keyCode, milliseconds duration) {
        press({keyCode});
        evdevWorld().advance(duration);
        release({keyCode});
    }
};

TEST_P(EvdevRepeatTest, aKeyRepeatsAsLongAsItIsHeldThoughItIsReadOnlyAfterwards) {
    hold(key::a, milliseconds(399));
    EXPECT_EQ(repeatsOf(delivered(), "0 a"), 0);
    hold(key::a, milliseconds(401));
    EXPECT_EQ(repeatsOf(delivered(), "0 a"), 1);
    // At 400, 440, 480, 520, 560, 600, 640 and 680.
    hold(key::a, milliseconds(700));
    EXPECT_EQ(repeatsOf(delivered(), "0 a"), 8);
}

TEST_P(EvdevRepeatTest, repeatsAreToldWhileTheKeyIsHeld) {
    press({key::a});
    delivered();
    evdevWorld().advance(milliseconds(450));
    EXPECT_EQ(delivered(), (Log{"repeat 0 a", "repeat 0 a"}));
    EXPECT_EQ(delivered(), Log{});
}

TEST_P(EvdevRepeatTest, theKeyboardsOwnRepeatsAreNotCounted) {
    press({key::a});
    for (int i = 0; i < 9; ++i) evdevWorld().key(*evdevWorld().keyboard(), key::a, 2);
    release({key::a});
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
}

TEST_P(EvdevRepeatTest, theKeyThatIsPressedLastRepeatsAlone) {
    press({key::a});
    evdevWorld().advance(milliseconds(410));
    press({key::s});
    evdevWorld().advance(milliseconds(410));
    release({key::a});
    evdevWorld().advance(milliseconds(40));
    release({key::s});
    EXPECT_EQ(delivered(),
              (Log{"down 0 a", "repeat 0 a", "down 1 s", "repeat 1 s", "up 0", "repeat 1 s", "up 1"}));
}

TEST_P(EvdevRepeatTest, aModifierChangesWhatIsRepeatedAndStopsNothing) {
    press({key::a});
    evdevWorld().advance(milliseconds(410));
    press({key::shift});
    evdevWorld().advance(milliseconds(40));
    release({key::shift, key::a});
    EXPECT_EQ(delivered(),
              (Log{"down 0 a", "repeat 0 a", "modifiers 0x200", "repeat 0 A", "modifiers 0x0", "up 0"}));
}

TEST_P(EvdevRepeatTest, aKeyThatTheKeymapDoesNotRepeatDoesNot) {
    const std::unique_ptr<Keymap> us = namedKeymap("us");
    char* text = xkb_keymap_get_as_string(us->get(), XKB_KEYMAP_FORMAT_TEXT_V1);
    std::string changed(text);
    std::free(text);
    const auto symbols = changed.find('{', changed.find("key <AC01>"));
    changed.insert(symbols + 1, " repeat= No,");
    const XkbContextPointer context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    monitor().setKeymap(std::make_unique<Keymap>(XkbKeymapPointer(xkb_keymap_new_from_string(
        context.get(), changed.c_str(), XKB_KEYMAP_FORMAT_TEXT_V1, XKB_KEYMAP_COMPILE_NO_FLAGS))));
    hold(key::a, milliseconds(700));
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
    hold(key::s, milliseconds(430));
    EXPECT_EQ(repeatsOf(delivered(), "1 s"), 1);
}

TEST_P(EvdevRepeatTest, aSeatWithoutRepeatsHasNone) {
    monitor().setRepeatRule({.delay = milliseconds(400), .interval = milliseconds(0)});
    hold(key::a, milliseconds(10'000));
    EXPECT_EQ(delivered(), (Log{"down 0 a", "up 0"}));
}

TEST_P(EvdevRepeatTest, aHotKeyDoesNotRepeat) {
    request(3, "play", key::f5, 0);
    hold(key::f5, milliseconds(700));
    EXPECT_EQ(delivered(), (Log{"pressed 3", "released 3"}));
}

TEST_P(EvdevRepeatTest, aKeyThatGoesWithItsKeyboardStopsRepeating) {
    press({key::a});
    delivered();
    evdevWorld().keyboard().reset();
    evdevWorld().settle();
    evdevWorld().advance(milliseconds(700));
    EXPECT_EQ(delivered(), (Log{"up 0"}));
}

INSTANTIATE_TEST_SUITE_P(Evdev, EvdevRepeatTest, testing::Values(&makeEvdevWorld));

}  // namespace
