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
    Fallible<std::string> text = textOf(*arguments.direct(), stage.rules().joint());
    if (!text) return std::move(text).error();
    const Result<void> set = stage.desktop().setClipboard(text.value());
    if (!set) return desktopFailure(set.error());
    return Value();
}

}  // namespace

const Command& setClipboardCommand() {
    static const Command command{.name = "clipboard to",
                                 .direct = Command::Direct::required,
                                 .perform = perform,
                                 .manual = R"(set the clipboard to VALUE

Puts a text into the clipboard. A paste that is typed right afterwards finds it.)",
                                 .examples = R"(set the clipboard to "abc" -> ["clipboard","abc"]
set the clipboard to 1 + 1 -> ["clipboard","2"])"};
    return command;
}

}  // namespace script
