// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <optional>

#include "platform/script/commands/Advice.h"
#include "platform/script/commands/Playing.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    double seconds = 0;
    if (const Value* given = arguments.direct()) {
        const std::optional<double> number = numberOf(*given);
        if (!number) {
            Failure failure = cannotMake(*given, "number");
            if (const std::string_view* text = given->text()) failure.hint = pauseAdvice(*text);
            return failure;
        }
        seconds = *number;
    }
    const double pause = seconds / stage.speed();
    return outcomeOf(stage.play([&](InjectionSession& session) { return session.pause(pause); }));
}

}  // namespace

const Command& delayCommand() {
    static const Command command{.name = "delay",
                                 .direct = Command::Direct::optional,
                                 .plays = Command::Plays::pauses,
                                 .perform = perform,
                                 .manual = R"(delay [SECONDS]

Waits. Fractions count: `delay 0.01`. Pauses keep their pace: a hundred of them with 0.1 seconds each take ten seconds,
whatever is typed between them. A pause ends at once when the script is stopped.)",
                                 .examples = R"(delay 0.5 -> ["delay",0.5]
delay "abc" =! -1700 Can’t make "abc" into type number.)"};
    return command;
}

}  // namespace script
