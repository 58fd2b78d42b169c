// SPDX-License-Identifier: MIT
#include "platform/script/CodeGenerator.h"

#include <algorithm>
#include <utility>

#include "platform/script/Advice.h"

namespace script {

Program CodeGenerator::generate() {
    m_program.instructions.reserve(m_tree.nodes.size());
    m_program.reals = m_tree.reals;
    m_program.texts.assign(m_tree.texts.begin(), m_tree.texts.end());
    statements(m_tree.at(0).firstChild);
    return std::move(m_program);
}

void CodeGenerator::emit(Operation operation, const Node& node, std::uint32_t operand, std::uint8_t detail) {
    m_program.instructions.push_back({operation, detail, operand, node.offset});
}

void CodeGenerator::statements(NodeId first) {
    for (NodeId id = first; id != noNode; id = m_tree.at(id).nextSibling) statement(id);
}

void CodeGenerator::statement(NodeId id) {
    const Node& node = m_tree.at(id);
    switch (node.kind) {
        case NodeKind::tell:
            return tell(node);
        case NodeKind::keyCode:
            return command(Operation::keyCode, node);
        case NodeKind::keystroke:
            return command(Operation::keystroke, node);
        case NodeKind::keyDown:
            return command(Operation::keyDown, node);
        case NodeKind::keyUp:
            return command(Operation::keyUp, node);
        case NodeKind::delay:
            return delay(node);
        case NodeKind::repeat:
        case NodeKind::repeatTimes:
            return repeat(node);
        case NodeKind::exitRepeat:
            m_exits.push_back(position());
            return emit(Operation::jump, node);
        default:
            expression(node.firstChild);
            return emit(Operation::drop, node);
    }
}

void CodeGenerator::tell(const Node& node) {
    const Node& target = m_tree.at(node.firstChild);
    if (target.kind == NodeKind::process) {
        expression(target.firstChild);
        emit(Operation::drop, target);
    } else if (target.detail == 0) {
        emit(Operation::reachApplication, target, target.value);
    }
    statements(target.nextSibling);
}

void CodeGenerator::command(Operation operation, const Node& node) {
    const NodeId modifiers = m_tree.at(node.firstChild).nextSibling;
    if (modifiers != noNode) expression(modifiers);
    const std::size_t firstText = position();
    expression(node.firstChild);
    if (operation != Operation::keyCode) {
        for (std::size_t i = firstText; i < position(); ++i) {
            const Instruction& instruction = m_program.instructions[i];
            if (instruction.operation != Operation::pushText) continue;
            m_program.typedTexts.push_back(m_program.texts[instruction.operand]);
        }
    }
    if (operation != Operation::keystroke) warnOfCodes(node.firstChild);
    if (modifiers != noNode) warnOfModifiers(modifiers);
    emit(operation, node, 0, modifiers == noNode ? 0 : 1);
}

void CodeGenerator::delay(const Node& node) {
    if (node.firstChild == noNode) {
        emit(Operation::pushInteger, node);
    } else {
        expression(node.firstChild);
    }
    emit(Operation::delay, node);
}

/// The counter lies on the stack while the loop runs; whichever way the loop ends, it is dropped there.
void CodeGenerator::repeat(const Node& node) {
    const bool counted = node.kind == NodeKind::repeatTimes;
    NodeId body = node.firstChild;
    if (counted) {
        expression(node.firstChild);
        emit(Operation::makeCount, m_tree.at(node.firstChild));
        body = m_tree.at(node.firstChild).nextSibling;
    }
    std::vector<std::uint32_t> outerExits = std::exchange(m_exits, {});
    const std::uint32_t start = position();
    if (counted) {
        m_exits.push_back(start);
        emit(Operation::countDown, node);
    }
    statements(body);
    emit(Operation::jumpBack, node, start);
    for (const std::uint32_t exit : m_exits) m_program.instructions[exit].operand = position();
    m_exits = std::move(outerExits);
    if (counted) emit(Operation::drop, node);
}

void CodeGenerator::expression(NodeId id) {
    const Node& node = m_tree.at(id);
    switch (node.kind) {
        case NodeKind::integer:
            return emit(Operation::pushInteger, node, node.value);
        case NodeKind::real:
            return emit(Operation::pushReal, node, node.value);
        case NodeKind::text:
            return emit(Operation::pushText, node, node.value);
        case NodeKind::modifierDown:
            return emit(Operation::pushModifier, node, node.value, 1);
        case NodeKind::modifierKey:
            return emit(Operation::pushModifier, node, node.value, 0);
        case NodeKind::name:
            return emit(Operation::pushVariable, node, node.value);
        case NodeKind::list:
            return list(node);
        case NodeKind::negation:
            expression(node.firstChild);
            return emit(Operation::negate, node);
        default:
            return binary(id);
    }
}

void CodeGenerator::list(const Node& node) {
    std::uint32_t count = 0;
    for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
        expression(item);
        ++count;
    }
    emit(Operation::pushList, node, count);
}

/// A chain of operators leans to the left, however long it is: it is walked down and back, not descended by
/// recursion.
void CodeGenerator::binary(NodeId id) {
    std::vector<NodeId> chain;
    NodeId leftmost = id;
    while (m_tree.at(leftmost).kind == NodeKind::binary) {
        chain.push_back(leftmost);
        leftmost = m_tree.at(leftmost).firstChild;
    }
    expression(leftmost);
    std::for_each(chain.rbegin(), chain.rend(), [&](NodeId link) {
        const Node& node = m_tree.at(link);
        expression(m_tree.at(node.firstChild).nextSibling);
        emit(Operation::binary, node, 0, node.detail);
    });
}

void CodeGenerator::warnOfCodes(NodeId codes) {
    const Node& node = m_tree.at(codes);
    if (node.kind == NodeKind::integer) {
        if (auto advice = codeAdvice(node.value); !advice.empty()) warn(node, std::move(advice));
    } else if (node.kind == NodeKind::list) {
        for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling)
            warnOfCodes(item);
    }
}

void CodeGenerator::warnOfModifiers(NodeId modifiers) {
    const Node& node = m_tree.at(modifiers);
    if (node.kind == NodeKind::modifierKey) {
        warn(node, modifierAdvice({node.value, false}));
    } else if (node.kind == NodeKind::list) {
        for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
            warnOfModifiers(item);
        }
    }
}

void CodeGenerator::warn(const Node& node, std::string message) {
    if (m_program.warnings.size() >= maxWarnings) return;
    m_program.warnings.push_back({std::move(message), m_locator.at(node.offset)});
}

}  // namespace script
