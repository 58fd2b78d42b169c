// SPDX-License-Identifier: MIT
#include "script/SmallStack.h"

#include <pthread.h>

#include <gtest/gtest.h>

void onSmallStack(const std::function<void()>& what) {
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, smallStack), 0);
    const auto start = [](void* function) -> void* {
        (*static_cast<const std::function<void()>*>(function))();
        return nullptr;
    };
    pthread_t thread{};
    std::function<void()> copy = what;
    ASSERT_EQ(pthread_create(&thread, &attributes, start, &copy), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}
