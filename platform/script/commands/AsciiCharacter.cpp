// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <optional>
#include <string>

#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& /*stage*/, const Arguments& arguments) {
    const Value& value = *arguments.direct();
    const std::optional<std::int32_t> code = integerOf(value);
    constexpr std::int32_t last = 127;
    if (!code) return cannotMake(value, "integer");
    if (*code < 1 || *code > last) return cannotGet("ASCII character " + quotedForm(value));
    return Value{std::string(1, static_cast<char>(*code))};
}

}  // namespace

const Command& asciiCharacterCommand() {
    static const Command command{.name = "ascii character",
                                 .direct = Command::Direct::required,
                                 .swallows = Command::Swallows::comparisons,
                                 .perform = perform,
                                 .manual = R"(ASCII character NUMBER

The character with a number from 1 to 127. `character id` has all characters.)",
                                 .examples = R"(ASCII character 65 => "A")"};
    return command;
}

}  // namespace script
