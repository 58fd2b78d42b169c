// SPDX-License-Identifier: MIT
#include "platform/script/code/CommandGenerator.h"

#include <array>
#include <utility>

#include "platform/script/code/ExpressionGenerator.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/commands/Command.h"

namespace script {

void CommandGenerator::command(const Node& node) {
    const Command& command = *commands()[node.value];
    const bool hasDirect = node.detail != 0;
    if (hasDirect) direct(node.firstChild, command);
    const NodeId first = hasDirect ? m_tree.at(node.firstChild).nextSibling : node.firstChild;
    const std::uint32_t mask = parameters(first, command) | (hasDirect ? 1 : 0);
    m_out.emit(Operation::command, node, node.value | (mask << 8U));
}

void CommandGenerator::direct(NodeId value, const Command& command) {
    const std::uint32_t start = m_out.position();
    m_expressions.expression(value);
    if (command.plays == Command::Plays::texts || command.plays == Command::Plays::keys) planTexts(start);
    if (command.plays == Command::Plays::codes || command.plays == Command::Plays::keys) warnOfCodes(value);
}

/// In the order of the table; the mask of those given, from bit 1 on.
std::uint32_t CommandGenerator::parameters(NodeId first, const Command& command) {
    std::array<NodeId, Command::maxParameters> given{};
    for (NodeId next = first; next != noNode; next = m_tree.at(next).nextSibling) {
        given[m_tree.at(next).value] = next;
    }
    std::uint32_t mask = 0;
    for (std::uint32_t i = 0; i < command.parameters.size(); ++i) {
        if (given[i] == noNode) continue;
        const NodeId value = m_tree.at(given[i]).firstChild;
        if (command.plays != Command::Plays::nothing) warnOfModifiers(value);
        m_expressions.expression(value);
        mask |= 2U << i;
    }
    return mask;
}

/// The literal texts of what was just emitted.
void CommandGenerator::planTexts(std::uint32_t from) {
    Bytecode& code = m_out.code();
    for (std::uint32_t i = from; i < m_out.position(); ++i) {
        const Instruction& instruction = code.instructions[i];
        if (instruction.operation != Operation::pushText) continue;
        code.typedTexts.push_back(code.texts[instruction.operand].str());
    }
}

void CommandGenerator::warnOfCodes(NodeId codes) {
    const Node& node = m_tree.at(codes);
    if (node.kind == NodeKind::integer) {
        if (auto advice = codeAdvice(node.value); !advice.empty()) m_out.warn(node, std::move(advice));
    } else if (node.kind == NodeKind::list) {
        for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
            warnOfCodes(item);
        }
    }
}

void CommandGenerator::warnOfModifiers(NodeId modifiers) {
    const Node& node = m_tree.at(modifiers);
    if (node.kind == NodeKind::modifierKey) {
        m_out.warn(node, modifierAdvice({node.value, false}));
    } else if (node.kind == NodeKind::list) {
        for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
            warnOfModifiers(item);
        }
    }
}

}  // namespace script
