// SPDX-License-Identifier: MIT
#include "core/Delay.h"

#include <limits>
#include <string>
#include <vector>

#include "LocaleTest.h"

namespace {

class DelayTest : public LocaleTest {};
KEYRILL_IN_BOTH_LOCALES(DelayTest);

std::string scriptLine(double seconds) { return createDelay(seconds)->scriptLine(); }
std::string displayText(double seconds) { return createDelay(seconds)->displayText(); }

/// A pause and its number as text.
struct Row {
    double seconds = 0;
    std::string number;
};

void expectInScript(const std::vector<Row>& rows) {
    for (const Row& row : rows) EXPECT_EQ(scriptLine(row.seconds), "\tdelay " + row.number + "\n");
}

void expectShown(const std::vector<Row>& rows) {
    for (const Row& row : rows) EXPECT_EQ(displayText(row.seconds), "<⌛ " + row.number + ">");
}

TEST_P(DelayTest, writesAtMostSixSignificantDigits) {
    expectInScript(
        {{0.5, "0.5"}, {3.0, "3"}, {1.23456789, "1.23457"}, {123456.0, "123456"}, {999999.4, "999999"}});
}

TEST_P(DelayTest, writesSmallAndLargeValuesWithAnExponent) {
    expectInScript({{0.0001, "0.0001"},
                    {0.00001, "1e-05"},
                    {1234567.0, "1.23457e+06"},
                    {1000000.0, "1e+06"},
                    {999999.5, "1e+06"},
                    {1e100, "1e+100"}});
}

TEST_P(DelayTest, showsTwoDecimals) {
    expectShown({{0.5, "0.50"}, {12.3456, "12.35"}, {0.00001, "0.00"}, {1234567.0, "1234567.00"}});
}

TEST_P(DelayTest, takesZeroAndNegativePauses) {
    expectInScript({{0, "0"}, {-1.5, "-1.5"}});
    expectShown({{0, "0.00"}, {-1.5, "-1.50"}});
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
