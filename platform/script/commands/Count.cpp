// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include "platform/script/values/Elements.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    const Value& value = *arguments.direct();
    if (const RecordBody* record = value.record())
        return Value{static_cast<std::int64_t>(record->fields.size())};
    return Value{static_cast<std::int64_t>(countElements(value, Element(), stage.rules()).value_or(1))};
}

}  // namespace

const Command& countCommand() {
    static const Command command{.name = "count",
                                 .direct = Command::Direct::required,
                                 .takesOf = true,
                                 .swallows = Command::Swallows::calculations,
                                 .perform = perform,
                                 .manual = R"(count [of] VALUE

How many items a list has, characters a text, properties a record. `number of VALUE` is the same.)",
                                 .examples = R"(count {1, 2, 3} => 3
count of words of "one two" => 2)"};
    return command;
}

const Command& numberOfCommand() {
    static const Command command{.name = "number of",
                                 .direct = Command::Direct::required,
                                 .swallows = Command::Swallows::calculations,
                                 .perform = perform,
                                 .manual = "",
                                 .examples = "number of {1, 2, 3} => 3"};
    return command;
}

}  // namespace script
