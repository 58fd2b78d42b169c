// SPDX-License-Identifier: MIT
#include "app/script/Commands.h"

#include <signal.h>

#include <iostream>
#include <optional>
#include <utility>
#include <variant>

#include "app/script/Playback.h"
#include "app/script/ScriptFile.h"
#include "platform/script/Compiler.h"
#include "platform/script/Machine.h"
#include "platform/script/TraceInjector.h"
#include "platform/script/TraceServices.h"

namespace {

constexpr int succeeded = 0;
constexpr int failed = 1;

std::ostream& at(const std::string& file, const script::Location& place) {
    return std::cerr << file << ":" << place.line << ":" << place.column << ": ";
}

void report(const std::string& file, const char* kind, const script::ScriptError& error) {
    at(file, error.location) << kind << " error: " << error.message << " (" << error.number << ")\n";
}

void report(const std::string& file, const script::ScriptWarning& warning) {
    at(file, warning.location) << "warning: " << warning.message << "\n";
}

int report(const std::string& subject, const Error& error) {
    std::cerr << "keyrill-script: " << subject << error.message
              << (error.hint.empty() ? "" : " " + error.hint) << "\n";
    return failed;
}

/// Empty after an error, which has been told.
std::optional<script::Program> compiled(const std::string& file) {
    Result<std::string> source = readScript(file);
    if (!source) {
        report(file + ": ", source.error());
        return std::nullopt;
    }
    auto result = script::compile(std::move(source).value());
    if (const auto* error = std::get_if<script::ScriptError>(&result)) {
        report(file, "syntax", *error);
        return std::nullopt;
    }
    return std::get<script::Program>(std::move(result));
}

int run(const std::string& file, const script::Program& program, const script::MachineServices& services) {
    script::Machine machine(program, services);
    machine.onLog([](const std::string& line) { std::cerr << line << "\n"; });
    machine.onWarning([&](const script::ScriptWarning& warning) { report(file, warning); });
    const script::RunResult result = machine.run();
    std::cout.flush();
    if (!result.error) return succeeded;
    report(file, "execution", *result.error);
    return failed;
}

}  // namespace

int checkScript(const std::string& file) {
    const std::optional<script::Program> program = compiled(file);
    if (!program) return failed;
    for (const script::ScriptWarning& warning : program->warnings) report(file, warning);
    return succeeded;
}

int traceScript(const std::string& file) {
    const std::optional<script::Program> program = compiled(file);
    if (!program) return failed;
    script::TraceInjector injector(std::cout);
    script::TraceDesktop desktop(std::cout);
    script::TraceDialogs dialogs(std::cout);
    return run(file, *program, {injector, desktop, dialogs});
}

int runScript(const std::string& file) {
    const std::optional<script::Program> program = compiled(file);
    if (!program) return failed;
    Result<std::unique_ptr<Playback>> playback = Playback::make();
    if (!playback) return report("", playback.error());
    playback.value()->injector().startPlayback();
    script::SilentDesktop desktop;
    script::NoDialogs dialogs;
    const int status = run(file, *program, {playback.value()->injector(), desktop, dialogs});
    const int signalNumber = playback.value()->signalNumber();
    playback.value().reset();
    // Whoever waits for this process is told how it ended.
    if (signalNumber != 0) raise(signalNumber);
    return status;
}
