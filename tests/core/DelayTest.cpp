// SPDX-License-Identifier: MIT
#include "core/Delay.h"

#include <limits>

#include "LocaleTest.h"

namespace {

class DelayTest : public LocaleTest {};
KEYRILL_IN_BOTH_LOCALES(DelayTest);

std::string scriptLine(double seconds) { return createDelay(seconds)->scriptLine(); }
std::string displayText(double seconds) { return createDelay(seconds)->displayText(); }

TEST_P(DelayTest, writesAtMostSixSignificantDigits) {
    EXPECT_EQ(scriptLine(0.5), "\tdelay 0.5\n");
    EXPECT_EQ(scriptLine(3.0), "\tdelay 3\n");
    EXPECT_EQ(scriptLine(1.23456789), "\tdelay 1.23457\n");
    EXPECT_EQ(scriptLine(123456.0), "\tdelay 123456\n");
    EXPECT_EQ(scriptLine(999999.4), "\tdelay 999999\n");
}

TEST_P(DelayTest, writesSmallAndLargeValuesWithAnExponent) {
    EXPECT_EQ(scriptLine(0.0001), "\tdelay 0.0001\n");
    EXPECT_EQ(scriptLine(0.00001), "\tdelay 1e-05\n");
    EXPECT_EQ(scriptLine(1234567.0), "\tdelay 1.23457e+06\n");
    EXPECT_EQ(scriptLine(1000000.0), "\tdelay 1e+06\n");
    EXPECT_EQ(scriptLine(999999.5), "\tdelay 1e+06\n");
    EXPECT_EQ(scriptLine(1e100), "\tdelay 1e+100\n");
}

TEST_P(DelayTest, showsTwoDecimals) {
    EXPECT_EQ(displayText(0.5), "<⌛ 0.50>");
    EXPECT_EQ(displayText(12.3456), "<⌛ 12.35>");
    EXPECT_EQ(displayText(0.00001), "<⌛ 0.00>");
    EXPECT_EQ(displayText(1234567.0), "<⌛ 1234567.00>");
}

TEST_P(DelayTest, takesZeroAndNegativePauses) {
    EXPECT_EQ(scriptLine(0), "\tdelay 0\n");
    EXPECT_EQ(displayText(0), "<⌛ 0.00>");
    EXPECT_EQ(scriptLine(-1.5), "\tdelay -1.5\n");
    EXPECT_EQ(displayText(-1.5), "<⌛ -1.50>");
}

TEST_P(DelayTest, rendersTheLongestNumberWhole) {
    const std::string text = displayText(std::numeric_limits<double>::lowest());
    EXPECT_EQ(text.size(), std::string("<⌛ -.00>").size() + 309);
    EXPECT_EQ(text.substr(0, 15), "<⌛ -179769313");
    EXPECT_EQ(text.substr(text.size() - 8), "8368.00>");
}

TEST_P(DelayTest, doesNotMindItsModifiers) {
    const auto delay = createDelay(0.5);
    delay->setModifiers(0x1F00);
    EXPECT_EQ(delay->scriptLine(), "\tdelay 0.5\n");
    EXPECT_EQ(delay->displayText(), "<⌛ 0.50>");
}

}  // namespace
