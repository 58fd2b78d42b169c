// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <string>

#include "platform/Utf8.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/TextRules.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& /*stage*/, const Arguments& arguments) {
    const Fallible<std::string> text = textOf(*arguments.direct());
    if (!text) return text.error();
    if (text.value().empty()) return Value{std::int64_t{0}};
    std::size_t position = 0;
    return Value{static_cast<std::int64_t>(takeCharacter(text.value(), position))};
}

}  // namespace

const Command& asciiNumberCommand() {
    static const Command command{.name = "ascii number",
                                 .direct = Command::Direct::required,
                                 .swallows = Command::Swallows::comparisons,
                                 .perform = perform,
                                 .manual = R"(ASCII number TEXT

The number of a text's first character; 0 for an empty text.)",
                                 .examples = R"(ASCII number "A" => 65)"};
    return command;
}

}  // namespace script
