// SPDX-License-Identifier: MIT
#include "platform/script/values/Value.h"

#include <gtest/gtest.h>

#include "platform/Modifiers.h"
#include "platform/script/values/Arithmetic.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace {

using script::BinaryOperator;
using script::List;
using script::Value;

Value integer(std::int64_t value) { return Value{value}; }
Value real(double value) { return Value{value}; }
Value text(const char* value) { return Value{std::string(value)}; }

/// The spelled value, or the error's number and message.
std::string result(const script::Fallible<Value>& outcome) {
    if (outcome) return script::sourceForm(outcome.value());
    return std::to_string(outcome.error().number) + " " + outcome.error().message.text();
}

std::string result(const Value& left, BinaryOperator operation, const Value& right) {
    if (operation == BinaryOperator::join) return result(script::joined(left, right, ""));
    return result(script::calculated(operation, left, right));
}

TEST(CoercionTest, realsAsText) {
    EXPECT_EQ(script::realText(0), "0.0");
    EXPECT_EQ(script::realText(1), "1.0");
    EXPECT_EQ(script::realText(-2.5), "-2.5");
    EXPECT_EQ(script::realText(1.0 / 3), "0.333333333333");
    EXPECT_EQ(script::realText(0.1 + 0.2), "0.3");
    EXPECT_EQ(script::realText(9999.5), "9999.5");
    EXPECT_EQ(script::realText(12316.54), "1.231654E+4");
    EXPECT_EQ(script::realText(10000), "1.0E+4");
    EXPECT_EQ(script::realText(0.0001), "1.0E-4");
    EXPECT_EQ(script::realText(0.00125), "0.00125");
    EXPECT_EQ(script::realText(-1e300), "-1.0E+300");
}

TEST(CoercionTest, realsAsIntegersAreRoundedWithHalvesAwayFromZero) {
    EXPECT_EQ(script::integerOf(real(1.5)), 2);
    EXPECT_EQ(script::integerOf(real(2.5)), 3);
    EXPECT_EQ(script::integerOf(real(-2.5)), -3);
    EXPECT_EQ(script::integerOf(real(2147483647)), 2147483647);
    EXPECT_EQ(script::integerOf(real(2147483648)), std::nullopt);
}

TEST(CoercionTest, aListOfOneIsItsItem) {
    EXPECT_EQ(script::integerOf(Value{List{integer(7)}}), 7);
    EXPECT_EQ(script::integerOf(Value{List{}}), std::nullopt);
    EXPECT_EQ(script::integerOf(Value{List{integer(7), integer(8)}}), std::nullopt);
}

TEST(CoercionTest, valuesAreSpelledAsInAScript) {
    const Value constant{script::Modifier{modifier::option, true}};
    const Value key{script::Modifier{modifier::control, false}};
    EXPECT_EQ(
        script::sourceForm(Value{List{integer(1), text("a\"b"), real(2), constant, key, Value{List{}}}}),
        "{1, \"a\\\"b\", 2.0, option down, control, {}}");
}

TEST(ArithmeticTest, wholeNumbersStayWholeWithinTheirRange) {
    EXPECT_EQ(result(integer(2), BinaryOperator::plus, integer(3)), "5");
    EXPECT_EQ(result(integer(2), BinaryOperator::minus, integer(3)), "-1");
    EXPECT_EQ(result(integer(4), BinaryOperator::times, integer(3)), "12");
    EXPECT_EQ(result(integer(536870911), BinaryOperator::plus, integer(1)), "5.36870912E+8");
    EXPECT_EQ(result(integer(1), BinaryOperator::plus, real(0.5)), "1.5");
}

TEST(ArithmeticTest, divisionIsRealAndDivAndModAreWhole) {
    EXPECT_EQ(result(integer(6), BinaryOperator::over, integer(2)), "3.0");
    EXPECT_EQ(result(integer(7), BinaryOperator::div, integer(2)), "3");
    EXPECT_EQ(result(integer(-7), BinaryOperator::div, integer(2)), "-3");
    EXPECT_EQ(result(integer(-7), BinaryOperator::mod, integer(2)), "-1");
    EXPECT_EQ(result(real(7.5), BinaryOperator::mod, integer(2)), "1.5");
    EXPECT_EQ(result(integer(2), BinaryOperator::power, integer(3)), "8.0");
}

TEST(ArithmeticTest, textThatReadsAsANumberCalculates) {
    EXPECT_EQ(result(text("5"), BinaryOperator::plus, integer(3)), "8");
    EXPECT_EQ(result(integer(2), BinaryOperator::times, text("1.5")), "3.0");
    EXPECT_EQ(result(integer(2), BinaryOperator::times, text("x")),
              R"(-1700 Can’t make "x" into type number.)");
}

TEST(ArithmeticTest, divisionByZeroAndOverflowAreErrors) {
    for (const auto operation : {BinaryOperator::over, BinaryOperator::div, BinaryOperator::mod}) {
        EXPECT_EQ(result(real(1.5), operation, integer(0)), "-2701 Can’t divide 1.5 by zero.");
    }
    const std::string tooLarge = "-2702 The result of a numeric operation was too large.";
    EXPECT_EQ(result(real(1e308), BinaryOperator::times, integer(10)), tooLarge);
    EXPECT_EQ(result(integer(10), BinaryOperator::power, integer(400)), tooLarge);
}

TEST(ArithmeticTest, aPowerThatIsNoNumberIsAnErrorThatNamesBoth) {
    EXPECT_EQ(result(integer(0), BinaryOperator::power, integer(-1)),
              "-2702 Can’t raise 0 to the power of -1: the result is no number.");
    EXPECT_EQ(result(integer(-8), BinaryOperator::power, real(0.5)),
              "-2702 Can’t raise -8 to the power of 0.5: the result is no number.");
    EXPECT_EQ(result(integer(-2), BinaryOperator::power, integer(-2)), "0.25");
}

TEST(ArithmeticTest, joiningGivesTextBesideTextAndElseAList) {
    EXPECT_EQ(result(text("a"), BinaryOperator::join, integer(1)), R"("a1")");
    EXPECT_EQ(result(integer(1), BinaryOperator::join, text("a")), R"({1, "a"})");
    EXPECT_EQ(result(Value{List{integer(1)}}, BinaryOperator::join, Value{List{integer(2)}}), "{1, 2}");
}

TEST(ArithmeticTest, whatIsJoinedIsBounded) {
    const std::string half(script::maxTextSize / 2 + 1, 'a');
    EXPECT_EQ(result(Value{half}, BinaryOperator::join, Value{half}), "-108 Out of memory.");
}

TEST(ArithmeticTest, signs) {
    EXPECT_EQ(result(script::negated(integer(536870911))), "-536870911");
    EXPECT_EQ(result(script::negated(text("0.5"))), "-0.5");
    EXPECT_EQ(result(script::negated(Value{List{}})), "-1700 Can’t make {} into type number.");
}

}  // namespace
