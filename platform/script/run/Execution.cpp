// SPDX-License-Identifier: MIT
#include "platform/script/run/Execution.h"

#include <algorithm>
#include <iterator>

#include "platform/Sentence.h"
#include "platform/script/run/OperationTable.h"
#include "platform/script/source/Wording.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// How much is done between two questions whether to stop: some tens of microseconds.
constexpr std::size_t workBetweenQuestions = 2000;

const Counted* containerOf(const Value& value) {
    if (const auto* list = value.as<Shared<ListBody>>()) return list->get();
    if (const auto* record = value.as<Shared<RecordBody>>()) return record->get();
    return value.cell();
}

Failure userCancelled() {
    Failure failure = standardFailure(errornumber::userCancelled);
    failure.isCancel = true;
    return failure;
}

/// With what to do about it.
Sentence whole(const Error& error) {
    if (error.hint.empty()) return error.message;
    //: Two sentences: what is wrong, and what to do about it.
    return sentence("ScriptErrors", "%1 %2").arg(error.message).arg(error.hint);
}

}  // namespace

Execution::Execution(const Bytecode& code, const MachineServices& services, RunListener listener,
                     double speed)
    : m_code(code),
      m_services(services),
      m_listener(std::move(listener)),
      m_speed(speed),
      m_globals(code.globals.size()),
      m_me(makeShared<TargetBody>(TargetBody::Kind::script, Text(""))),
      m_random(std::random_device{}()),
      m_memoryBefore(HeldMemory::bytes()),
      m_locator(code.source) {
    m_frames.emplace_back();
}

/// Lists and records that hold each other would hold each other for ever.
Execution::~Execution() {
    for (const Value& container : m_containers) {
        if (List* list = container.list()) {
            const List released = std::move(*list);
            list->clear();
        } else if (RecordBody* record = container.record()) {
            const std::vector<Field> released = std::move(record->fields);
            record->fields.clear();
        } else if (CellBody* cell = container.cell()) {
            const Value released = std::exchange(cell->content, Value());
        }
    }
}

RunResult run(const Program& program, const MachineServices& services, RunListener listener, double speed) {
    return Execution(program.code(), services, std::move(listener), speed).run();
}

RunResult Execution::run() {
    const auto& table = operationTable();
    const std::size_t& held = HeldMemory::bytes();
    while (!m_result) {
        const Instruction& instruction = m_code.instructions[m_next++];
        m_offset = instruction.offset;
        ++m_work;
        table[static_cast<std::size_t>(instruction.operation)](*this, instruction);
        if (held - m_memoryBefore > maxMemory && held > m_memoryBefore && !m_failure)
            fail(standardFailure(errornumber::outOfMemory));
        if (m_work >= workBetweenQuestions && !m_failure) askWhetherToStop();
        if (m_failure) unwind();
    }
    m_session.reset();
    return *std::move(m_result);
}

Value Execution::pop() {
    Value value = std::move(m_stack.back());
    m_stack.pop_back();
    return value;
}

Value Execution::popResolved() {
    Value value = pop();
    if (value.reference() == nullptr) return value;
    Fallible<Value> found = resolved(std::move(value));
    if (!found) {
        fail(std::move(found).error());
        return {};
    }
    return std::move(found).value();
}

bool Execution::resolveTop(std::size_t count) {
    for (std::size_t depth = 0; depth < count; ++depth) {
        Value& value = top(depth);
        if (value.reference() == nullptr) continue;
        Fallible<Value> found = resolved(value);
        if (!found) {
            fail(std::move(found).error());
            return false;
        }
        value = std::move(found).value();
    }
    return true;
}

void Execution::pushOrFail(Fallible<Value> outcome) {
    if (!outcome) return fail(std::move(outcome).error());
    push(std::move(outcome).value());
}

List Execution::popList(std::size_t count) {
    const auto first = m_stack.end() - static_cast<std::ptrdiff_t>(count);
    List items(std::make_move_iterator(first), std::make_move_iterator(m_stack.end()));
    m_stack.erase(first, m_stack.end());
    return items;
}

Value* Execution::findGlobal(const Name& wanted) {
    for (std::size_t slot = 0; slot < m_globals.size(); ++slot) {
        if (&name(m_code.globals[slot]) == &wanted) return &m_globals[slot];
    }
    return nullptr;
}

void Execution::workOn(const Value& value) {
    if (const std::string_view* text = value.text()) m_work += text->size() / 64;
    if (const List* list = value.list()) m_work += list->size() / 4;
}

void Execution::askWhetherToStop() {
    m_work = 0;
    if (auto going = goOn(); !going) fail(std::move(going).error());
}

// What others are asked for may take them any time: whether to stop is the next question.

ScriptDesktop& Execution::desktop() {
    work(workBetweenQuestions);
    m_services.injector.settle();
    return m_services.desktop;
}

ScriptDialogs& Execution::dialogs() {
    work(workBetweenQuestions);
    return m_services.dialogs;
}

Fallible<> Execution::goOn() {
    if (m_services.injector.isCancelled()) return userCancelled();
    return {};
}

void Execution::enterHandler(std::uint32_t index, std::size_t arguments) {
    if (m_frames.size() > maxFrames) return fail(standardFailure(errornumber::stackOverflow));
    Frame frame;
    frame.handler = index;
    frame.returnTo = static_cast<std::uint32_t>(m_next);
    frame.base = m_stack.size() - arguments;
    frame.tries = m_tries.size();
    frame.targets = m_targets.size();
    frame.attributes = m_attributes.size();
    m_frames.push_back(std::move(frame));
    jump(m_code.handlers[index].start);
}

void Execution::addVariables(std::size_t count) {
    if (m_stack.size() + count > maxStack) return fail(standardFailure(errornumber::stackOverflow));
    m_stack.resize(m_stack.size() + count);
}

/// What the handler had begun is undone.
void Execution::leaveHandler(Value value) {
    if (m_frames.size() == 1) return finish(value);
    const Frame frame = std::move(m_frames.back());
    m_frames.pop_back();
    m_stack.resize(frame.base);
    m_tries.resize(frame.tries);
    m_targets.resize(frame.targets);
    while (m_attributes.size() > frame.attributes) popAttributes();
    m_next = frame.returnTo;
    push(std::move(value));
}

void Execution::finish(const Value& value) {
    m_result = RunResult{RunEnd::finished, std::nullopt, sourceForm(value)};
}

void Execution::pushTry(std::uint32_t target) {
    m_tries.push_back({target, m_frames.size(), m_stack.size(), m_targets.size(), m_attributes.size()});
}

void Execution::pushAttributes(std::uint32_t bits) {
    m_attributes.push_back(m_rules.considered);
    m_rules.considered = static_cast<std::uint8_t>((m_rules.considered | bits) & ~(bits >> 8U));
}

void Execution::popAttributes() {
    m_rules.considered = m_attributes.back();
    m_attributes.pop_back();
}

void Execution::fail(Failure failure) {
    if (m_failure) return;
    m_failure = std::move(failure);
    m_failureOffset = m_offset;
}

void Execution::rethrow() {
    m_failure = m_caught;
    m_failureOffset = m_caughtOffset;
}

/// To the innermost `try`, or out of the run.
void Execution::unwind() {
    Failure failure = *std::move(m_failure);
    m_failure.reset();
    if (m_tries.empty() || failure.isCancel) {
        m_result = RunResult{failure.isCancel ? RunEnd::cancelled : RunEnd::failed,
                             ScriptError{failure.number, std::move(failure.message),
                                         locate(m_code.source, m_failureOffset), std::move(failure.hint)},
                             ""};
        return;
    }
    const Try innermost = m_tries.back();
    m_tries.pop_back();
    m_frames.resize(innermost.frames);
    m_stack.resize(innermost.stack);
    m_targets.resize(innermost.targets);
    while (m_attributes.size() > innermost.attributes) popAttributes();
    m_caught = std::move(failure);
    m_caughtOffset = m_failureOffset;
    m_next = innermost.target;
}

void Execution::holdsContainer(const Value& container) {
    if (!m_containers.empty() && containerOf(m_containers.back()) == containerOf(container)) return;
    if (m_containers.size() >= m_containersAllowed) {
        const auto unused = std::remove_if(m_containers.begin(), m_containers.end(), [](const Value& value) {
            const Counted* body = containerOf(value);
            return body != nullptr && body->owners() == 1;
        });
        m_containers.erase(unused, m_containers.end());
        m_containersAllowed = std::max<std::size_t>(1024, m_containers.size() * 2);
    }
    m_containers.push_back(container);
}

void Execution::setDelimiters(Value value, std::vector<std::string> texts) {
    m_delimiters = std::move(value);
    m_rules.delimiters = std::move(texts);
}

const Value& Execution::target() const {
    return m_targets.size() > m_frames.back().targets ? m_targets.back() : m_me;
}

Fallible<> Execution::play(const KeyStep& step) {
    const auto failed = [](int number, const Error& error) {
        return Failure{number, gotAnError("System Events", whole(error))};
    };
    if (m_session == nullptr) {
        auto opened = m_services.injector.open({m_code.typedTexts});
        if (!opened) return failed(errornumber::notAllowed, opened.error());
        m_session = std::move(opened).value();
    }
    const auto taken = step(*m_session);
    if (taken) return {};
    if (taken.error().isCancelled()) return userCancelled();
    return failed(errornumber::handlerFailed, *taken.error().error);
}

void Execution::warn(std::string message) {
    if (!m_listener.onWarning || m_warned.size() == maxWarnings) return;
    if (!m_warned.emplace(m_offset, message).second) return;
    m_listener.onWarning({std::move(message), m_locator.at(m_offset)});
}

void Execution::log(std::string line) {
    if (m_listener.onLog) m_listener.onLog(line);
}

}  // namespace script
