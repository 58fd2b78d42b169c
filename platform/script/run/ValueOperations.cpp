// SPDX-License-Identifier: MIT
//
// Operations that make values and calculate with them.
#include <unordered_map>

#include "platform/Sentence.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/run/Execution.h"
#include "platform/script/run/OperationTable.h"
#include "platform/script/source/SystemEvents.h"
#include "platform/script/source/Wording.h"
#include "platform/script/values/Arithmetic.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/Comparison.h"
#include "platform/script/values/Elements.h"
#include "platform/script/values/PredefinedNames.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

void pushNothing(Execution& run, const Instruction& /*unused*/) { run.push(Value()); }
void pushMissing(Execution& run, const Instruction& /*unused*/) { run.push(Value{Missing()}); }
void pushTruth(Execution& run, const Instruction& here) { run.push(Value{here.operand != 0}); }
void pushInteger(Execution& run, const Instruction& here) { run.push(Value{std::int64_t{here.operand}}); }
void pushReal(Execution& run, const Instruction& here) { run.push(Value{run.code().reals[here.operand]}); }
void pushText(Execution& run, const Instruction& here) { run.push(Value{run.code().texts[here.operand]}); }
void pushModifier(Execution& run, const Instruction& here) {
    run.push(Value{Modifier{here.operand, here.detail != 0}});
}
void pushPredefined(Execution& run, const Instruction& here) {
    run.push(valueOf(predefinedName(here.detail)));
}
void pushMe(Execution& run, const Instruction& /*unused*/) { run.push(run.me()); }
void pushIt(Execution& run, const Instruction& /*unused*/) { run.push(run.target()); }
void pushDelimiters(Execution& run, const Instruction& /*unused*/) { run.push(run.delimiters()); }

void failUndefined(Execution& run, const std::string& name, Sentence hint) {
    run.fail({errornumber::undefinedVariable,
              sentence("ScriptErrors", "The variable %1 is not defined.").arg(shortened(name)),
              std::move(hint)});
}

void failUndefined(Execution& run, NameId id) {
    const std::string& name = run.name(id).spelling;
    const auto known = run.code().advice.find(id);
    failUndefined(run, name,
                  known == run.code().advice.end() ? undefinedHint(name) : Sentence(known->second));
}

void pushResult(Execution& run, const Instruction& /*unused*/) {
    if (run.frame().result.is<Nothing>()) return failUndefined(run, "result", "");
    run.push(run.frame().result);
}

void pushApplication(Execution& run, const Instruction& here) {
    const auto kind = here.detail != 0 ? TargetBody::Kind::systemEvents : TargetBody::Kind::application;
    run.push(Value{makeShared<TargetBody>(kind, run.code().texts[here.operand])});
}

void makeNamed(Execution& run, TargetBody::Kind kind) {
    const Value name = run.popResolved();
    if (run.hasFailed()) return;
    Fallible<std::string> text = textOf(name);
    if (!text) return run.fail(std::move(text).error());
    const auto& spelled = text.value();
    const bool isApplication = kind == TargetBody::Kind::application;
    if (isApplication && isSystemEvents(spelled, false)) kind = TargetBody::Kind::systemEvents;
    run.push(Value{makeShared<TargetBody>(kind, Text(spelled))});
}

void makeApplication(Execution& run, const Instruction& /*unused*/) {
    makeNamed(run, TargetBody::Kind::application);
}

void pushProcesses(Execution& run, const Instruction& /*unused*/) {
    const Result<std::vector<std::string>> names = run.desktop().applications();
    if (!names) return run.fail(desktopFailure(names.error()));
    List processes;
    for (const std::string& name : names.value())
        processes.push_back(Value{makeShared<TargetBody>(TargetBody::Kind::process, Text(name))});
    run.push(Value{std::move(processes)});
}

/// A number is the index among all of them.
void makeProcess(Execution& run, const Instruction& here) {
    if (!run.resolveTop(1)) return;
    const bool isIndex = run.top().is<std::int64_t>();
    if (!isIndex) return makeNamed(run, TargetBody::Kind::process);
    Element element;
    element.first = *integerOf(run.pop());
    pushProcesses(run, here);
    if (!run.hasFailed()) run.pushOrFail(elementOf(run.pop(), element, run.textRules()));
}

void pushList(Execution& run, const Instruction& here) {
    run.work(here.operand);
    run.push(Value{run.popList(here.operand)});
}

void pushRecord(Execution& run, const Instruction& here) {
    const std::vector<NameId>& shape = run.code().shapes[here.operand];
    List values = run.popList(shape.size());
    std::vector<Field> fields;
    fields.reserve(shape.size());
    for (std::size_t i = 0; i < shape.size(); ++i)
        fields.push_back({&run.name(shape[i]), std::move(values[i])});
    run.push(Value{makeShared<RecordBody>(std::move(fields))});
}

/// What a variable holds: itself, or its cell, if a reference leads there.
Value& heldBy(Value& variable) {
    CellBody* cell = variable.cell();
    return cell == nullptr ? variable : cell->content;
}

void loadLocal(Execution& run, const Instruction& here) {
    const Value& value = heldBy(run.local(here.operand));
    if (value.is<Nothing>()) {
        const NameId id = run.handler().variables[here.operand];
        const bool isInHandler = &run.handler() != &run.code().handlers.front();
        const auto shared = run.code().adviceInHandlers.find(id);
        if (isInHandler && shared != run.code().adviceInHandlers.end())
            return failUndefined(run, run.name(id).spelling, shared->second);
        return failUndefined(run, id);
    }
    run.push(Value(value));
}

void loadGlobal(Execution& run, const Instruction& here) {
    const Value& value = heldBy(run.global(here.operand));
    if (value.is<Nothing>()) return failUndefined(run, run.code().globals[here.operand]);
    run.push(Value(value));
}

void storeLocal(Execution& run, const Instruction& here) {
    Value value = run.pop();
    heldBy(run.local(here.operand)) = std::move(value);
}

void storeGlobal(Execution& run, const Instruction& here) {
    Value value = run.pop();
    heldBy(run.global(here.operand)) = std::move(value);
}

/// From then on the variable holds a cell, which outlives it.
void referToVariable(Execution& run, const Instruction& here) {
    Value& variable = here.detail != 0 ? run.global(here.operand) : run.local(here.operand);
    if (variable.cell() == nullptr) {
        variable = Value{makeShared<CellBody>(std::move(variable))};
        run.holdsContainer(variable);
    }
    run.push(Value{makeShared<ReferenceBody>(variable, Element())});
}
void duplicate(Execution& run, const Instruction& /*unused*/) { run.push(Value(run.top())); }
void drop(Execution& run, const Instruction& /*unused*/) { run.drop(); }

/// Copies what lists and records hold. What they share, or hold of themselves, is shared in the copy, too.
class DeepCopy {
  public:
    bool isTooDeep() const { return m_isTooDeep; }
    /// Calls the function with each copy, if some of them may hold themselves.
    template <typename Function>
    void forEachOfCycles(const Function& function) const {
        if (!m_isShared) return;
        for (const auto& [original, copy] : m_copies) function(copy);
    }

    Value operator()(const Value& value) {
        if (value.list() != nullptr) return copied(value, value.as<Shared<ListBody>>()->get());
        if (value.record() != nullptr) return copied(value, value.record());
        if (const DateBody* date = value.date()) return Value{makeShared<DateBody>(date->seconds)};
        return value;
    }

  private:
    static constexpr int maxDepth = 500;

    Value copied(const Value& value, const Counted* body) {
        const auto known = m_copies.find(body);
        if (known != m_copies.end()) {
            m_isShared = true;
            return known->second;
        }
        if (++m_depth > maxDepth) m_isTooDeep = true;
        Value copy =
            value.list() != nullptr ? Value{List()} : Value{makeShared<RecordBody>(std::vector<Field>())};
        m_copies.emplace(body, copy);
        if (!m_isTooDeep) fill(copy, value);
        --m_depth;
        return copy;
    }

    void fill(const Value& copy, const Value& value) {
        if (const List* list = value.list()) {
            for (const Value& item : *list) copy.list()->push_back((*this)(item));
            (*copy.as<Shared<ListBody>>())->didChange();
        } else {
            for (const Field& field : value.record()->fields) {
                copy.record()->add({field.name, (*this)(field.value)});
            }
        }
    }

    std::unordered_map<const Counted*, Value> m_copies;
    int m_depth = 0;
    bool m_isTooDeep = false;
    bool m_isShared = false;
};

void deepCopy(Execution& run, const Instruction& /*unused*/) {
    const Value value = run.popResolved();
    if (run.hasFailed()) return;
    run.workOn(value);
    DeepCopy copy;
    run.push(copy(value));
    copy.forEachOfCycles([&](const Value& container) { run.holdsContainer(container); });
    if (copy.isTooDeep()) run.fail(standardFailure(errornumber::stackOverflow));
}

void negate(Execution& run, const Instruction& /*unused*/) {
    const Value value = run.popResolved();
    if (!run.hasFailed()) run.pushOrFail(negated(value));
}

/// Null after a failure.
const bool* truthOf(Execution& run, const Value& value) {
    const auto* truth = value.as<bool>();
    if (truth == nullptr) run.fail(cannotMake(value, "boolean"));
    return truth;
}

void invert(Execution& run, const Instruction& /*unused*/) {
    const Value value = run.popResolved();
    if (run.hasFailed()) return;
    if (const bool* truth = truthOf(run, value)) run.push(Value{!*truth});
}

void expectTruth(Execution& run, const Instruction& /*unused*/) {
    if (run.resolveTop(1)) truthOf(run, run.top());
}

void skipUnlessTrue(Execution& run, const Instruction& here) {
    if (!run.resolveTop(1)) return;
    const bool* truth = truthOf(run, run.top());
    if (truth == nullptr) return;
    if (*truth) return run.drop();
    run.jump(here.operand);
}

void skipUnlessFalse(Execution& run, const Instruction& here) {
    if (!run.resolveTop(1)) return;
    const bool* truth = truthOf(run, run.top());
    if (truth == nullptr) return;
    if (!*truth) return run.drop();
    run.jump(here.operand);
}

Fallible<Value> evaluated(BinaryOperator operation, const Value& left, const Value& right,
                          const TextRules& rules) {
    switch (operation) {
        case BinaryOperator::equal:
            return areEqual(left, right, rules);
        case BinaryOperator::less:
            return isOrdered(left, Ordering::less, right, rules);
        case BinaryOperator::lessOrEqual:
            return isOrdered(left, Ordering::lessOrEqual, right, rules);
        case BinaryOperator::greater:
            return isOrdered(left, Ordering::greater, right, rules);
        case BinaryOperator::greaterOrEqual:
            return isOrdered(left, Ordering::greaterOrEqual, right, rules);
        case BinaryOperator::contains:
            return holds(left, Containment::contains, right, rules);
        case BinaryOperator::isIn:
            return holds(right, Containment::contains, left, rules);
        case BinaryOperator::startsWith:
            return holds(left, Containment::startsWith, right, rules);
        case BinaryOperator::endsWith:
            return holds(left, Containment::endsWith, right, rules);
        case BinaryOperator::join:
            return joined(left, right, rules.joint());
        default:
            return calculated(operation, left, right);
    }
}

/// What may have been meant by a plus.
Failure advised(Failure failure, BinaryOperator operation, const Value& left) {
    if (operation != BinaryOperator::plus || failure.number != errornumber::cannotCoerce) return failure;
    if (left.text() != nullptr) failure.hint = joinedTextsAdvice();
    if (left.is<Modifier>()) failure.hint = joinedModifiersAdvice();
    return failure;
}

/// A text that became longer in its place cost no more than what was put behind it.
void workOnOperands(Execution& run, BinaryOperator operation, const Fallible<Value>& outcome) {
    const auto* left = run.top(1).as<Text>();
    const auto* joined = outcome ? outcome.value().as<Text>() : nullptr;
    const bool isInPlace = operation == BinaryOperator::join && left != nullptr && joined != nullptr &&
                           joined->sharesBytesOf(*left);
    if (!isInPlace) run.workOn(run.top(1));
    run.workOn(run.top());
}

void binary(Execution& run, const Instruction& here) {
    const auto operation = static_cast<BinaryOperator>(here.detail);
    // References are compared as what they are.
    if (operation != BinaryOperator::equal && !run.resolveTop(2)) return;
    Fallible<Value> outcome = evaluated(operation, run.top(1), run.top(), run.textRules());
    workOnOperands(run, operation, outcome);
    if (!outcome) return run.fail(advised(std::move(outcome).error(), operation, run.top(1)));
    run.drop();
    run.top() = std::move(outcome).value();
}

void coerce(Execution& run, const Instruction& here) {
    const auto type = static_cast<Type>(here.detail);
    if (type == Type::reference) return;
    const Value value = run.popResolved();
    run.workOn(value);
    if (!run.hasFailed()) run.pushOrFail(coerced(value, type, run.textRules().joint()));
}

/// The first class that the value has, or else the first that it can be made into.
void coerceAny(Execution& run, const Instruction& here) {
    const Value value = run.popResolved();
    if (run.hasFailed()) return;
    const std::vector<Type>& types = run.code().typeLists[here.operand];
    for (const Type type : types) {
        if (typeOf(value) == type) return run.push(value);
    }
    for (const Type type : types) {
        Fallible<Value> outcome = coerced(value, type, run.textRules().joint());
        if (outcome) return run.push(std::move(outcome).value());
    }
    run.fail(cannotMake(value, typeName(types.front())));
}

void setDelimiters(Execution& run, const Instruction& /*unused*/) {
    const Value value = run.popResolved();
    if (run.hasFailed()) return;
    std::vector<std::string> texts;
    for (const Value& item : itemsOf(value)) {
        const std::string_view* text = item.text();
        if (text == nullptr) return run.fail(cannotMake(value, "text"));
        texts.emplace_back(*text);
    }
    run.setDelimiters(value, std::move(texts));
}

void expectNumber(Execution& run, const Instruction& /*unused*/) {
    const Value value = run.popResolved();
    if (!run.hasFailed() && !numberOf(value)) run.fail(cannotMake(value, "number"));
}

}  // namespace

void addValueOperations(OperationTable& table) {
    const auto add = [&](Operation operation, Perform perform) {
        table[static_cast<std::size_t>(operation)] = perform;
    };
    add(Operation::pushNothing, pushNothing);
    add(Operation::pushMissing, pushMissing);
    add(Operation::pushTruth, pushTruth);
    add(Operation::pushInteger, pushInteger);
    add(Operation::pushReal, pushReal);
    add(Operation::pushText, pushText);
    add(Operation::pushModifier, pushModifier);
    add(Operation::pushPredefined, pushPredefined);
    add(Operation::pushMe, pushMe);
    add(Operation::pushIt, pushIt);
    add(Operation::pushResult, pushResult);
    add(Operation::pushApplication, pushApplication);
    add(Operation::pushDelimiters, pushDelimiters);
    add(Operation::makeApplication, makeApplication);
    add(Operation::makeProcess, makeProcess);
    add(Operation::pushProcesses, pushProcesses);
    add(Operation::referToVariable, referToVariable);
    add(Operation::pushList, pushList);
    add(Operation::pushRecord, pushRecord);
    add(Operation::loadLocal, loadLocal);
    add(Operation::loadGlobal, loadGlobal);
    add(Operation::storeLocal, storeLocal);
    add(Operation::storeGlobal, storeGlobal);
    add(Operation::duplicate, duplicate);
    add(Operation::drop, drop);
    add(Operation::deepCopy, deepCopy);
    add(Operation::negate, negate);
    add(Operation::invert, invert);
    add(Operation::binary, binary);
    add(Operation::skipUnlessTrue, skipUnlessTrue);
    add(Operation::skipUnlessFalse, skipUnlessFalse);
    add(Operation::expectTruth, expectTruth);
    add(Operation::coerce, coerce);
    add(Operation::coerceAny, coerceAny);
    add(Operation::setDelimiters, setDelimiters);
    add(Operation::expectNumber, expectNumber);
}

}  // namespace script
