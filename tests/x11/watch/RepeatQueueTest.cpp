// SPDX-License-Identifier: MIT
#include "platform/x11/watch/RepeatSource.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint8_t a = 38;
constexpr std::uint8_t shift = 50;

TEST(RepeatQueueTest, givesTheRepeatsBeforeARawEvent) {
    x11::RepeatQueue queue;
    queue.add(a, true, 100);
    queue.add(a, true, 600);
    queue.add(a, true, 630);
    queue.add(shift, true, 630);
    queue.add(a, true, 660);
    EXPECT_EQ(queue.takeBefore({.keycode = shift, .press = true, .time = 630}),
              (std::vector<x11::KeyRepeat>{{a, 600}, {a, 630}}));
    EXPECT_TRUE(queue.hasAny([](const x11::KeyRepeat& repeat) { return repeat.time == 660; }));
    EXPECT_EQ(queue.takeUpTo(queue.count()), (std::vector<x11::KeyRepeat>{{a, 660}}));
    EXPECT_FALSE(queue.hasAny([](const x11::KeyRepeat&) { return true; }));
}

TEST(RepeatQueueTest, takesUpToWhatWasKnownOnce) {
    x11::RepeatQueue queue;
    queue.add(a, true, 100);
    queue.add(a, true, 600);
    const std::uint64_t known = queue.count();
    queue.add(a, true, 630);
    EXPECT_EQ(queue.takeUpTo(known), (std::vector<x11::KeyRepeat>{{a, 600}}));
    EXPECT_EQ(queue.takeUpTo(known), std::vector<x11::KeyRepeat>{});
}

TEST(RepeatQueueTest, withoutItsMarkTimeTellsWhatCameBefore) {
    x11::RepeatQueue queue;
    queue.add(a, true, 0xFFFFFF00U);
    queue.add(a, true, 0xFFFFFFF0U);
    queue.add(a, true, 10);
    EXPECT_EQ(queue.takeBefore({.keycode = shift, .press = true, .time = 5}),
              (std::vector<x11::KeyRepeat>{{a, 0xFFFFFFF0U}}));
    EXPECT_EQ(queue.takeBefore({.keycode = shift, .press = true, .time = 11}),
              (std::vector<x11::KeyRepeat>{{a, 10}}));
}

}  // namespace
