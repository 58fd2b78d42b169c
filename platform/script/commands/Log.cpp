// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    const Value& value = *arguments.direct();
    stage.log("(*" + (value.text() == nullptr ? sourceForm(value) : std::string(*value.text())) + "*)");
    return Value();
}

}  // namespace

const Command& logCommand() {
    static const Command command{.name = "log",
                                 .direct = Command::Direct::required,
                                 .perform = perform,
                                 .manual = R"(log VALUE

Tells a value on standard error when keyrill-script runs the script. It does nothing else.)",
                                 .examples = R"(log "here" ->
log {1, 2} ->)"};
    return command;
}

}  // namespace script
