// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include <iostream>
#include <optional>
#include <utility>

#include "cli/Diagnostics.h"
#include "cli/NoSession.h"
#include "cli/Playback.h"
#include "cli/Report.h"
#include "cli/ScriptFile.h"
#include "cli/TerminalDialogs.h"
#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"
#include "platform/script/run/TraceInjector.h"
#include "platform/script/run/TraceServices.h"
#include "platform/script/syntax/Formatter.h"

namespace {

constexpr int succeeded = 0;
constexpr int failed = 1;

/// A script and the words in which it is spoken of.
struct Source {
    std::string name;
    std::string text;
};

/// Empty after an error, which has been told.
std::optional<Source> sourceOf(const ScriptInput& input) {
    if (!input.lines.empty()) {
        Source source{"-e", ""};
        for (const std::string& line : input.lines) source.text += line + "\n";
        return source;
    }
    Result<std::string> text = readScript(input.file);
    if (text) return Source{input.file, std::move(text).value()};
    reportError(input.file + ": ", text.error());
    return std::nullopt;
}

/// Empty after an error, which has been told.
std::optional<script::Program> compiled(const Source& source) {
    auto result = script::compile(source.text);
    if (!result) {
        Report(source.name, source.text).syntaxError(result.error());
        return std::nullopt;
    }
    return std::move(result).value();
}

script::RunResult run(const Source& source, const script::Program& program,
                      const script::MachineServices& services) {
    const Report report(source.name, source.text);
    const script::RunListener listener = {
        .onWarning = [&](const script::ScriptWarning& warning) { report.warning(warning); },
        .onLog = [](const std::string& line) { std::cerr << line << "\n"; }};
    script::RunResult result = script::run(program, services, listener);
    std::cout.flush();
    return result;
}

void tell(const Source& source, const script::RunResult& result) {
    if (result.error) Report(source.name, source.text).executionError(*result.error);
}

int statusOf(const script::RunResult& result) { return result.error ? failed : succeeded; }

/// False after an error, which has been told.
bool isReadBy(KeyInjector& injector) {
    const auto read = injector.awaitReaders();
    if (read || read.error().isCancelled()) return true;
    reportError("", *read.error().error);
    return false;
}

int checkForEditor(const std::string& text) {
    const auto compiled = script::compile(text);
    std::cout << (compiled ? diagnostics(text, nullptr, compiled.value().warnings())
                           : diagnostics(text, &compiled.error(), {}));
    return compiled ? succeeded : failed;
}

/// Without a session; what needs one is told in a line.
int runWithoutSession(const Source& source, const script::Program& program, const Error& why,
                      bool printsValue) {
    NoSession session(why);
    TerminalDialogs dialogs(session.injector());
    const script::RunResult result = run(source, program, {session.injector(), session.desktop(), dialogs});
    if (session.wasNeeded()) {
        reportError("", why);
        return failed;
    }
    tell(source, result);
    if (printsValue && !result.value.empty()) std::cout << result.value << std::endl;
    return statusOf(result);
}

}  // namespace

int checkScript(const ScriptInput& input) {
    const std::optional<Source> source = sourceOf(input);
    if (source && input.wantsJson) return checkForEditor(source->text);
    const std::optional<script::Program> program = source ? compiled(*source) : std::nullopt;
    if (!program) return failed;
    const Report report(source->name, source->text);
    for (const script::ScriptWarning& warning : program->warnings()) report.warning(warning);
    return succeeded;
}

int traceScript(const ScriptInput& input) {
    const std::optional<Source> source = sourceOf(input);
    const std::optional<script::Program> program = source ? compiled(*source) : std::nullopt;
    if (!program) return failed;
    script::TraceInjector injector(std::cout);
    script::TraceDesktop desktop(std::cout);
    script::TraceDialogs dialogs(std::cout);
    const script::RunResult result = run(*source, *program, {injector, desktop, dialogs});
    tell(*source, result);
    return statusOf(result);
}

int formatScript(const ScriptInput& input) {
    const std::optional<Source> source = sourceOf(input);
    if (!source) return failed;
    const auto text = script::formatted(source->text);
    if (!text) {
        Report(source->name, source->text).syntaxError(text.error());
        return failed;
    }
    std::cout << text.value() << std::flush;
    return std::cout ? succeeded : failed;
}

int runScript(const ScriptInput& input) {
    const std::optional<Source> source = sourceOf(input);
    const std::optional<script::Program> program = source ? compiled(*source) : std::nullopt;
    if (!program) return failed;
    Result<std::unique_ptr<Playback>> playback = Playback::make();
    if (!playback) return runWithoutSession(*source, *program, playback.error(), !input.lines.empty());
    playback.value()->injector().startPlayback();
    TerminalDialogs dialogs(playback.value()->injector());
    const script::RunResult result =
        run(*source, *program, {playback.value()->injector(), playback.value()->desktop(), dialogs});
    const auto connection = playback.value()->connection();
    if (result.end == script::RunEnd::cancelled && !connection) {
        reportError("", connection.error());
    } else {
        tell(*source, result);
    }
    if (!input.lines.empty() && !result.value.empty()) std::cout << result.value << std::endl;
    const bool isRead = isReadBy(playback.value()->injector());
    const int signalNumber = playback.value()->finish();
    if (signalNumber != 0) endBySignal(signalNumber);
    return isRead ? statusOf(result) : failed;
}
