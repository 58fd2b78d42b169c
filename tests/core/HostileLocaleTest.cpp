// SPDX-License-Identifier: MIT
#include "HostileLocale.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <sstream>

namespace {

TEST(HostileLocaleTest, changesWhatPrintfWrites) {
    const HostileLocale locale;
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.2f", 0.5);
    EXPECT_STREQ(text.data(), "0,50");
}

TEST(HostileLocaleTest, changesWhatStreamsWrite) {
    const HostileLocale locale;
    std::ostringstream stream;
    stream << 0.5 << ' ' << 1234567;
    EXPECT_EQ(stream.str(), "0,5 1.234.567");
}

TEST(HostileLocaleTest, endsWithTheObject) {
    { const HostileLocale locale; }
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.2f", 0.5);
    EXPECT_STREQ(text.data(), "0.50");
}

}  // namespace
