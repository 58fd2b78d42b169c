// SPDX-License-Identifier: MIT
#include <algorithm>
#include <utility>

#include "platform/ScriptDialogs.h"
#include "platform/Sentence.h"
#include "platform/script/commands/All.h"
#include "platform/script/commands/DialogReader.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// The order of the table below.
enum Given : unsigned { title, prompt, defaults, okButton, cancelButton, several, none };

/// `false` for the cancel button, which is no error here.
Value answered(const ScriptDialog& dialog, const ScriptAnswer& answer) {
    if (answer.button != 1U) return Value{false};
    List chosen;
    for (const std::size_t place : answer.chosen) chosen.push_back(Value{dialog.choices.at(place)});
    return Value{std::move(chosen)};
}

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    DialogReader reader(arguments);
    ScriptDialog& dialog = reader.dialog();
    const Value* asked = arguments.parameter(prompt);
    dialog.text = asked == nullptr ? sentence("ScriptDialogs", "Please make your selection:").text()
                                   : reader.text(asked);
    dialog.title = reader.text(arguments.parameter(title));
    dialog.allowsSeveral = reader.truth(arguments.parameter(several));
    dialog.allowsNone = reader.truth(arguments.parameter(none));
    reader.readChoices(*arguments.direct(), arguments.parameter(defaults));
    const Value* ok = arguments.parameter(okButton);
    const Value* cancel = arguments.parameter(cancelButton);
    // No script gets to know their names.
    dialog.buttons = {cancel == nullptr ? sentence("ScriptDialogs", "Cancel").text() : reader.text(cancel),
                      ok == nullptr ? sentence("ScriptDialogs", "OK").text() : reader.text(ok)};
    dialog.defaultButton = 1;
    dialog.cancelButton = 0;
    return reader.choose(stage, answered);
}

}  // namespace

const Command& chooseFromListCommand() {
    static const Command command{
        .name = "choose from list",
        .direct = Command::Direct::required,
        .gives = Held::chosen,
        .parameters = {{"with title"},
                       {"with prompt"},
                       {"default items"},
                       {"ok button name"},
                       {"cancel button name"},
                       {"multiple selections allowed"},
                       {"empty selection allowed"}},
        .perform = perform,
        .manual =
            R"(choose from list LIST [with title TEXT] [with prompt TEXT] [default items LIST] [OK button name TEXT]
    [cancel button name TEXT] [multiple selections allowed BOOLEAN] [empty selection allowed BOOLEAN]

Lets one item of a list be chosen, or several. The answer is a list of what was chosen, or `false` where the cancel button
was pressed.)",
        .examples = R"(choose from list {"Ann", "Bob"} with prompt "Who?" -> ["list","Who?",["Ann","Bob"]]
item 1 of (choose from list {"Ann", "Bob"} default items {"Bob"}) => "Bob")"};
    return command;
}

}  // namespace script
