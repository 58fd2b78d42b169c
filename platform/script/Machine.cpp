// SPDX-License-Identifier: MIT
#include "platform/script/Machine.h"

#include <iterator>
#include <utility>

#include "platform/KeyCodes.h"
#include "platform/script/Advice.h"
#include "platform/script/Arithmetic.h"
#include "platform/script/Coercion.h"

namespace script {
namespace {

constexpr std::int32_t maxKeyCode = 65535;
/// The power key under its extension code.
constexpr std::uint32_t evdevPower = 116;

bool isPower(std::uint32_t code) {
    const std::uint32_t base = code & ~keycode::choosers;
    return base == keycode::power || base == keycode::evdevBase + evdevPower;
}

}  // namespace

RunResult Machine::run() {
    while (!m_result && m_next < m_program.instructions.size()) {
        const Instruction& instruction = m_program.instructions[m_next++];
        m_offset = instruction.offset;
        execute(instruction);
    }
    m_session.reset();
    return m_result.value_or(RunResult{});
}

void Machine::execute(const Instruction& instruction) {
    const std::uint32_t operand = instruction.operand;
    switch (instruction.operation) {
        case Operation::pushInteger:
            return push(std::int64_t{operand});
        case Operation::pushReal:
            return push(m_program.reals[operand]);
        case Operation::pushText:
            return push(m_program.texts[operand]);
        case Operation::pushModifier:
            return push(Modifier{operand, instruction.detail != 0});
        case Operation::pushList:
            return pushList(operand);
        case Operation::pushVariable:
            return fail({errornumber::undefinedVariable,
                         "The variable " + m_program.texts[operand] + " is not defined."});
        case Operation::negate:
            return pushResult(negated(pop()));
        case Operation::binary: {
            const Value right = pop();
            return pushResult(evaluate(static_cast<BinaryOperator>(instruction.detail), pop(), right));
        }
        case Operation::drop:
            m_stack.pop_back();
            return;
        case Operation::keyCode:
            return keyCode(instruction.detail != 0);
        case Operation::keystroke:
            return keystroke(instruction.detail != 0);
        case Operation::keyDown:
            return hold(true);
        case Operation::keyUp:
            return hold(false);
        case Operation::delay:
            return delay();
        case Operation::reachApplication:
            return fail({errornumber::noSuchObject,
                         "Can’t get application " + spelled(Value{m_program.texts[operand]}) + "."});
        case Operation::makeCount:
            return makeCount();
        case Operation::countDown:
            return countDown(operand);
        case Operation::jump:
            m_next = operand;
            return;
        case Operation::jumpBack:
            return jumpBack(operand);
    }
}

Value Machine::pop() {
    Value value = std::move(m_stack.back());
    m_stack.pop_back();
    return value;
}

void Machine::pushList(std::uint32_t count) {
    const auto first = m_stack.end() - static_cast<std::ptrdiff_t>(count);
    List items(std::make_move_iterator(first), std::make_move_iterator(m_stack.end()));
    m_stack.erase(first, m_stack.end());
    push(std::move(items));
}

void Machine::pushResult(Fallible<Value> result) {
    if (auto* failure = std::get_if<Failure>(&result)) {
        fail(std::move(*failure));
    } else {
        m_stack.push_back(std::get<Value>(std::move(result)));
    }
}

void Machine::makeCount() {
    const Value value = pop();
    const std::optional<std::int32_t> count = integerOf(value);
    if (!count) return fail(cannotMake(value, "integer"));
    push(std::int64_t{*count});
}

void Machine::countDown(std::uint32_t target) {
    auto& count = std::get<std::int64_t>(m_stack.back().content);
    if (count < 1) {
        m_next = target;
    } else {
        --count;
    }
}

/// A loop that neither presses nor waits can be stopped here only.
void Machine::jumpBack(std::uint32_t target) {
    if (m_injector.isCancelled()) return cancel();
    m_next = target;
}

/// All codes are read before the first is pressed.
void Machine::keyCode(bool withModifiers) {
    const List items = itemsOf(pop());
    const std::optional<std::uint32_t> mask = modifiers(withModifiers);
    std::vector<std::uint32_t> codes;
    for (const Value& item : items) {
        const std::optional<std::uint32_t> code = keyCodeOf(item);
        if (!mask || !code) return;
        if (isPlayable(*code)) codes.push_back(*code);
    }
    for (const std::uint32_t code : codes) {
        step([&](InjectionSession& session) { return session.stroke(code, *mask); });
        if (m_result) return;
    }
}

void Machine::keystroke(bool withModifiers) {
    const std::string text = textOf(pop());
    const std::optional<std::uint32_t> mask = modifiers(withModifiers);
    if (!mask || text.empty()) return;
    step([&](InjectionSession& session) { return session.text(text, *mask); });
}

void Machine::hold(bool down) {
    std::vector<HeldKey> keys;
    for (const Value& item : itemsOf(pop())) {
        std::optional<HeldKey> key = heldKey(item);
        if (m_result) return;
        if (key) keys.push_back(*std::move(key));
    }
    for (const HeldKey& key : keys) {
        step([&](InjectionSession& session) { return down ? session.keyDown(key) : session.keyUp(key); });
        if (m_result) return;
    }
}

void Machine::delay() {
    const Value value = pop();
    const std::optional<double> seconds = numberOf(value);
    if (!seconds) return fail(cannotMake(value, "number"));
    step([&](InjectionSession& session) { return session.pause(*seconds); });
}

/// Of the `using` clause, 0 without one; empty after a failure.
std::optional<std::uint32_t> Machine::modifiers(bool present) {
    std::uint32_t mask = 0;
    if (!present) return mask;
    for (const Value& item : itemsOf(pop())) {
        const std::optional<std::uint32_t> bit = modifierMask(item);
        if (!bit) return std::nullopt;
        mask |= *bit;
    }
    return mask;
}

std::optional<std::uint32_t> Machine::modifierMask(const Value& value) {
    const auto* constant = value.as<Modifier>();
    if (constant == nullptr) {
        fail(cannotMake(value, "modifier"));
        return std::nullopt;
    }
    if (!constant->down) warn(modifierAdvice(*constant));
    return constant->modifier;
}

/// Empty after a failure.
std::optional<std::uint32_t> Machine::keyCodeOf(const Value& value) {
    const std::optional<std::int32_t> code = integerOf(value);
    if (!code) {
        fail(cannotMake(value, "integer"));
    } else if (*code < 0 || *code > maxKeyCode) {
        fail(cannotMake(value, "key code"));
    } else if (isPower(static_cast<std::uint32_t>(*code))) {
        fail({errornumber::handlerFailed,
              "System Events got an error: the power key is never pressed by a script."});
    } else {
        return static_cast<std::uint32_t>(*code);
    }
    return std::nullopt;
}

bool Machine::isPlayable(std::uint32_t code) {
    if (keycode::evdevFor(code)) return true;
    warn(noKeyAdvice(code));
    return false;
}

/// Empty after a failure, and for keys that do not exist.
std::optional<HeldKey> Machine::heldKey(const Value& value) {
    if (const auto* constant = value.as<Modifier>()) return HeldModifier{constant->modifier};
    if (const auto* text = value.as<std::string>()) {
        if (text->empty()) return std::nullopt;
        return HeldText{*text};
    }
    const std::optional<std::uint32_t> code = keyCodeOf(value);
    if (!code || !isPlayable(*code)) return std::nullopt;
    return HeldCode{*code};
}

template <typename Step>
void Machine::step(Step&& step) {
    InjectionSession* open = session();
    if (open == nullptr) return;
    const Result<RunState> state = step(*open);
    if (!state) {
        failInjection(errornumber::handlerFailed, state.error());
    } else if (state.value() == RunState::cancelled) {
        cancel();
    }
}

/// Null after a failure.
InjectionSession* Machine::session() {
    if (m_session == nullptr) {
        Result<std::unique_ptr<InjectionSession>> opened = m_injector.open({m_program.typedTexts});
        if (!opened) {
            failInjection(errornumber::notAllowed, opened.error());
        } else {
            m_session = std::move(opened).value();
        }
    }
    return m_session.get();
}

void Machine::cancel() {
    m_result = RunResult{RunEnd::cancelled, ScriptError{errornumber::userCancelled, "User canceled.",
                                                        locate(m_program.source, m_offset)}};
}

void Machine::fail(Failure failure) {
    if (m_result) return;
    m_result = RunResult{RunEnd::failed, ScriptError{failure.number, std::move(failure.message),
                                                     locate(m_program.source, m_offset)}};
}

void Machine::failInjection(int number, const Error& error) {
    const std::string hint = error.hint.empty() ? "" : " " + error.hint;
    fail({number, "System Events got an error: " + error.message + hint});
}

void Machine::warn(std::string message) {
    if (!m_warningHandler || !m_warned.emplace(m_offset, message).second) return;
    m_warningHandler({std::move(message), locate(m_program.source, m_offset)});
}

}  // namespace script
