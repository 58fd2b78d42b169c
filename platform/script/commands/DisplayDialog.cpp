// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/ScriptDialogs.h"
#include "platform/script/commands/DialogReader.h"
#include "platform/script/values/Coercion.h"

namespace script {
namespace {

/// The order of the table below.
enum Given : unsigned { answer, hidden, buttons, defaultButton, cancelButton, title, icon, givingUp };

ScriptDialog::Icon iconOf(const Value& value) {
    const std::string_view* name = value.text();
    const std::int32_t number = integerOf(value).value_or(-1);
    if (number == 0 || (name != nullptr && *name == "stop")) return ScriptDialog::Icon::stop;
    if (number == 1 || (name != nullptr && *name == "note")) return ScriptDialog::Icon::note;
    if (number == 2 || (name != nullptr && *name == "caution")) return ScriptDialog::Icon::caution;
    return ScriptDialog::Icon::none;
}

Value answered(const ScriptDialog& dialog, const ScriptAnswer& answer) {
    std::vector<Field> fields{
        {&names::buttonReturned, Value{answer.button ? dialog.buttons[*answer.button] : std::string()}}};
    if (dialog.defaultAnswer) fields.push_back({&names::textReturned, Value{answer.text}});
    if (dialog.givingUpAfter > 0) fields.push_back({&names::gaveUp, Value{!answer.button}});
    return Value{makeShared<RecordBody>(std::move(fields))};
}

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    DialogReader reader(arguments);
    ScriptDialog& dialog = reader.dialog();
    dialog.text = reader.text(arguments.direct());
    reader.readButtons(buttons, {"Cancel", "OK"});
    if (arguments.parameter(buttons) == nullptr) {
        dialog.defaultButton = 1;
        dialog.cancelButton = 0;
    }
    reader.readButton(defaultButton, dialog.defaultButton);
    reader.readButton(cancelButton, dialog.cancelButton);
    dialog.title = reader.text(arguments.parameter(title));
    if (arguments.parameter(answer) != nullptr)
        dialog.defaultAnswer = reader.text(arguments.parameter(answer));
    dialog.hidesAnswer = reader.truth(arguments.parameter(hidden));
    dialog.givingUpAfter = reader.number(arguments.parameter(givingUp));
    if (const Value* given = arguments.parameter(icon)) dialog.icon = iconOf(*given);
    return reader.ask(stage, answered);
}

}  // namespace

const Command& displayDialogCommand() {
    static const Command command{
        .name = "display dialog",
        .direct = Command::Direct::required,
        .gives = Held::dialog,
        .parameters = {{"default answer"},
                       {"hidden answer"},
                       {"buttons"},
                       {"default button"},
                       {"cancel button"},
                       {"with title"},
                       {.label = "with icon", .choices = {"stop", "note", "caution"}},
                       {"giving up after"}},
        .perform = perform,
        .manual =
            R"(display dialog TEXT [default answer TEXT] [hidden answer BOOLEAN] [buttons LIST] [default button BUTTON]
    [cancel button BUTTON] [with title TEXT] [with icon ICON] [giving up after SECONDS]

Asks a question and waits for the answer, a record: `button returned`, with a default answer `text returned`, and with
`giving up after` also `gave up`. Without buttons these are Cancel and OK, and OK is the default; of buttons of its own
none is unless named, by text or number. The cancel button ends the script with error -128. ICON is `stop`, `note` or
`caution`.)",
        .examples = R"(display dialog "Go on?" -> ["dialog","Go on?",["Cancel","OK"]]
text returned of (display dialog "Name?" default answer "Ann") => "Ann")"};
    return command;
}

}  // namespace script
