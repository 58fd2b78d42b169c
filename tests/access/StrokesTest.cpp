// SPDX-License-Identifier: MIT
#include "access/Strokes.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <memory>
#include <string>

namespace {

using keyaccess::Stroke;
using Strokes = std::optional<std::vector<Stroke>>;

Strokes read(const std::string& text) {
    g_autoptr(GVariant) value = g_variant_parse(nullptr, text.c_str(), nullptr, nullptr, nullptr);
    EXPECT_NE(value, nullptr) << text;
    return value == nullptr ? std::nullopt : keyaccess::strokesOf(value);
}

std::string taps(int count) {
    std::string text = "@a(qy) [";
    for (int i = 0; i < count; ++i) text += i == 0 ? "(30, 1)" : ", (30, 1)";
    return text + "]";
}

TEST(StrokesTest, pressesAndReleasesAreReadInOrder) {
    EXPECT_EQ(read("@a(qy) [(42, 1), (30, 1), (30, 0), (42, 0)]"),
              (std::vector<Stroke>{{42, true}, {30, true}, {30, false}, {42, false}}));
}

TEST(StrokesTest, theFirstAndTheLastKeyOfAKeymapAreKeys) {
    EXPECT_EQ(read("@a(qy) [(1, 1), (247, 1)]"), (std::vector<Stroke>{{1, true}, {247, true}}));
    EXPECT_EQ(read("@a(qy) [(0, 1)]"), std::nullopt);
    EXPECT_EQ(read("@a(qy) [(248, 1)]"), std::nullopt);
    EXPECT_EQ(read("@a(qy) [(65535, 1)]"), std::nullopt);
}

TEST(StrokesTest, whatEndsTheMachineIsRefusedWithAllThatIsAskedForBesideIt) {
    for (const char* code : {"116", "142", "143", "205"}) {
        EXPECT_EQ(read(std::string("@a(qy) [(30, 1), (") + code + ", 1)]"), std::nullopt) << code;
    }
}

TEST(StrokesTest, aKeyIsPressedOrReleasedAndNothingElse) {
    EXPECT_EQ(read("@a(qy) [(30, 2)]"), std::nullopt);
    EXPECT_EQ(read("@a(qy) [(30, 255)]"), std::nullopt);
}

TEST(StrokesTest, noneAndMoreThan64AreRefused) {
    EXPECT_EQ(read("@a(qy) []"), std::nullopt);
    EXPECT_EQ(read(taps(64)).value().size(), 64U);
    EXPECT_EQ(read(taps(65)), std::nullopt);
}

TEST(StrokesTest, anotherTypeIsRefused) {
    EXPECT_EQ(read("@a(qq) [(30, 1)]"), std::nullopt);
    EXPECT_EQ(read("'a'"), std::nullopt);
    EXPECT_EQ(read("@a{sv} {}"), std::nullopt);
}

TEST(DownKeysTest, theKernelsOwnHotKeyIsRefusedWithEitherAlt) {
    for (const std::uint16_t alt : {std::uint16_t{KEY_LEFTALT}, std::uint16_t{KEY_RIGHTALT}}) {
        keyaccess::DownKeys down;
        EXPECT_TRUE(down.mayFollow({KEY_SYSRQ, true}));
        down.follow({alt, true});
        EXPECT_FALSE(down.mayFollow({KEY_SYSRQ, true}));
        EXPECT_TRUE(down.mayFollow({KEY_SYSRQ, false}));
        down.follow({alt, false});
        EXPECT_TRUE(down.mayFollow({KEY_SYSRQ, true}));
    }
}

}  // namespace
