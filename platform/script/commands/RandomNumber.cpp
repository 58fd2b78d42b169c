// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <random>
#include <utility>
#include <variant>

#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// A limit; 0 where it was left out. One that is whole lies within maxInteger.
struct Limit {
    double value = 0;
    bool isWhole = true;
};

Fallible<Limit> limitOf(const Value* given) {
    if (given == nullptr) return Limit();
    if (!numberOf(*given)) return cannotMake(*given, "number");
    // Texts and lists of one item are what they read as: "1.5" is no whole limit.
    auto number = coerced(*given, Type::number, "");
    if (!number) return std::move(number).error();
    return Limit{*numberOf(number.value()), number.value().is<std::int64_t>()};
}

/// Between the limits; of whole ones both are possible.
Value chosen(std::mt19937_64& source, Limit from, Limit to) {
    if (from.value > to.value) std::swap(from, to);
    if (from.isWhole && to.isWhole) {
        const auto first = static_cast<std::int64_t>(from.value);
        const auto last = static_cast<std::int64_t>(to.value);
        return numberValue(static_cast<double>(std::uniform_int_distribution(first, last)(source)), true);
    }
    const auto part = std::generate_canonical<double, 53>(source);
    return Value{from.value * (1 - part) + to.value * part};
}

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    auto direct = limitOf(arguments.direct());
    if (!direct) return std::move(direct).error();
    auto from = limitOf(arguments.parameter(0));
    if (!from) return std::move(from).error();
    auto to = limitOf(arguments.parameter(1));
    if (!to) return std::move(to).error();
    if (const Value* seed = arguments.parameter(2)) {
        const std::optional<double> number = numberOf(*seed);
        if (!number) return cannotMake(*seed, "number");
        if (*number != 0) stage.random().seed(std::hash<double>()(*number));
    }
    const bool hasLimits = arguments.direct() != nullptr || arguments.parameter(0) != nullptr ||
                           arguments.parameter(1) != nullptr;
    if (!hasLimits) return chosen(stage.random(), Limit(), Limit{1, false});
    const bool isDirect = arguments.parameter(1) == nullptr && arguments.direct() != nullptr;
    return chosen(stage.random(), from.value(), (isDirect ? direct : to).value());
}

}  // namespace

const Command& randomNumberCommand() {
    static const Command command{
        .name = "random number",
        .direct = Command::Direct::optional,
        .swallows = Command::Swallows::comparisons,
        .parameters = {{"from"}, {"to"}, {"with seed"}},
        .perform = perform,
        .manual = R"(random number [LIMIT] [from NUMBER] [to NUMBER] [with seed NUMBER]

A number by chance: without limits a real from 0 to 1, with whole limits a whole number, both limits being possible. The same
seed gives the same numbers again.)",
        .examples = R"(random number from 5 to 5 => 5
(random number 10 with seed 4) = (random number 10 with seed 4) => true)"};
    return command;
}

}  // namespace script
