// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <cmath>
#include <optional>
#include <string_view>

#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

double nearest(double number) {
    const double below = std::floor(number);
    const double above = std::ceil(number);
    if (number - below != above - number) return std::round(number);
    return std::fmod(below, 2) == 0 ? below : above;
}

double rounded(double number, std::string_view how) {
    if (how == "up") return std::ceil(number);
    if (how == "down") return std::floor(number);
    if (how == "toward zero") return std::trunc(number);
    if (how == "as taught in school") return std::round(number);
    return nearest(number);
}

Fallible<Value> perform(CommandStage& /*stage*/, const Arguments& arguments) {
    const Value& value = *arguments.direct();
    const std::optional<double> number = numberOf(value);
    if (!number) return cannotMake(value, "number");
    const Value* how = arguments.parameter(0);
    return numberValue(rounded(*number, how == nullptr ? std::string_view() : *how->text()), true);
}

}  // namespace

const Command& roundCommand() {
    static const Command command{
        .name = "round",
        .direct = Command::Direct::required,
        .swallows = Command::Swallows::comparisons,
        .parameters = {{.label = "rounding",
                        .choices = {"up", "down", "toward zero", "to nearest", "as taught in school"},
                        .takesValue = false}},
        .perform = perform,
        .manual = R"(round NUMBER [rounding ( up | down | toward zero | to nearest | as taught in school )]

Makes a number whole. Halves go to the even neighbour, or away from zero `as taught in school`.)",
        .examples = R"(round 2.5 => 2
round 2.5 rounding as taught in school => 3
round -2.1 rounding down => -3)"};
    return command;
}

}  // namespace script
