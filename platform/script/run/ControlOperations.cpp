// SPDX-License-Identifier: MIT
//
// Operations that say what is done next: conditions, loops, errors, `tell`, attributes.
#include "platform/Sentence.h"
#include "platform/script/run/Execution.h"
#include "platform/script/run/OperationTable.h"
#include "platform/script/source/ScriptError.h"
#include "platform/script/syntax/Node.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/Elements.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

std::int64_t& counter(Value& value) { return std::get<std::int64_t>(value.content); }

void jump(Execution& run, const Instruction& here) { run.jump(here.operand); }

void jumpIfFalse(Execution& run, const Instruction& here) {
    const Value value = run.popResolved();
    if (run.hasFailed()) return;
    const std::optional<bool> condition = conditionOf(value);
    if (!condition) return run.fail(cannotMake(value, "boolean"));
    if (!*condition) run.jump(here.operand);
}

void makeCount(Execution& run, const Instruction& /*unused*/) {
    const Value value = run.popResolved();
    if (run.hasFailed()) return;
    const std::optional<std::int32_t> count = integerOf(value);
    if (!count) return run.fail(cannotMake(value, "integer"));
    run.push(Value{std::int64_t{*count}});
}

void countDown(Execution& run, const Instruction& here) {
    std::int64_t& count = counter(run.top());
    if (count < 1) return run.jump(here.operand);
    --count;
}

void beginRange(Execution& run, const Instruction& /*unused*/) {
    if (counter(run.top()) == 0)
        run.fail({errornumber::byScript, sentence("ScriptErrors", "The step of a repeat loop can’t be 0.")});
}

void nextInRange(Execution& run, const Instruction& here) {
    const std::int64_t step = counter(run.top());
    const std::int64_t last = counter(run.top(1));
    std::int64_t& next = counter(run.top(2));
    if (step > 0 ? next > last : next < last) return run.jump(here.operand);
    const std::int64_t current = next;
    next += step;
    run.push(numberValue(static_cast<double>(current), true));
}

/// Lists as they are, records by their values, texts by their characters.
void beginList(Execution& run, const Instruction& /*unused*/) {
    Value value = run.popResolved();
    if (run.hasFailed()) return;
    if (value.record() != nullptr) value = Value{itemsOf(value)};
    const auto count = countElements(value, Element(), run.textRules());
    if (!count) return run.fail(cannotMake(value, "list"));
    if (value.text() != nullptr && *count > 0) {
        Element every;
        every.form = ElementForm::every;
        Fallible<Value> characters = elementOf(value, every, run.textRules());
        if (!characters) return run.fail(std::move(characters).error());
        value = std::move(characters).value();
    }
    run.push(std::move(value));
    run.push(Value{static_cast<std::int64_t>(*count)});
    run.push(Value{std::int64_t{0}});
}

/// The variable is a reference to the item, not the item.
void nextInList(Execution& run, const Instruction& here) {
    std::int64_t& index = counter(run.top());
    if (index >= counter(run.top(1))) return run.jump(here.operand);
    Element element;
    element.first = static_cast<std::int32_t>(++index);
    run.push(Value{makeShared<ReferenceBody>(run.top(2), element)});
}

/// Below the condition lie the index of the item, the length of the list, the list, and those that were kept.
void keepItem(Execution& run, const Instruction& /*unused*/) {
    const Value value = run.popResolved();
    if (run.hasFailed()) return;
    const std::optional<bool> condition = conditionOf(value);
    if (!condition) return run.fail(cannotMake(value, "boolean"));
    if (!*condition) return;
    const auto place = static_cast<std::size_t>(counter(run.top())) - 1;
    run.top(3).list()->push_back((*run.top(2).list())[place]);
    (*run.top(3).as<Shared<ListBody>>())->didChange();
}

void pushTry(Execution& run, const Instruction& here) { run.pushTry(here.operand); }
void popTry(Execution& run, const Instruction& /*unused*/) { run.popTry(); }

void pushErrorPart(Execution& run, const Instruction& here) {
    const Failure& error = run.caught();
    const auto orMissing = [](const Value& value) { return value.is<Nothing>() ? Value{Missing()} : value; };
    switch (static_cast<ErrorPart>(here.detail)) {
        case ErrorPart::message:
            return run.push(Value{error.message.english()});
        case ErrorPart::number:
            return run.push(numberValue(error.number, true));
        case ErrorPart::from:
            return run.push(orMissing(error.from));
        case ErrorPart::partialResult:
            return run.push(error.partialResult.is<Nothing>() ? Value{List()} : error.partialResult);
        default:
            return run.push(orMissing(error.to));
    }
}

/// The parts lie on the stack in their order, the last one on top.
void raise(Execution& run, const Instruction& here) {
    const auto has = [&](ErrorPart part) { return (here.detail & (1U << static_cast<unsigned>(part))) != 0; };
    Failure failure;
    if (has(ErrorPart::to)) failure.to = run.popResolved();
    if (has(ErrorPart::partialResult)) failure.partialResult = run.popResolved();
    if (has(ErrorPart::from)) failure.from = run.popResolved();
    failure.number = errornumber::byScript;
    if (has(ErrorPart::number)) failure.number = static_cast<int>(counter(run.top()));
    if (has(ErrorPart::number)) run.drop();
    if (has(ErrorPart::message)) {
        Fallible<std::string> message = textOf(run.popResolved(), run.textRules().joint());
        if (!message) return run.fail(std::move(message).error());
        failure.message = std::move(message).value();
    } else {
        failure.message = standardMessage(failure.number);
    }
    run.fail(std::move(failure));
}

void rethrow(Execution& run, const Instruction& /*unused*/) { run.rethrow(); }

void pushTarget(Execution& run, const Instruction& /*unused*/) {
    Value value = run.popResolved();
    if (run.hasFailed()) return;
    const TargetBody* target = value.target();
    const bool isApplication = target != nullptr && target->kind == TargetBody::Kind::application;
    if (isApplication && !run.desktop().hasApplication(target->name.str())) {
        return run.fail(cannotGet(quotedForm(value)));
    }
    run.pushTarget(std::move(value));
}

void popTarget(Execution& run, const Instruction& /*unused*/) { run.popTarget(); }
void pushAttributes(Execution& run, const Instruction& here) { run.pushAttributes(here.operand); }
void popAttributes(Execution& run, const Instruction& /*unused*/) { run.popAttributes(); }

}  // namespace

void addControlOperations(OperationTable& table) {
    const auto add = [&](Operation operation, Perform perform) {
        table[static_cast<std::size_t>(operation)] = perform;
    };
    add(Operation::jump, jump);
    add(Operation::jumpIfFalse, jumpIfFalse);
    add(Operation::makeCount, makeCount);
    add(Operation::countDown, countDown);
    add(Operation::beginRange, beginRange);
    add(Operation::nextInRange, nextInRange);
    add(Operation::beginList, beginList);
    add(Operation::nextInList, nextInList);
    add(Operation::keepItem, keepItem);
    add(Operation::pushTry, pushTry);
    add(Operation::popTry, popTry);
    add(Operation::pushErrorPart, pushErrorPart);
    add(Operation::raise, raise);
    add(Operation::rethrow, rethrow);
    add(Operation::pushTarget, pushTarget);
    add(Operation::popTarget, popTarget);
    add(Operation::pushAttributes, pushAttributes);
    add(Operation::popAttributes, popAttributes);
}

}  // namespace script
