// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/KeyInjector.h"
#include "platform/script/Program.h"
#include "platform/script/Value.h"

namespace script {

/// How a run ended. Cancelled is no error value: nothing in a script can catch it.
enum class RunEnd { finished, failed, cancelled };

struct RunResult {
    RunEnd end = RunEnd::finished;
    /// Set unless the run finished; when cancelled its number is -128.
    std::optional<ScriptError> error;
};

/// Runs one program once.
///
/// The injector is asked for a session before the first stroke or pause; a program without either leaves it
/// alone. The session is gone when run() returns.
class Machine {
  public:
    using WarningHandler = std::function<void(const ScriptWarning&)>;

    /// Both outlive the machine.
    Machine(const Program& program, KeyInjector& injector) : m_program(program), m_injector(injector) {}

    /// Who is told what the run noticed, each thing once for its place.
    void onWarning(WarningHandler handler) { m_warningHandler = std::move(handler); }

    RunResult run();

  private:
    void execute(const Instruction& instruction);
    template <typename Content>
    void push(Content content) {
        m_stack.emplace_back(std::move(content));
    }
    Value pop();
    void pushList(std::uint32_t count);
    void pushResult(Fallible<Value> result);
    void makeCount();
    void countDown(std::uint32_t target);
    void jumpBack(std::uint32_t target);

    void keyCode(bool withModifiers);
    void keystroke(bool withModifiers);
    void hold(bool down);
    void delay();
    std::optional<std::uint32_t> modifiers(bool present);
    std::optional<std::uint32_t> modifierMask(const Value& value);
    std::optional<std::uint32_t> keyCodeOf(const Value& value);
    bool isPlayable(std::uint32_t code);
    std::optional<HeldKey> heldKey(const Value& value);

    template <typename Step>
    void step(Step&& step);
    InjectionSession* session();
    void cancel();
    void fail(Failure failure);
    void failInjection(int number, const Error& error);
    void warn(std::string message);

    const Program& m_program;
    KeyInjector& m_injector;
    WarningHandler m_warningHandler;
    std::unique_ptr<InjectionSession> m_session;
    std::vector<Value> m_stack;
    std::size_t m_next = 0;      ///< the instruction after the current one
    std::uint32_t m_offset = 0;  ///< of the current one
    std::set<std::pair<std::uint32_t, std::string>> m_warned;
    std::optional<RunResult> m_result;
};

}  // namespace script
