// SPDX-License-Identifier: MIT
#include "platform/script/run/ScriptRunner.h"

#include "platform/script/code/Compiler.h"
#include "platform/script/run/Run.h"
#include "platform/script/source/Scoped.h"

namespace script {

namespace {

ScriptFailure failureOf(const ScriptError& error, bool hasBegun) {
    return {hasBegun, error.location.line, Error{error.message, error.hint}};
}

}  // namespace

std::optional<ScriptFailure> ScriptRunner::check(const std::string& source) {
    const auto program = compile(source);
    return program ? std::nullopt : std::optional(failureOf(program.error(), false));
}

void ScriptRunner::startPlayback() {
    m_failure.reset();
    m_injector.startPlayback();
}

void ScriptRunner::runAtSpeed(const std::string& source, double speed) {
    if (m_running) return;
    const Scoped<bool> running(m_running, true);
    std::optional<ScriptFailure> failure = runOnce(source, speed);
    if (!m_failure) m_failure = std::move(failure);
}

std::optional<ScriptFailure> ScriptRunner::runOnce(const std::string& source, double speed) {
    const auto program = compile(source);
    if (!program) return failureOf(program.error(), false);
    const RunResult result = script::run(program.value(), {m_injector, m_desktop, *m_dialogs}, {}, speed);
    if (result.end != RunEnd::failed || !result.error) return std::nullopt;
    return failureOf(*result.error, true);
}

}  // namespace script
