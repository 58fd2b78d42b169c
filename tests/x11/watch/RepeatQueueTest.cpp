// SPDX-License-Identifier: MIT
#include "platform/x11/watch/RepeatSource.h"

#include <gtest/gtest.h>

#include "support/Keys.h"

namespace {

TEST(RepeatQueueTest, givesTheRepeatsBeforeARawEvent) {
    x11::RepeatQueue queue;
    queue.add(xkey::a, true, 100);
    queue.add(xkey::a, true, 600);
    queue.add(xkey::a, true, 630);
    queue.add(xkey::shift, true, 630);
    queue.add(xkey::a, true, 660);
    EXPECT_EQ(queue.takeBefore({.keycode = xkey::shift, .press = true, .time = 630}),
              (std::vector<x11::KeyRepeat>{{xkey::a, 600}, {xkey::a, 630}}));
    EXPECT_TRUE(queue.hasAny([](const x11::KeyRepeat& repeat) { return repeat.time == 660; }));
    EXPECT_EQ(queue.takeUpTo(queue.count()), (std::vector<x11::KeyRepeat>{{xkey::a, 660}}));
    EXPECT_FALSE(queue.hasAny([](const x11::KeyRepeat&) { return true; }));
}

TEST(RepeatQueueTest, takesUpToWhatWasKnownOnce) {
    x11::RepeatQueue queue;
    queue.add(xkey::a, true, 100);
    queue.add(xkey::a, true, 600);
    const std::uint64_t known = queue.count();
    queue.add(xkey::a, true, 630);
    EXPECT_EQ(queue.takeUpTo(known), (std::vector<x11::KeyRepeat>{{xkey::a, 600}}));
    EXPECT_EQ(queue.takeUpTo(known), std::vector<x11::KeyRepeat>{});
}

TEST(RepeatQueueTest, withoutItsMarkTimeTellsWhatCameBefore) {
    x11::RepeatQueue queue;
    queue.add(xkey::a, true, 0xFFFFFF00U);
    queue.add(xkey::a, true, 0xFFFFFFF0U);
    queue.add(xkey::a, true, 10);
    EXPECT_EQ(queue.takeBefore({.keycode = xkey::shift, .press = true, .time = 5}),
              (std::vector<x11::KeyRepeat>{{xkey::a, 0xFFFFFFF0U}}));
    EXPECT_EQ(queue.takeBefore({.keycode = xkey::shift, .press = true, .time = 11}),
              (std::vector<x11::KeyRepeat>{{xkey::a, 10}}));
}

}  // namespace
