// SPDX-License-Identifier: MIT
#include "script/Traced.h"

#include <sstream>

#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"
#include "platform/script/run/TraceInjector.h"
#include "platform/script/run/TraceServices.h"

namespace {

std::string printed(const script::ScriptWarning& warning) {
    return std::to_string(warning.location.line) + ":" + std::to_string(warning.location.column) + " " +
           warning.message;
}

}  // namespace

Traced traced(const std::string& source) {
    Traced result;
    const auto compiled = script::compile(source);
    if (!compiled) {
        result.phase = Traced::Phase::compile;
        result.error = compiled.error();
        return result;
    }
    const auto& program = compiled.value();
    for (const auto& warning : program.warnings()) result.warnings.push_back(printed(warning));
    std::ostringstream events;
    script::TraceInjector injector(events);
    script::TraceDesktop desktop(events);
    script::TraceDialogs dialogs(events);
    const auto note = [&](const script::ScriptWarning& warning) {
        result.warnings.push_back(printed(warning));
    };
    const script::RunResult run = script::run(program, {injector, desktop, dialogs}, {.onWarning = note});
    result.events = events.str();
    result.value = run.value;
    if (run.error) {
        result.phase = Traced::Phase::run;
        result.error = *run.error;
    }
    return result;
}

std::string told(const std::string& lines) {
    const Traced result = traced("tell application \"System Events\"\n" + lines + "\nend tell\n");
    if (result.phase == Traced::Phase::none) return result.events;
    return result.events + std::to_string(result.error.number) + " " + result.error.message.text();
}
