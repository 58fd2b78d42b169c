// SPDX-License-Identifier: MIT
#include "cli/Commands.h"

#include <iostream>
#include <optional>
#include <set>
#include <utility>

#include "cli/Diagnostics.h"
#include "cli/NoSession.h"
#include "cli/Playback.h"
#include "cli/Report.h"
#include "cli/ScriptFile.h"
#include "cli/TerminalDialogs.h"
#include "platform/Sentence.h"
#include "platform/TerminalText.h"
#include "platform/linux/SteadyClock.h"
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
    /// Of a file that is no UTF-8.
    std::optional<script::ScriptWarning> warning = {};
};

/// Of a file that cannot be read, to whom the command speaks.
void tellUnreadable(const ScriptInput& input, const Error& error) {
    if (!input.wantsJson) return reportError(input.file + ": ", error);
    const script::ScriptError unreadable{0, error.message, {}, error.hint};
    std::cout << diagnostics("", &unreadable, {});
}

/// Empty after an error, which has been told.
std::optional<Source> sourceOf(const ScriptInput& input) {
    if (!input.lines.empty()) {
        Source source{"-e", ""};
        for (const std::string& line : input.lines) source.text += line + "\n";
        return source;
    }
    Result<ScriptText> read = readScript(input.file);
    if (!read) {
        tellUnreadable(input, read.error());
        return std::nullopt;
    }
    Source source{input.file, std::move(read.value().text)};
    if (read.value().noUtf8)
        source.warning = script::ScriptWarning{
            sentence("ScriptTool",
                     "This is no UTF-8, so the whole file is taken for Mac Roman. Save it as UTF-8."),
            *read.value().noUtf8};
    if (source.warning && !input.wantsJson) Report(source.name, source.text).warning(*source.warning);
    return source;
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

/// The user has asked to stop between two runs.
script::RunResult stopped() {
    constexpr int number = script::errornumber::userCancelled;
    return {script::RunEnd::cancelled, script::ScriptError{number, script::standardMessage(number), {}}, ""};
}

/// So long the programs that are typed into are left alone behind a run.
constexpr Clock::Seconds betweenRuns{0.01};

/// Runs it so often, and tells each warning once. What became of the last run.
script::RunResult run(const Source& source, const script::Program& program,
                      const script::MachineServices& services, const PlayOptions& play,
                      Clock::Seconds pauseBetween = betweenRuns) {
    const Report report(source.name, source.text);
    std::set<std::tuple<std::uint32_t, std::uint32_t, std::string>> told;
    const script::RunListener listener = {
        .onWarning =
            [&](const script::ScriptWarning& warning) {
                const bool isNew =
                    told.emplace(warning.location.line, warning.location.column, warning.message).second;
                if (isNew) report.warning(warning);
            },
        .onLog = [](const std::string& line) { std::cerr << harmlessText(line) << "\n"; }};
    script::RunResult result;
    for (std::int64_t runs = 0; play.times.goOnAfter(runs); ++runs) {
        if (runs > 0) SteadyClock().sleepFor(pauseBetween);
        if (runs > 0 && services.injector.isCancelled()) return stopped();
        result = script::run(program, services, listener, play.speed);
        std::cout.flush();
        if (result.error) break;
    }
    return result;
}

/// Whether the run has ended as its user has wanted.
bool isGood(const script::RunResult& result, const PlayOptions& play) {
    return !result.error || (result.end == script::RunEnd::cancelled && !play.times.count);
}

/// Tells what went wrong; the exit status.
int tell(const Source& source, const script::RunResult& result, const PlayOptions& play) {
    if (isGood(result, play)) return succeeded;
    Report(source.name, source.text).executionError(*result.error);
    return failed;
}

/// False after an error, which has been told.
bool isReadBy(KeyInjector& injector) {
    const auto read = injector.awaitReaders();
    if (read || read.error().isCancelled()) return true;
    reportError("", *read.error().error);
    return false;
}

int checkForEditor(const Source& source) {
    const auto compiled = script::compile(source.text);
    std::vector<script::ScriptWarning> warnings;
    if (compiled) warnings = compiled.value().warnings();
    if (source.warning) warnings.insert(warnings.begin(), *source.warning);
    std::cout << diagnostics(source.text, compiled ? nullptr : &compiled.error(), warnings);
    return compiled ? succeeded : failed;
}

/// Of lines that were given by hand.
void printValue(const script::RunResult& result, const ScriptInput& input) {
    if (!input.lines.empty() && !result.value.empty()) std::cout << result.value << std::endl;
}

/// Without a session; what needs one is told in a line.
int runWithoutSession(const Source& source, const script::Program& program, const Error& why,
                      const ScriptInput& input) {
    NoSession session(why);
    TerminalDialogs dialogs(session.injector());
    const script::RunResult result =
        run(source, program, {session.injector(), session.desktop(), dialogs}, input.play);
    int status = failed;
    if (session.wasNeeded()) {
        reportError("", why);
    } else {
        status = tell(source, result, input.play);
        printValue(result, input);
    }
    if (const int signalNumber = session.signals().number()) endBySignal(signalNumber);
    return status;
}

}  // namespace

int checkScript(const ScriptInput& input) {
    const std::optional<Source> source = sourceOf(input);
    if (source && input.wantsJson) return checkForEditor(*source);
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
    const script::RunResult result =
        run(*source, *program, {injector, desktop, dialogs}, input.play, Clock::Seconds::zero());
    return tell(*source, result, input.play);
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
    if (!playback) return runWithoutSession(*source, *program, playback.error(), input);
    playback.value()->injector().startPlayback();
    TerminalDialogs dialogs(playback.value()->injector());
    const script::RunResult result = run(
        *source, *program, {playback.value()->injector(), playback.value()->desktop(), dialogs}, input.play);
    const auto connection = playback.value()->connection();
    int status = failed;
    if (result.end == script::RunEnd::cancelled && !connection) {
        reportError("", connection.error());
    } else {
        status = tell(*source, result, input.play);
    }
    printValue(result, input);
    const bool isRead = isReadBy(playback.value()->injector());
    const int signalNumber = playback.value()->finish();
    if (signalNumber != 0) endBySignal(signalNumber);
    return isRead ? status : failed;
}
