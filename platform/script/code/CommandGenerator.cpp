// SPDX-License-Identifier: MIT
#include "platform/script/code/CommandGenerator.h"

#include <array>
#include <utility>

#include "platform/script/code/ExpressionGenerator.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/commands/Command.h"
#include "platform/script/source/Literal.h"
#include "platform/script/syntax/Operators.h"
#include "platform/script/values/BinaryOperator.h"

namespace script {
namespace {

/// Longer ones, in seconds, are taken for milliseconds of other languages.
constexpr std::uint32_t longestPause = 100;

NameRole roleOf(Command::Plays plays) {
    return plays == Command::Plays::codes ? NameRole::keyCode : NameRole::value;
}

BinaryOperator operatorOf(const Node& node) { return static_cast<BinaryOperator>(node.detail); }

/// Whether nobody calculates so what a command is given.
bool isSwallowed(BinaryOperator operation, Command::Swallows swallows) {
    if (swallows == Command::Swallows::nothing || operation == BinaryOperator::join) return false;
    return swallows == Command::Swallows::calculations || operation >= BinaryOperator::less;
}

bool joinsConditions(const Node& node) {
    return operatorOf(node) == BinaryOperator::both || operatorOf(node) == BinaryOperator::either;
}

bool joins(const Node& node) {
    return node.kind == NodeKind::binary && operatorOf(node) == BinaryOperator::join;
}

}  // namespace

void CommandGenerator::command(const Node& node) {
    const Command& command = *commands()[node.value];
    const bool hasDirect = node.detail != 0;
    for (NodeId id = node.firstChild; id != noNode; id = m_tree.at(id).nextSibling) {
        const Node& argument = m_tree.at(id);
        warnOfSwallowed(argument.kind == NodeKind::argument ? m_tree.at(argument.firstChild) : argument,
                        command);
    }
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
    const BinaryOperator operation = operatorOf(node);
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

/// `count of x > 2`, which counts the comparison. Of conditions in a row, which may be as many as fit into a
/// line, the first one counts.
void CommandGenerator::warnOfSwallowed(const Node& argument, const Command& command) {
    for (const Node* outer = &argument; outer->value == 0;) {
        const bool isNegated =
            outer->kind == NodeKind::inversion && m_tree.at(outer->firstChild).offset == outer->offset;
        const Node& node = isNegated ? m_tree.at(outer->firstChild) : *outer;
        if (node.kind != NodeKind::binary || !isSwallowed(operatorOf(node), command.swallows)) return;
        const Node& left = m_tree.at(node.firstChild);
        const bool mayBeFirst = left.kind == NodeKind::binary || left.kind == NodeKind::inversion;
        if (!joinsConditions(node) || !mayBeFirst) {
            const std::string_view sign = spellingOf(operatorOf(node), isNegated);
            return m_out.warn(node.offset, swallowedAdvice(command.name.spelling(), sign));
        }
        outer = &left;
    }
}

void CommandGenerator::warnOfPause(NodeId seconds) {
    const Node& node = m_tree.at(seconds);
    if (node.kind == NodeKind::integer && node.value > longestPause)
        return m_out.warn(node.offset, millisecondsAdvice(node.value));
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
    if (isTyped && node.kind == NodeKind::name) m_out.scope().noteText(node.value, node.offset, true);
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
