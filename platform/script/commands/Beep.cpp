// SPDX-License-Identifier: MIT
#include "platform/script/commands/All.h"

#include <algorithm>
#include <optional>

#include "platform/ScriptDesktop.h"
#include "platform/script/commands/Playing.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

constexpr std::int32_t most = 100;

Fallible<Value> perform(CommandStage& stage, const Arguments& arguments) {
    std::int32_t count = 1;
    if (const Value* given = arguments.direct()) {
        const std::optional<std::int32_t> number = integerOf(*given);
        if (!number) return cannotMake(*given, "integer");
        count = *number;
    }
    if (count < 1) return Value();
    const Result<void> sounded = stage.desktop().beep(std::min(count, most));
    if (!sounded) return desktopFailure(sounded.error());
    return Value();
}

}  // namespace

const Command& beepCommand() {
    static const Command command{.name = "beep",
                                 .direct = Command::Direct::optional,
                                 .perform = perform,
                                 .manual = R"(beep [COUNT]

Sounds the bell, once or so many times, at most a hundred.)",
                                 .examples = R"(beep -> ["beep",1]
beep 3 -> ["beep",3])"};
    return command;
}

}  // namespace script
