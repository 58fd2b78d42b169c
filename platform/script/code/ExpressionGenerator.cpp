// SPDX-License-Identifier: MIT
#include "platform/script/code/ExpressionGenerator.h"

#include <array>
#include <utility>
#include <vector>

#include "platform/script/code/CommandGenerator.h"
#include "platform/script/source/Literal.h"
#include "platform/script/source/Scoped.h"
#include "platform/script/syntax/Operators.h"

namespace script {
namespace {

BinaryOperator operatorOf(const Node& node) { return static_cast<BinaryOperator>(node.detail); }

ElementForm formOf(const Node& processes) {
    return static_cast<ElementForm>(processes.detail & processnode::formMask);
}

bool isShortCircuit(const Node& node) {
    return node.kind == NodeKind::binary &&
           (operatorOf(node) == BinaryOperator::both || operatorOf(node) == BinaryOperator::either);
}

/// A node without parts, whose value is the operand.
struct Leaf {
    NodeKind kind;
    Operation operation;
    std::uint8_t detail = 0;
};

constexpr auto leaves = std::to_array<Leaf>({
    {NodeKind::integer, Operation::pushInteger},
    {NodeKind::text, Operation::pushText},
    {NodeKind::truth, Operation::pushTruth},
    {NodeKind::real, Operation::pushReal},
    {NodeKind::missingValue, Operation::pushMissing},
    {NodeKind::modifierDown, Operation::pushModifier, 1},
    {NodeKind::modifierKey, Operation::pushModifier, 0},
    {NodeKind::result, Operation::pushResult},
    {NodeKind::delimiters, Operation::pushDelimiters},
});

}  // namespace

void ExpressionGenerator::expression(NodeId id) {
    statementValue(id);
    requireValue(m_tree.at(id));
}

void ExpressionGenerator::expressionAs(NameRole role, NodeId id) {
    const Node& node = m_tree.at(id);
    const bool isNamed = node.kind == NodeKind::application || node.kind == NodeKind::process;
    nameAs(role, isNamed && node.firstChild != noNode ? m_tree.at(node.firstChild).offset : node.offset);
    expression(id);
}

void ExpressionGenerator::typedExpression(NodeId id) {
    const Scoped<NameRole> parts(m_partRole, NameRole::joinedText);
    expressionAs(NameRole::text, id);
}

void ExpressionGenerator::nameAs(NameRole role, std::uint32_t offset) {
    m_role = role;
    m_roleOffset = offset;
}

void ExpressionGenerator::requireValue(const Node& node) {
    const bool mayBeNothing =
        node.kind == NodeKind::call || node.kind == NodeKind::callTo || node.kind == NodeKind::command;
    if (mayBeNothing) m_out.emit(Operation::requireValue, node);
}

void ExpressionGenerator::statementValue(NodeId id) {
    const std::size_t outer = m_begun.size();
    for (NodeId part = id; part != noNode; part = firstPart(m_tree.at(part))) m_begun.push_back(part);
    for (;;) {
        const Node& node = m_tree.at(m_begun.back());
        m_begun.pop_back();
        behindFirstPart(node);
        if (m_begun.size() == outer) return;
        requireValue(node);
    }
}

/// What is worked out before all else that the node needs; `noNode` if nothing is.
NodeId ExpressionGenerator::firstPart(const Node& node) const {
    switch (node.kind) {
        case NodeKind::application:
        case NodeKind::binary:
        case NodeKind::callTo:
        case NodeKind::characterId:
        case NodeKind::coercion:
        case NodeKind::contentsOf:
        case NodeKind::inversion:
        case NodeKind::negation:
        case NodeKind::process:
        case NodeKind::propertyOf:
            return node.firstChild;
        case NodeKind::element:
            return containerOf(node);
        case NodeKind::textBetween:
            return m_tree.at(m_tree.at(node.firstChild).nextSibling).nextSibling;
        default:
            return noNode;
    }
}

/// The last child; `noNode` for `it`.
NodeId ExpressionGenerator::containerOf(const Node& element) const {
    if ((element.value & elementnode::hasContainer) == 0) return noNode;
    NodeId id = element.firstChild;
    while (m_tree.at(id).nextSibling != noNode) id = m_tree.at(id).nextSibling;
    return id;
}

/// The node itself, where its first part is on the stack already.
void ExpressionGenerator::behindFirstPart(const Node& node) {
    if (leaf(node) || target(node)) return;
    switch (node.kind) {
        case NodeKind::list:
            return items(node, Operation::pushList);
        case NodeKind::record:
            return record(node);
        case NodeKind::negation:
            return m_out.emit(Operation::negate, node);
        case NodeKind::inversion:
            return m_out.emit(Operation::invert, node);
        case NodeKind::coercion:
            return coercion(node);
        case NodeKind::element:
            return element(node, Operation::getElement);
        case NodeKind::textBetween:
            return textBetween(node);
        case NodeKind::propertyOf:
            return property(node);
        case NodeKind::processes:
            return processes(node);
        case NodeKind::referenceTo:
            return referenceTo(node);
        case NodeKind::contentsOf:
            return m_out.emit(Operation::getContents, node);
        case NodeKind::characterId:
            return m_out.emit(Operation::characterId, node);
        case NodeKind::call:
            return call(node, false);
        case NodeKind::callTo:
            return call(m_tree.at(m_tree.at(node.firstChild).nextSibling), true);
        case NodeKind::command:
            return CommandGenerator(m_out, *this).command(node);
        default:
            return binary(node);
    }
}

/// What one instruction gives.
bool ExpressionGenerator::leaf(const Node& node) {
    if (node.kind == NodeKind::name && m_asksProcess && names::isOfProcess(m_tree.names.at(node.value))) {
        m_out.emit(Operation::pushIt, node);
        m_out.emit(Operation::getProperty, node, node.value);
        return true;
    }
    if (node.kind == NodeKind::name) {
        load(node.value, node);
        return true;
    }
    if (node.kind == NodeKind::predefined) {
        predefined(node);
        return true;
    }
    const auto* row = std::find_if(leaves.begin(), leaves.end(),
                                   [&](const Leaf& candidate) { return candidate.kind == node.kind; });
    if (row == leaves.end()) return false;
    m_out.emit(row->operation, node, node.value, row->detail);
    return true;
}

/// What `tell` may address.
bool ExpressionGenerator::target(const Node& node) {
    switch (node.kind) {
        case NodeKind::me:
        case NodeKind::appleScript:
            m_out.emit(Operation::pushMe, node);
            return true;
        case NodeKind::it:
            m_out.emit(Operation::pushIt, node);
            return true;
        case NodeKind::application:
            if (node.firstChild != noNode) {
                m_out.emit(Operation::makeApplication, node);
            } else {
                m_out.emit(Operation::pushApplication, node, node.value, node.detail);
            }
            return true;
        case NodeKind::process:
            m_out.emit(Operation::makeProcess, node);
            return true;
        default:
            return false;
    }
}

/// Of several processes, that of each.
void ExpressionGenerator::property(const Node& node) {
    const Node& owner = m_tree.at(node.firstChild);
    const bool isOfEach = owner.kind == NodeKind::processes && !isVariable(owner) &&
                          formOf(owner) == ElementForm::every &&
                          names::isOfProcess(m_tree.names.at(node.value));
    m_out.emit(isOfEach ? Operation::getPropertyOfEach : Operation::getProperty, node, node.value);
}

/// `processes`, where the script has a variable of that name.
bool ExpressionGenerator::isVariable(const Node& processes) const {
    return (processes.detail & processnode::isBare) != 0 && m_out.scope().knows(processes.value);
}

/// All in a list, or those for which the condition holds; or one out of it.
void ExpressionGenerator::processes(const Node& node) {
    if (isVariable(node)) return load(node.value, node);
    const ElementForm form = formOf(node);
    const NodeId index = form == ElementForm::index ? node.firstChild : noNode;
    const NodeId condition = index == noNode ? node.firstChild : m_tree.at(index).nextSibling;
    if (condition == noNode) {
        m_out.emit(Operation::pushProcesses, node);
    } else {
        filteredProcesses(node, condition);
    }
    if (form == ElementForm::every) return;
    if (index != noNode) expression(index);
    const auto kind = static_cast<unsigned>(ElementKind::item) << elementnode::kindShift;
    m_out.emit(Operation::getElement, node, 0, static_cast<std::uint8_t>(kind | static_cast<unsigned>(form)));
}

/// Each is `it` while the condition is asked. Those kept lie below the list, its length and the index.
void ExpressionGenerator::filteredProcesses(const Node& node, NodeId condition) {
    m_out.emit(Operation::pushList, node);
    m_out.emit(Operation::pushProcesses, node);
    m_out.emit(Operation::beginList, node);
    const std::uint32_t start = m_out.position();
    const std::uint32_t leave = m_out.emitJump(Operation::nextInList, node);
    m_out.emit(Operation::pushTarget, node);
    const Scoped<bool> asks(m_asksProcess, true);
    expression(condition);
    m_out.emit(Operation::popTarget, node);
    m_out.emit(Operation::keepItem, m_tree.at(condition));
    m_out.emit(Operation::jump, node, start);
    m_out.land(leave);
    for (int i = 0; i < 3; ++i) m_out.emit(Operation::drop, node);
}

void ExpressionGenerator::load(NameId name, const Node& node) {
    const Place place = m_out.scope().placeOf(name);
    const NameRole role = node.offset == m_roleOffset ? m_role : m_partRole;
    m_out.scope().noteRead(place, node.offset, role);
    m_out.emit(place.isGlobal ? Operation::loadGlobal : Operation::loadLocal, node, place.slot);
}

/// A class, unless there is a variable of that name.
void ExpressionGenerator::predefined(const Node& node) {
    if (m_out.scope().knows(node.value)) return load(node.value, node);
    m_out.emit(Operation::pushPredefined, node, 0, node.detail);
}

void ExpressionGenerator::items(const Node& node, Operation operation) {
    std::uint32_t count = 0;
    for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
        expression(item);
        ++count;
    }
    m_out.emit(operation, node, count);
}

void ExpressionGenerator::record(const Node& node) {
    std::vector<NameId> shape;
    for (NodeId field = node.firstChild; field != noNode; field = m_tree.at(field).nextSibling) {
        expression(m_tree.at(field).firstChild);
        shape.push_back(m_tree.at(field).value);
    }
    auto& shapes = m_out.code().shapes;
    shapes.push_back(std::move(shape));
    m_out.emit(Operation::pushRecord, node, static_cast<std::uint32_t>(shapes.size() - 1));
}

bool ExpressionGenerator::isNoNumber(const Node& node) const {
    return node.kind == NodeKind::text && !numberInText(m_tree.texts[node.value]);
}

/// Whether a text stands at the plus; of several in a row, only at the first one.
bool ExpressionGenerator::addsText(const Node& node) const {
    const Node& left = m_tree.at(node.firstChild);
    const bool mayTakeText = left.kind == NodeKind::name || left.kind == NodeKind::text ||
                             left.kind == NodeKind::integer || left.kind == NodeKind::element;
    return isNoNumber(left) || (mayTakeText && isNoNumber(m_tree.at(left.nextSibling)));
}

/// `x = "a"`
void ExpressionGenerator::noteComparedText(const Node& node) {
    const Node* name = &m_tree.at(node.firstChild);
    const Node* text = &m_tree.at(name->nextSibling);
    if (name->kind == NodeKind::text) std::swap(name, text);
    if (name->kind != NodeKind::name || text->kind != NodeKind::text) return;
    m_out.scope().noteText(name->value, name->offset, false);
}

void ExpressionGenerator::binary(const Node& node) {
    if (isShortCircuit(node)) return shortCircuit(node);
    if (operatorOf(node) == BinaryOperator::equal) noteComparedText(node);
    if (operatorOf(node) == BinaryOperator::plus && addsText(node))
        m_out.warn(node.offset, joinedTextsAdvice());
    expression(m_tree.at(node.firstChild).nextSibling);
    m_out.emit(Operation::binary, node, 0, node.detail);
}

/// The right side is not looked at where the left one decides.
void ExpressionGenerator::shortCircuit(const Node& node) {
    const bool both = operatorOf(node) == BinaryOperator::both;
    const std::uint32_t skip =
        m_out.emitJump(both ? Operation::skipUnlessTrue : Operation::skipUnlessFalse, node);
    expression(m_tree.at(node.firstChild).nextSibling);
    m_out.emit(Operation::expectTruth, node);
    m_out.land(skip);
}

void ExpressionGenerator::coercion(const Node& node) {
    if (node.value == 0) return m_out.emit(Operation::coerce, node, 0, node.detail);
    std::vector<Type> types;
    const Node& list = m_tree.at(m_tree.at(node.firstChild).nextSibling);
    for (NodeId type = list.firstChild; type != noNode; type = m_tree.at(type).nextSibling) {
        types.push_back(static_cast<Type>(m_tree.at(type).detail));
    }
    auto& typeLists = m_out.code().typeLists;
    typeLists.push_back(std::move(types));
    m_out.emit(Operation::coerceAny, node, static_cast<std::uint32_t>(typeLists.size() - 1));
}

/// An element without a container is one of `it`.
void ExpressionGenerator::element(const Node& node, Operation operation) {
    const bool isBare = (node.value & elementnode::isBare) != 0;
    const NameId name = node.value >> elementnode::nameShift;
    if (isBare && operation == Operation::getElement && m_out.scope().knows(name)) return load(name, node);
    const NodeId container = containerOf(node);
    if (container == noNode) m_out.emit(Operation::pushIt, node);
    for (NodeId id = node.firstChild; id != container; id = m_tree.at(id).nextSibling) expression(id);
    m_out.emit(operation, node, isBare ? 0 : name, node.detail);
}

void ExpressionGenerator::textBetween(const Node& node) {
    const Node& first = m_tree.at(node.firstChild);
    const Node& last = m_tree.at(first.nextSibling);
    if (last.nextSibling == noNode) m_out.emit(Operation::pushIt, node);
    expression(first.firstChild);
    expression(last.firstChild);
    m_out.emit(Operation::textBetween, node, first.detail | (std::uint32_t{last.detail} << 8U));
}

/// A reference to an element or a variable is kept as one; of all else the value is taken.
void ExpressionGenerator::referenceTo(const Node& node) {
    const Node& what = m_tree.at(node.firstChild);
    if (what.kind == NodeKind::name) return referenceToVariable(what);
    if (what.kind != NodeKind::element) return expression(node.firstChild);
    if (const NodeId container = containerOf(what); container != noNode) expression(container);
    element(what, Operation::makeReference);
}

/// It may be set by way of the reference.
void ExpressionGenerator::referenceToVariable(const Node& name) {
    const Place place = m_out.scope().placeOf(name.value);
    m_out.scope().noteSet(place);
    m_out.emit(Operation::referToVariable, name, place.slot, place.isGlobal ? 1 : 0);
}

void ExpressionGenerator::call(const Node& node, bool hasTarget) {
    Call call{.name = node.value, .isLabelled = node.detail != 0, .offset = node.offset};
    for (NodeId id = node.firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
        expression(m_tree.at(id).firstChild);
        call.labels.push_back(m_tree.at(id).value);
        ++call.count;
    }
    auto& calls = m_out.code().calls;
    calls.push_back(std::move(call));
    m_out.emit(Operation::call, node, static_cast<std::uint32_t>(calls.size() - 1), hasTarget ? 1 : 0);
}

void ExpressionGenerator::assign(NodeId target, const Node& statement) {
    const Node& node = m_tree.at(target);
    switch (node.kind) {
        case NodeKind::name:
        case NodeKind::predefined:
            return assignName(node.value, statement);
        case NodeKind::result:
            return m_out.emit(Operation::setResult, statement);
        case NodeKind::element:
            return assignElement(node, statement);
        case NodeKind::propertyOf:
            expression(node.firstChild);
            m_out.script().setProperty(node.value);
            return m_out.emit(Operation::setProperty, statement, node.value);
        case NodeKind::contentsOf:
            expression(node.firstChild);
            return m_out.emit(Operation::setContents, statement);
        case NodeKind::delimiters:
            return m_out.emit(Operation::setDelimiters, statement);
        default:
            return assignPattern(node, statement);
    }
}

void ExpressionGenerator::assignName(NameId name, const Node& node, Held held) {
    const Place place = m_out.scope().placeOf(name);
    m_out.scope().noteSet(place, held);
    m_out.emit(place.isGlobal ? Operation::storeGlobal : Operation::storeLocal, node, place.slot);
}

void ExpressionGenerator::assignElement(const Node& node, const Node& statement) {
    if ((node.value & elementnode::isBare) != 0)
        return assignName(node.value >> elementnode::nameShift, statement);
    if (const NodeId container = containerOf(node); container != noNode) expression(container);
    Node here = node;
    here.offset = statement.offset;
    element(here, Operation::setElement);
}

/// Each target takes its part of the value, which then goes.
void ExpressionGenerator::assignPattern(const Node& node, const Node& statement) {
    std::uint32_t index = 0;
    for (NodeId id = node.firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
        const Node& item = m_tree.at(id);
        if (item.kind == NodeKind::field) {
            m_out.emit(Operation::pickField, statement, item.value);
            assign(item.firstChild, statement);
        } else {
            m_out.emit(Operation::pick, statement, ++index);
            assign(id, statement);
        }
    }
    m_out.emit(Operation::drop, statement);
}

}  // namespace script
