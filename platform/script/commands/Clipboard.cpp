// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <string>
#include <utility>

#include "platform/ScriptDesktop.h"
#include "platform/script/commands/Playing.h"
#include "platform/script/values/Coercion.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    Result<std::string> found = stage.desktop().clipboard();
    if (!found) return desktopFailure(found.error());
    const Value text{std::move(found).value()};
    const Value* type = arguments.parameter(0);
    return type == nullptr ? text : coerced(text, *type->as<Type>(), "");
}

}  // namespace

const Command& clipboardCommand() {
    static const Command command{.name = "clipboard",
                                 .parameters = {{.label = "as", .takesClass = true}},
                                 .perform = perform,
                                 .manual = R"(the clipboard [as CLASS]

The text in the clipboard, which is empty if there is none.)",
                                 .examples = R"(set the clipboard to "abc"↵the clipboard => "abc"
set the clipboard to "5"↵(the clipboard as integer) + 1 => 6)"};
    return command;
}

}  // namespace script
