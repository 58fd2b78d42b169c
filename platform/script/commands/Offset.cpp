// SPDX-License-Identifier: MIT
#include "platform/Sentence.h"
#include "platform/script/commands/All.h"

#include <string>

#include "platform/Utf8.h"
#include "platform/script/source/ScriptError.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/TextRules.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    if (arguments.parameter(0) == nullptr) {
        return Failure{errornumber::missingParameter,
                       sentence("ScriptErrors", "Some parameter is missing for %1.").arg("offset")};
    }
    const Fallible<std::string> part = textOf(*arguments.direct());
    if (!part) return part.error();
    const Fallible<std::string> whole = textOf(*arguments.parameter(0));
    if (!whole) return whole.error();
    const auto& text = whole.value();
    const auto found = findText(text, part.value(), 0, stage.rules());
    if (!found || part.value().empty()) return Value{std::int64_t{0}};
    std::int64_t place = 1;
    for (std::size_t position = 0; position < found->begin; ++place) takeCharacter(text, position);
    return Value{place};
}

}  // namespace

const Command& offsetCommand() {
    static const Command command{.name = "offset of",
                                 .direct = Command::Direct::required,
                                 .swallows = Command::Swallows::calculations,
                                 .parameters = {{"in"}},
                                 .perform = perform,
                                 .manual = R"(offset of PART in TEXT

Where a text first stands in another one, counted in characters from 1; 0 if it does not.)",
                                 .examples = R"(offset of "b" in "abc" => 2
offset of "x" in "abc" => 0)"};
    return command;
}

}  // namespace script
