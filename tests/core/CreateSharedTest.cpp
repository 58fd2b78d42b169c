// SPDX-License-Identifier: MIT
#include "core/createShared.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Pair {
    Pair(int first, std::string second) : number(first), text(std::move(second)) {}
    int number;
    std::string text;
};

struct NoMemory {
    static void* operator new(std::size_t) { throw std::bad_alloc(); }
    static void operator delete(void*) {}
};

struct NullMemory {
    static void* operator new(std::size_t) noexcept { return nullptr; }
    static void operator delete(void*) {}
};

struct NoMemoryInside {
    NoMemoryInside() { throw std::bad_alloc(); }
};

struct Refusing {
    Refusing() { throw std::out_of_range("refused"); }
};

template <typename Object>
std::string errorOf() {
    try {
        createShared<Object>();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "no error";
}

TEST(CreateSharedTest, passesTheArgumentsOn) {
    const auto pair = createShared<Pair>(7, "seven");
    EXPECT_EQ(pair->number, 7);
    EXPECT_EQ(pair->text, "seven");
    EXPECT_EQ(pair.use_count(), 1);
}

TEST(CreateSharedTest, reportsAnAllocationThatThrows) {
    EXPECT_EQ(errorOf<NoMemory>(), "Could not allocate memory.");
}

TEST(CreateSharedTest, reportsAnAllocationThatAnswersNull) {
    EXPECT_EQ(errorOf<NullMemory>(), "Could not allocate memory.");
}

TEST(CreateSharedTest, reportsMemoryShortageInsideTheConstructor) {
    EXPECT_EQ(errorOf<NoMemoryInside>(), "Could not allocate memory.");
}

TEST(CreateSharedTest, letsOtherExceptionsPass) {
    try {
        createShared<Refusing>();
        FAIL() << "no exception";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "refused");
    }
}

}  // namespace
