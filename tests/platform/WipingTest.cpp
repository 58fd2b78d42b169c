// SPDX-License-Identifier: MIT
#include "platform/Wiping.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

TEST(WipingTest, leavesZeros) {
    std::array<unsigned char, 4> bytes = {1, 2, 3, 4};
    wipe(bytes.data() + 1, 2);
    EXPECT_EQ(bytes, (std::array<unsigned char, 4>{1, 0, 0, 4}));
}

TEST(WipedQueueTest, givesInOrderWhatCame) {
    WipedQueue<int> queue;
    queue.push_back(1);
    queue.emplace_back(2);
    queue.push_back(3);
    EXPECT_EQ(queue, (WipedQueue<int>{1, 2, 3}));
    EXPECT_EQ(queue.back(), 3);
    EXPECT_EQ(queue.takeFront(), 1);
    EXPECT_EQ(queue.size(), 2U);
    queue.clear();
    EXPECT_TRUE(queue.empty());
}

TEST(WipedQueueTest, losesWhatIsErased) {
    WipedQueue<int> queue{1, 2, 3, 4};
    queue.eraseIf([](int value) { return value % 2 == 0; });
    EXPECT_EQ(queue, (WipedQueue<int>{1, 3}));
}

TEST(WipedQueueTest, leavesNothingInThePlaceOfWhatWasTaken) {
    WipedQueue<int> queue{1, 2};
    const int* place = &queue.front();
    queue.pop_front();
    // The place is the queue's own as long as another value lies beside it.
    EXPECT_EQ(*place, 0);
    EXPECT_EQ(queue.front(), 2);
}

}  // namespace
