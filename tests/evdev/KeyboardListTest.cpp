// SPDX-License-Identifier: MIT
#include "platform/evdev/devices/KeyboardList.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include "evdev/FakeInput.h"

namespace {

using Names = std::vector<std::string>;

TEST(KeyboardListTest, keyboardsAndKeypadsAreListedByTheirNumbers) {
    const FakeInput input;
    const auto tenth = input.plug(10);
    const auto second = input.plug(2, sysfskeys::keypad);
    EXPECT_EQ(evdev::listKeyboards(input.folders()), (Names{"event2", "event10"}));
}

TEST(KeyboardListTest, whatMerelyHasKeysIsNoKeyboard) {
    const FakeInput input;
    const auto mouse = input.plug(0, sysfskeys::mouse);
    const auto powerButton = input.plug(1, "10000000000000 0");
    const auto lidSwitch = input.plug(2, "0");
    EXPECT_EQ(evdev::listKeyboards(input.folders()), Names{});
}

TEST(KeyboardListTest, theKeyboardThatIsMadeToPressKeysIsLeftOut) {
    const FakeInput input;
    const auto own = input.plug(0, sysfskeys::keyboard, "keyrill/typing");
    const auto other = input.plug(1, sysfskeys::keyboard, "keyrill");
    EXPECT_EQ(evdev::listKeyboards(input.folders()), Names{"event1"});
}

TEST(KeyboardListTest, aFolderThatIsNotThereHasNone) {
    EXPECT_EQ(evdev::listKeyboards({"/nowhere", "/nowhere"}), Names{});
}

TEST(KeyboardListTest, oneKeyOfAKeyboardThatIsMissingMakesItNone) {
    EXPECT_TRUE(evdev::isKeyboard("fffffffe"));
    // Escape (1) and S (31) are the first and the last of them.
    EXPECT_FALSE(evdev::isKeyboard("fffffffc"));
    EXPECT_FALSE(evdev::isKeyboard("7ffffffe"));
}

TEST(KeyboardListTest, whatIsNoListOfKeysIsNoKeyboard) {
    const std::string tooLong = std::string(17, 'f');
    std::string tooMany;
    constexpr std::size_t most = KEY_CNT / (8 * sizeof(long));
    for (std::size_t word = 0; word <= most; ++word) tooMany += "fffffffe ";
    for (const std::string& text : {std::string(), std::string(" "), std::string("fffffffe x"),
                                    std::string("-1"), std::string("0xfffffffe"), tooLong, tooMany}) {
        EXPECT_FALSE(evdev::isKeyboard(text)) << text;
    }
}

TEST(KeyboardListTest, deviceFilesAreNamedByANumber) {
    for (const char* name : {"event0", "event31", "event9999"}) EXPECT_TRUE(evdev::isEventDeviceName(name));
    for (const char* name :
         {"event", "event10000", "event1a", "event-1", "event1/", "mouse0", "../event0", ""}) {
        EXPECT_FALSE(evdev::isEventDeviceName(name)) << name;
    }
}

}  // namespace
