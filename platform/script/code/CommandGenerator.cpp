// SPDX-License-Identifier: MIT
#include "platform/script/code/CommandGenerator.h"

#include <array>
#include <utility>

#include "platform/script/code/ExpressionGenerator.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/commands/Command.h"
#include "platform/script/source/Literal.h"
#include "platform/script/values/BinaryOperator.h"

namespace script {
namespace {

NameRole roleOf(Command::Plays plays) {
    return plays == Command::Plays::codes ? NameRole::keyCode : NameRole::value;
}

bool joins(const Node& node) {
    return node.kind == NodeKind::binary && static_cast<BinaryOperator>(node.detail) == BinaryOperator::join;
}

}  // namespace

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
    if (command.plays == Command::Plays::texts) {
        m_expressions.typedExpression(value);
    } else {
        m_expressions.expressionAs(roleOf(command.plays), value);
    }
    if (command.plays == Command::Plays::pauses) return warnOfPause(value);
    if (command.plays == Command::Plays::texts || command.plays == Command::Plays::keys) planTexts(start);
    if (command.plays == Command::Plays::codes || command.plays == Command::Plays::keys) warnOfCodes(value);
    if (command.plays == Command::Plays::codes) warnOfTexts(value);
    if (command.plays == Command::Plays::texts || command.plays == Command::Plays::keys)
        warnOfNames(value, command);
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
        code.typedTexts.emplace_back(code.texts[instruction.operand].str());
    }
}

bool CommandGenerator::joinsModifiers(const Node& node) const {
    const auto operation = static_cast<BinaryOperator>(node.detail);
    const NodeKind left = m_tree.at(node.firstChild).kind;
    const bool isModifier = left == NodeKind::modifierDown || left == NodeKind::modifierKey;
    return isModifier && (operation == BinaryOperator::plus || operation == BinaryOperator::both);
}

void CommandGenerator::warnOfCodes(NodeId codes) {
    const Node& node = m_tree.at(codes);
    const Node& inner = node.kind == NodeKind::negation ? m_tree.at(node.firstChild) : node;
    if (inner.kind == NodeKind::integer) {
        const std::int64_t code = node.kind == NodeKind::negation ? -std::int64_t{inner.value} : inner.value;
        if (auto advice = codeAdvice(code); !advice.empty()) m_out.warn(node.offset, std::move(advice));
    } else if (node.kind == NodeKind::list) {
        for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
            warnOfCodes(item);
        }
    }
}

/// What is no number: a text, `true`, a modifier.
void CommandGenerator::warnOfTexts(NodeId codes) {
    const Node& node = m_tree.at(codes);
    if (node.kind == NodeKind::list) {
        for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
            warnOfTexts(item);
        }
    }
    const bool isText = node.kind == NodeKind::text && !numberInText(m_tree.texts[node.value]);
    const bool isOther = node.kind == NodeKind::truth || node.kind == NodeKind::modifierDown ||
                         node.kind == NodeKind::modifierKey || node.kind == NodeKind::record;
    if (isText) m_out.warn(node.offset, noCodeAdvice(m_tree.texts[node.value]));
    if (isOther) m_out.warn(node.offset, noCodeAdvice());
}

void CommandGenerator::warnOfPause(NodeId seconds) {
    const Node& node = m_tree.at(seconds);
    if (node.kind != NodeKind::text || numberInText(m_tree.texts[node.value])) return;
    m_out.warn(node.offset, pauseAdvice(m_tree.texts[node.value]));
}

/// A text, or one that is joined with others, that names what is to be pressed.
void CommandGenerator::warnOfNames(NodeId typed, const Command& command) {
    const bool isTyped = command.plays == Command::Plays::texts;
    while (isTyped && joins(m_tree.at(typed))) {
        typed = m_tree.at(typed).firstChild;
        warnOfNames(m_tree.at(typed).nextSibling, command);
    }
    const Node& node = m_tree.at(typed);
    if (node.kind == NodeKind::modifierKey || node.kind == NodeKind::modifierDown) {
        if (isTyped) m_out.warn(node.offset, heldModifierAdvice());
    } else if (node.kind == NodeKind::text) {
        const std::string_view text = m_tree.texts[node.value];
        const bool isModifier = !quotedModifierAdvice(text).empty();
        std::string advice = isTyped ? typedNameAdvice(text) : isModifier ? heldModifierAdvice() : "";
        if (!advice.empty()) m_out.warn(node.offset, std::move(advice));
    }
}

void CommandGenerator::warnOfModifiers(NodeId modifiers) {
    const Node& node = m_tree.at(modifiers);
    if (node.kind == NodeKind::modifierKey) {
        m_out.warn(node.offset, modifierAdvice({node.value, false}));
    } else if (node.kind == NodeKind::text) {
        const std::string advice = quotedModifierAdvice(m_tree.texts[node.value]);
        if (!advice.empty()) m_out.warn(node.offset, advice);
    } else if (node.kind == NodeKind::binary && joinsModifiers(node)) {
        m_out.warn(node.offset, joinedModifiersAdvice());
    } else if (node.kind == NodeKind::list) {
        for (NodeId item = node.firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
            warnOfModifiers(item);
        }
    }
}

}  // namespace script
