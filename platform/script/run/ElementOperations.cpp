// SPDX-License-Identifier: MIT
//
// Operations on what lies in lists, records and texts.
#include "platform/Utf8.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/run/Execution.h"
#include "platform/script/run/OperationTable.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Node.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/Elements.h"
#include "platform/script/values/Properties.h"
#include "platform/script/values/SourceForm.h"

namespace script {
namespace {

Element elementFrom(std::uint32_t detail, std::uint32_t type) {
    Element element;
    element.kind = static_cast<ElementKind>(detail >> elementnode::kindShift);
    element.form = static_cast<ElementForm>(detail & elementnode::formMask);
    element.type = static_cast<Type>(type);
    return element;
}

std::size_t indexCount(const Element& element) {
    if (element.form == ElementForm::range) return 2;
    return element.form == ElementForm::index ? 1 : 0;
}

/// Takes the indices off the stack; false after a failure.
bool takeIndices(Execution& run, Element& element) {
    const std::size_t count = indexCount(element);
    if (!run.resolveTop(count)) return false;
    for (std::size_t i = count; i > 0; --i) {
        const Value value = run.pop();
        const std::optional<std::int32_t> index = integerOf(value);
        if (!index) {
            run.fail(cannotMake(value, "integer"));
            return false;
        }
        (i == 2 ? element.last : element.first) = *index;
    }
    return true;
}

/// `some` is an index by chance; false where there is nothing to choose from.
bool choose(Execution& run, const Value& container, Element& element) {
    if (element.form != ElementForm::some) return true;
    const auto count = countElements(container, element, run.textRules());
    if (!count || *count == 0) {
        run.fail(cannotGet(sourceForm(element) + " of " + quotedForm(container)));
        return false;
    }
    std::uniform_int_distribution<std::size_t> places(1, *count);
    element.form = ElementForm::index;
    element.first = static_cast<std::int32_t>(places(run.random()));
    return true;
}

/// Texts are cut up to find an element, unless that is a character; of lists what is asked for is copied.
void workFor(Execution& run, const Value& container, const Element& element) {
    const bool isCharacter = element.kind == ElementKind::character || element.kind == ElementKind::item;
    const std::string_view* text = container.text();
    if (text != nullptr && !isCharacter) return run.work(text->size() / 16);
    const bool isOne = element.form == ElementForm::index || element.form == ElementForm::middle;
    if (!isOne || element.kind == ElementKind::typed) run.workOn(container);
}

void getElement(Execution& run, const Instruction& here) {
    Element element = elementFrom(here.detail, here.operand);
    if (!takeIndices(run, element)) return;
    const Value container = run.popResolved();
    if (run.hasFailed() || !choose(run, container, element)) return;
    workFor(run, container, element);
    if (container.target() != nullptr && container.target()->kind == TargetBody::Kind::script) {
        return run.fail(cannotGet(sourceForm(element)));
    }
    run.pushOrFail(elementOf(container, element, run.textRules()));
}

void makeReference(Execution& run, const Instruction& here) {
    Element element = elementFrom(here.detail, here.operand);
    if (!takeIndices(run, element)) return;
    const Value container = run.popResolved();
    if (run.hasFailed() || !choose(run, container, element)) return;
    run.push(Value{makeShared<ReferenceBody>(container, element)});
}

bool isContainer(const Value& value) {
    return value.list() != nullptr || value.record() != nullptr || value.reference() != nullptr;
}

void setElementOperation(Execution& run, const Instruction& here) {
    Element element = elementFrom(here.detail, here.operand);
    if (!takeIndices(run, element)) return;
    const Value container = run.popResolved();
    if (run.hasFailed() || !choose(run, container, element)) return;
    const Value value = run.pop();
    if (auto set = setElement(container, element, value); !set) return run.fail(std::move(set).error());
    if (isContainer(value)) run.holdsContainer(container);
}

void textBetweenOperation(Execution& run, const Instruction& here) {
    Element last = elementFrom((here.operand >> 8U) & 0xFFU, 0);
    Element first = elementFrom(here.operand & 0xFFU, 0);
    if (!takeIndices(run, last) || !takeIndices(run, first)) return;
    const Value container = run.popResolved();
    if (!run.hasFailed()) run.pushOrFail(textBetween(container, first, last, run.textRules()));
}

bool isScript(const Value& value) {
    return value.target() != nullptr && value.target()->kind == TargetBody::Kind::script;
}

/// Whether a property is one of applications and processes that the desktop knows.
bool isStateOf(const Value& container, const Name& name) {
    const TargetBody* target = container.target();
    return target != nullptr && target->kind != TargetBody::Kind::script && &name != &names::nameProperty &&
           names::isOfProcess(name);
}

/// What runs has a window, but for System Events, which is this program.
bool stateOf(Execution& run, const TargetBody& target, const Name& name) {
    const bool isSystemEvents = target.kind == TargetBody::Kind::systemEvents;
    if (&name == &names::backgroundOnly) return isSystemEvents;
    if (isSystemEvents) return &name == &names::running;
    const std::string_view called = target.name.str();
    return &name == &names::frontmost ? run.desktop().isInFront(called)
                                      : run.desktop().hasApplication(called);
}

/// A process is brought to the front; which one comes instead is not for the script to say.
void setFrontmost(Execution& run, const Value& container, const Value& value) {
    const std::optional<bool> truth = conditionOf(value);
    if (!truth) return run.fail(cannotMake(value, "boolean"));
    const TargetBody& target = *container.target();
    if (!*truth || target.kind == TargetBody::Kind::systemEvents) return;
    if (!run.desktop().hasApplication(target.name.str())) return run.fail(cannotGet(quotedForm(container)));
    const Result<void> raised = run.desktop().activate(target.name.str());
    if (!raised) run.fail(desktopFailure(raised.error()));
}

void getProperty(Execution& run, const Instruction& here) {
    const Name& name = run.name(here.operand);
    const Value container = run.popResolved();
    if (run.hasFailed()) return;
    if (isStateOf(container, name)) return run.push(Value{stateOf(run, *container.target(), name)});
    if (&name != &names::length && &name != &names::beginning && &name != &names::end) run.workOn(container);
    if (!isScript(container) || &name == &names::classProperty) {
        Fallible<Value> found = propertyOf(container, name);
        if (!found && container.date() != nullptr)
            return run.fail({found.error().number, found.error().message, datePartAdvice()});
        return run.pushOrFail(std::move(found));
    }
    const Value* variable = run.findGlobal(name);
    if (variable != nullptr && variable->cell() != nullptr) variable = &variable->cell()->content;
    if (variable == nullptr || variable->is<Nothing>())
        return run.fail(cannotGet(shortened(sourceForm(name))));
    run.push(Value(*variable));
}

/// They are as they were listed, in their order.
void getPropertyOfEach(Execution& run, const Instruction& here) {
    const Name& name = run.name(here.operand);
    const Value processes = run.pop();
    List values;
    for (const Value& process : *processes.list()) {
        const TargetBody& target = *process.target();
        values.push_back(&name == &names::nameProperty ? Value{target.name}
                                                       : Value{stateOf(run, target, name)});
    }
    run.push(Value{std::move(values)});
}

void setPropertyOperation(Execution& run, const Instruction& here) {
    const Name& name = run.name(here.operand);
    const Value container = run.popResolved();
    if (run.hasFailed()) return;
    const Value value = run.pop();
    if (isScript(container)) {
        Value* variable = run.findGlobal(name);
        if (variable == nullptr) return run.fail(cannotSet(shortened(sourceForm(name)), value));
        (variable->cell() == nullptr ? *variable : variable->cell()->content) = value;
        return;
    }
    if (isStateOf(container, name) && &name == &names::frontmost) return setFrontmost(run, container, value);
    if (auto set = setProperty(container, name, value); !set) return run.fail(std::move(set).error());
    if (isContainer(value)) run.holdsContainer(container);
}

void getContents(Execution& run, const Instruction& /*unused*/) { run.resolveTop(1); }

void setContents(Execution& run, const Instruction& /*unused*/) {
    const Value reference = run.pop();
    const Value value = run.pop();
    const ReferenceBody* body = reference.reference();
    if (CellBody* cell = body == nullptr ? nullptr : body->container.cell()) {
        cell->content = value;
        if (isContainer(value)) run.holdsContainer(body->container);
        return;
    }
    if (body == nullptr) return run.fail(cannotSet("contents of " + quotedForm(reference), value));
    Fallible<Value> container = resolved(body->container);
    if (!container) return run.fail(std::move(container).error());
    auto set = setElement(container.value(), body->element, value);
    if (!set) return run.fail(std::move(set).error());
    if (isContainer(value)) run.holdsContainer(container.value());
}

bool isCharacter(std::int32_t point) {
    return point > 0 && point <= 0x10FFFF && (point < 0xD800 || point > 0xDFFF);
}

void characterId(Execution& run, const Instruction& /*unused*/) {
    const Value value = run.popResolved();
    if (run.hasFailed()) return;
    std::string text;
    for (const Value& item : itemsOf(value)) {
        const std::optional<std::int32_t> point = integerOf(item);
        if (!point) return run.fail(cannotMake(item, "integer"));
        if (!isCharacter(*point)) return run.fail(cannotGet("character id " + quotedForm(item)));
        appendUtf8(text, static_cast<char32_t>(*point));
    }
    run.push(Value{std::move(text)});
}

/// Part of what a pattern takes apart.
void pick(Execution& run, const Instruction& here) {
    if (!run.resolveTop(1)) return;
    Element element;
    element.first = static_cast<std::int32_t>(here.operand);
    run.pushOrFail(elementOf(run.top(), element, run.textRules()));
}

void pickField(Execution& run, const Instruction& here) {
    if (!run.resolveTop(1)) return;
    run.pushOrFail(propertyOf(run.top(), run.name(here.operand)));
}

}  // namespace

void addElementOperations(OperationTable& table) {
    const auto add = [&](Operation operation, Perform perform) {
        table[static_cast<std::size_t>(operation)] = perform;
    };
    add(Operation::getElement, getElement);
    add(Operation::setElement, setElementOperation);
    add(Operation::makeReference, makeReference);
    add(Operation::textBetween, textBetweenOperation);
    add(Operation::getProperty, getProperty);
    add(Operation::setProperty, setPropertyOperation);
    add(Operation::getPropertyOfEach, getPropertyOfEach);
    add(Operation::getContents, getContents);
    add(Operation::setContents, setContents);
    add(Operation::characterId, characterId);
    add(Operation::pick, pick);
    add(Operation::pickField, pickField);
}

}  // namespace script
