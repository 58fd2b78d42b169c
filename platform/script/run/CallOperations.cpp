// SPDX-License-Identifier: MIT
//
// Operations that call handlers and commands.
#include <algorithm>

#include "platform/Sentence.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/commands/Command.h"
#include "platform/script/run/Execution.h"
#include "platform/script/run/OperationTable.h"
#include "platform/script/source/Wording.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

/// `{1, "a"}`: what a handler was called with.
std::string spelledArguments(Execution& run, std::size_t count) {
    const Value* first = run.topValues(count);
    return quotedForm(Value{List(first, first + count)});
}

std::string spelledParameters(const Execution& run, const Handler& handler) {
    std::string out = "{";
    for (const NameId name : handler.parameterNames) {
        out += (out.size() > 1 ? ", " : "") + sourceForm(run.name(name));
    }
    return shortened(out + "}", 200);
}

/// Puts the arguments into the order of the parameters; false after a failure.
bool orderByLabels(Execution& run, const Call& call, const Handler& handler) {
    Value* first = run.topValues(call.count);
    const List given(first, first + call.count);
    List ordered;
    for (const NameId label : handler.labels) {
        const auto found = std::find(call.labels.begin(), call.labels.end(), label);
        if (found == call.labels.end()) {
            run.fail(
                {errornumber::missingParameter, sentence("ScriptErrors", "Some parameter is missing for %1.")
                                                    .arg(shortened(run.name(call.name).spelling))});
            return false;
        }
        ordered.push_back(given[static_cast<std::size_t>(found - call.labels.begin())]);
    }
    run.popList(call.count);
    for (Value& value : ordered) run.push(std::move(value));
    return true;
}

void callHandler(Execution& run, const Call& call, std::uint32_t index) {
    const Handler& handler = run.code().handlers[index];
    if (call.isLabelled && handler.isLabelled) {
        if (!orderByLabels(run, call, handler)) return;
    } else if (call.count != handler.labels.size() || handler.isLabelled) {
        return run.fail({errornumber::wrongParameters,
                         sentence("ScriptErrors", "%1 doesn’t match the parameters %2 for %3.")
                             .arg(spelledArguments(run, call.count))
                             .arg(spelledParameters(run, handler))
                             .arg(shortened(run.name(call.name).spelling))});
    }
    run.enterHandler(index, handler.labels.size());
}

/// -1708, with what may have been meant.
Failure notUnderstood(const Value& target, const std::string& name, bool isOwn) {
    const TargetBody* body = target.target();
    const bool isScript = body != nullptr && body->kind == TargetBody::Kind::script;
    const bool isOther = body != nullptr && body->kind == TargetBody::Kind::application;
    const std::string speaker = isOther ? std::string(body->name.str()) : "System Events";
    Sentence message = sentence("ScriptErrors", "%1 doesn’t understand the “%2” message.")
                           .arg(quotedForm(target))
                           .arg(shortened(name));
    if (body != nullptr && !isScript) message = gotAnError(speaker, std::move(message));
    Failure failure{errornumber::notUnderstood, std::move(message)};
    if (isOwn) {
        failure.hint =
            sentence("Hints", "Inside “tell” the script’s own handlers are called with “my”: my %1(…).")
                .arg(shortened(sourceForm(name)));
    }
    if (isScript) failure.hint = noHandlerAdvice(name);
    return failure;
}

void call(Execution& run, const Instruction& here) {
    const Call& what = run.code().calls[here.operand];
    const Value target = here.detail != 0 ? *(run.topValues(what.count + 1)) : run.target();
    const bool isScript = target.target() != nullptr && target.target()->kind == TargetBody::Kind::script;
    if (!isScript || what.handler == 0) {
        return run.fail(notUnderstood(target, run.name(what.name).spelling, !isScript && what.handler != 0));
    }
    if (here.detail != 0) {
        List arguments = run.popList(what.count);
        run.drop();
        for (Value& argument : arguments) run.push(std::move(argument));
    }
    callHandler(run, what, what.handler);
}

void command(Execution& run, const Instruction& here) {
    const Command& what = *commands()[here.operand & 0xFFU];
    const std::uint32_t mask = here.operand >> 8U;
    std::size_t count = 0;
    for (std::uint32_t bits = mask; bits != 0; bits &= bits - 1) ++count;
    if (!run.resolveTop(count)) return;
    Fallible<Value> outcome = what.perform(run, Arguments(run.topValues(count), mask));
    run.popList(count);
    run.pushOrFail(std::move(outcome));
}

void requireValue(Execution& run, const Instruction& /*unused*/) {
    if (!run.top().is<Nothing>()) return;
    run.fail(standardFailure(errornumber::noResult));
}

void setResult(Execution& run, const Instruction& /*unused*/) { run.frame().result = run.pop(); }
void clearResult(Execution& run, const Instruction& /*unused*/) { run.frame().result = Value(); }

void returnValue(Execution& run, const Instruction& here) {
    run.leaveHandler(here.detail != 0 ? run.frame().result : run.pop());
}

/// The parameters lie on the stack already; the other variables have no values yet.
void enter(Execution& run, const Instruction& here) {
    run.addVariables(here.operand - run.handler().labels.size());
}

}  // namespace

void addCallOperations(OperationTable& table) {
    const auto add = [&](Operation operation, Perform perform) {
        table[static_cast<std::size_t>(operation)] = perform;
    };
    add(Operation::call, call);
    add(Operation::command, command);
    add(Operation::requireValue, requireValue);
    add(Operation::setResult, setResult);
    add(Operation::clearResult, clearResult);
    add(Operation::returnValue, returnValue);
    add(Operation::enter, enter);
}

}  // namespace script
