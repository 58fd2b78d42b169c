// SPDX-License-Identifier: MIT
#include "platform/script/code/ExpressionGenerator.h"

#include <array>
#include <vector>

#include "platform/script/commands/Advice.h"
#include "platform/script/commands/Command.h"
#include "platform/script/syntax/Operators.h"

namespace script {
namespace {

BinaryOperator operatorOf(const Node& node) { return static_cast<BinaryOperator>(node.detail); }

bool isShortCircuit(const Node& node) {
    return node.kind == NodeKind::binary &&
           (operatorOf(node) == BinaryOperator::both || operatorOf(node) == BinaryOperator::either);
}

}  // namespace

void ExpressionGenerator::expression(NodeId id) {
    statementValue(id);
    requireValue(m_tree.at(id));
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
            return m_out.emit(Operation::getProperty, node, node.value);
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
            return command(node);
        default:
            return binary(node);
    }
}

/// What one instruction gives.
bool ExpressionGenerator::leaf(const Node& node) {
    switch (node.kind) {
        case NodeKind::integer:
            m_out.emit(Operation::pushInteger, node, node.value);
            return true;
        case NodeKind::real:
            m_out.emit(Operation::pushReal, node, node.value);
            return true;
        case NodeKind::text:
            m_out.emit(Operation::pushText, node, node.value);
            return true;
        case NodeKind::truth:
            m_out.emit(Operation::pushTruth, node, node.value);
            return true;
        case NodeKind::missingValue:
            m_out.emit(Operation::pushMissing, node);
            return true;
        case NodeKind::modifierDown:
            m_out.emit(Operation::pushModifier, node, node.value, 1);
            return true;
        case NodeKind::modifierKey:
            m_out.emit(Operation::pushModifier, node, node.value, 0);
            return true;
        case NodeKind::name:
            load(node.value, node);
            return true;
        case NodeKind::predefined:
            predefined(node);
            return true;
        case NodeKind::result:
            m_out.emit(Operation::pushResult, node);
            return true;
        case NodeKind::delimiters:
            m_out.emit(Operation::pushDelimiters, node);
            return true;
        default:
            return false;
    }
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

void ExpressionGenerator::load(NameId name, const Node& node) {
    const Place place = m_out.scope().placeOf(name);
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
    auto& shapes = m_out.program().shapes;
    shapes.push_back(std::move(shape));
    m_out.emit(Operation::pushRecord, node, static_cast<std::uint32_t>(shapes.size() - 1));
}

void ExpressionGenerator::binary(const Node& node) {
    if (isShortCircuit(node)) return shortCircuit(node);
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
    auto& typeLists = m_out.program().typeLists;
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

/// A reference to an element is kept as one; of all else the value is taken.
void ExpressionGenerator::referenceTo(const Node& node) {
    const Node& what = m_tree.at(node.firstChild);
    if (what.kind != NodeKind::element) return expression(node.firstChild);
    if (const NodeId container = containerOf(what); container != noNode) expression(container);
    element(what, Operation::makeReference);
}

void ExpressionGenerator::call(const Node& node, bool hasTarget) {
    Call call{node.value, node.detail != 0};
    for (NodeId id = node.firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
        expression(m_tree.at(id).firstChild);
        call.labels.push_back(m_tree.at(id).value);
        ++call.count;
    }
    auto& calls = m_out.program().calls;
    calls.push_back(std::move(call));
    m_out.emit(Operation::call, node, static_cast<std::uint32_t>(calls.size() - 1), hasTarget ? 1 : 0);
}

/// Arguments lie on the stack in the order of the command's table, the direct one first.
void ExpressionGenerator::command(const Node& node) {
    const Command& command = *commands()[node.value];
    std::uint32_t mask = 0;
    NodeId next = node.firstChild;
    std::array<NodeId, Command::maxParameters> given{};
    if (node.detail != 0) {
        mask = 1;
        const std::uint32_t start = m_out.position();
        expression(next);
        const bool types = command.plays == Command::Plays::texts || command.plays == Command::Plays::keys;
        if (types) planTexts(start);
        warnOf(command, next);
        next = m_tree.at(next).nextSibling;
    }
    for (; next != noNode; next = m_tree.at(next).nextSibling) given[m_tree.at(next).value] = next;
    for (std::uint32_t i = 0; i < command.parameters.size(); ++i) {
        if (given[i] == noNode) continue;
        const NodeId value = m_tree.at(given[i]).firstChild;
        if (command.plays != Command::Plays::nothing) warnOfModifiers(value);
        expression(value);
        mask |= 2U << i;
    }
    m_out.emit(Operation::command, node, node.value | (mask << 8U));
}

/// The literal texts of what was just emitted.
void ExpressionGenerator::planTexts(std::uint32_t from) {
    Program& program = m_out.program();
    for (std::uint32_t i = from; i < m_out.position(); ++i) {
        const Instruction& instruction = program.instructions[i];
        if (instruction.operation != Operation::pushText) continue;
        program.typedTexts.push_back(program.texts[instruction.operand].str());
    }
}

void ExpressionGenerator::warnOf(const Command& command, NodeId direct) {
    if (command.plays == Command::Plays::codes || command.plays == Command::Plays::keys) warnOfCodes(direct);
}

void ExpressionGenerator::warnOfCodes(NodeId codes) {
    const Node& node = m_tree.at(codes);
    if (node.kind == NodeKind::integer) {
        if (auto advice = codeAdvice(node.value); !advice.empty()) m_out.warn(node, std::move(advice));
    } else if (node.kind == NodeKind::list) {
        for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
            warnOfCodes(item);
        }
    }
}

void ExpressionGenerator::warnOfModifiers(NodeId modifiers) {
    const Node& node = m_tree.at(modifiers);
    if (node.kind == NodeKind::modifierKey) {
        m_out.warn(node, modifierAdvice({node.value, false}));
    } else if (node.kind == NodeKind::list) {
        for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
            warnOfModifiers(item);
        }
    }
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

void ExpressionGenerator::assignName(NameId name, const Node& node) {
    const Place place = m_out.scope().placeOf(name);
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
