// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/script/code/Bytecode.h"
#include "platform/script/commands/Command.h"
#include "platform/script/run/Run.h"

namespace script {

/// A handler that runs.
struct Frame {
    std::uint32_t handler = 0;
    std::uint32_t returnTo = 0;
    std::size_t base = 0;  ///< where its variables begin on the stack
    std::size_t tries = 0;
    std::size_t targets = 0;
    std::size_t attributes = 0;
    Value result;  ///< of its last statement
};

/// Where an error goes, and what is put back then.
struct Try {
    std::uint32_t target = 0;
    std::size_t frames = 0;
    std::size_t stack = 0;
    std::size_t targets = 0;
    std::size_t attributes = 0;
};

/// The state of one run, and what all operations do with it.
///
/// An operation that fails says so and comes back; what it left on the stack then does not matter. Everything
/// that runs deep (handlers, errors, `tell`) lies in vectors here, so that no script can overflow the stack
/// of the process.
class Execution : public CommandStage {
  public:
    static constexpr std::size_t maxFrames = 1000;
    /// How many values may lie on the stack when a handler begins, its own variables among them.
    static constexpr std::size_t maxStack = 500000;
    /// What the values of a run may hold at one time, in bytes.
    static constexpr std::size_t maxMemory = 256U << 20U;
    /// More warnings are left out: nobody reads them.
    static constexpr std::size_t maxWarnings = 1000;

    /// Code and services outlive it.
    Execution(const Bytecode& code, const MachineServices& services, RunListener listener, double speed);
    ~Execution() override;
    Execution(const Execution&) = delete;
    Execution& operator=(const Execution&) = delete;

    RunResult run();

    const Bytecode& code() const { return m_code; }
    const Name& name(NameId id) const { return m_code.names.at(id); }

    // The stack of values.
    void push(Value value) { m_stack.push_back(std::move(value)); }
    Value& top(std::size_t depth = 0) { return m_stack[m_stack.size() - 1 - depth]; }
    void drop() { m_stack.pop_back(); }
    Value pop();
    /// Behind a reference, if it is one.
    Value popResolved();
    /// Of so many values on top, those that are references become what they lead to.
    bool resolveTop(std::size_t count);
    void pushOrFail(Fallible<Value> outcome);
    List popList(std::size_t count);
    Value* topValues(std::size_t count) { return m_stack.data() + (m_stack.size() - count); }

    // Variables.
    Value& local(std::uint32_t slot) { return m_stack[m_frames.back().base + slot]; }
    Value& global(std::uint32_t slot) { return m_globals[slot]; }
    /// Null if the script has none of that name.
    Value* findGlobal(const Name& wanted);
    Frame& frame() { return m_frames.back(); }
    const Handler& handler() const { return m_code.handlers[m_frames.back().handler]; }

    // Control.
    void jump(std::uint32_t target) { m_next = target; }
    /// What is done beside the instruction itself counts as work, too.
    void work(std::size_t amount) { m_work += amount; }
    /// All of a value is looked at or copied.
    void workOn(const Value& value);
    /// The arguments lie on top of the stack already.
    void enterHandler(std::uint32_t index, std::size_t arguments);
    /// Variables without a value yet, behind the arguments.
    void addVariables(std::size_t count);
    void leaveHandler(Value value);
    void pushTry(std::uint32_t target);
    void popTry() { m_tries.pop_back(); }
    void pushTarget(Value value) { m_targets.push_back(std::move(value)); }
    void popTarget() { m_targets.pop_back(); }
    void pushAttributes(std::uint32_t bits);
    void popAttributes();
    const Failure& caught() const { return m_caught; }

    void fail(Failure failure);
    /// Again with the error that was caught last, from where it came.
    void rethrow();
    bool hasFailed() const { return m_failure.has_value(); }

    /// A container was put into this one: at the end of the run they must not hold each other for ever.
    void holdsContainer(const Value& container);

    TextRules& textRules() { return m_rules; }
    const Value& delimiters() const { return m_delimiters; }
    void setDelimiters(Value value, std::vector<std::string> texts);
    const Value& me() const { return m_me; }

    // CommandStage
    Fallible<> play(const KeyStep& step) override;
    void warn(std::string message) override;
    void log(std::string line) override;
    ScriptDesktop& desktop() override;
    ScriptDialogs& dialogs() override;
    double speed() const override { return m_speed; }
    Fallible<> goOn() override;
    const TextRules& rules() const override { return m_rules; }
    std::mt19937_64& random() override { return m_random; }
    const Value& target() const override;

  private:
    void askWhetherToStop();
    void unwind();
    void finish(const Value& value);

    const Bytecode& m_code;
    MachineServices m_services;
    RunListener m_listener;
    double m_speed;
    std::unique_ptr<InjectionSession> m_session;
    std::vector<Value> m_stack;
    std::vector<Value> m_globals;
    std::vector<Frame> m_frames;
    std::vector<Try> m_tries;
    std::vector<Value> m_targets;
    std::vector<std::uint8_t> m_attributes;
    TextRules m_rules;
    Value m_delimiters{List()};
    Value m_me;
    std::mt19937_64 m_random;
    std::size_t m_next = 0;      ///< the instruction after the current one
    std::uint32_t m_offset = 0;  ///< of the current one
    std::size_t m_work = 0;
    std::size_t m_memoryBefore;
    std::optional<Failure> m_failure;
    std::uint32_t m_failureOffset = 0;
    Failure m_caught;
    std::uint32_t m_caughtOffset = 0;
    std::vector<Value> m_containers;
    std::size_t m_containersAllowed = 1024;
    std::set<std::pair<std::uint32_t, std::string>> m_warned;
    Locator m_locator;
    std::optional<RunResult> m_result;
};

}  // namespace script
