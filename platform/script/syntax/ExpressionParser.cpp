// SPDX-License-Identifier: MIT
#include "platform/script/syntax/ExpressionParser.h"

#include "platform/script/syntax/Grammar.h"
#include "platform/script/syntax/Operators.h"
#include "platform/script/values/PredefinedNames.h"

namespace script {

NodeId SubParser::expression() { return m_grammar.expressions.expression(); }

/// Reads operators that bind at least as tightly as asked for; what binds looser is left to the caller, and
/// so is a second operator that does not group with the one before it.
NodeId ExpressionParser::operation(int minimumLevel) {
    const NestingScope nesting(m_context);
    NodeId left = unary();
    int highestLevel = unaryLevel;
    for (;;) {
        const bool isWord = m_tokens.isAt(TokenKind::identifier);
        if (isWord && m_tokens.isAt(Word::as) && coercionLevel >= minimumLevel && !m_context.asIsLabel()) {
            left = coercion(left);
            continue;
        }
        if (isWord && stateLevel >= minimumLevel && m_grammar.applications.isAtState(left)) {
            left = m_grammar.applications.state(left);
            continue;
        }
        const OperatorRow* row = binaryOperator(m_tokens);
        if (row == nullptr || row->level < minimumLevel || row->level > highestLevel) return left;
        left = binary(*row, left);
        if (row->grouping == Grouping::none) highestLevel = row->level - 1;
    }
}

/// The operator, which stands here, and its right side.
NodeId ExpressionParser::binary(const OperatorRow& row, NodeId left) {
    const NodeId node = m_tree.add(NodeKind::binary, m_tokens.offset());
    m_tree.nodes[node].detail = static_cast<std::uint8_t>(row.operation);
    m_tokens.advance(row.spelling.wordCount());
    ChildList operands(m_tree, node);
    operands.append(left);
    operands.append(operation(row.grouping == Grouping::right ? row.level : row.level + 1));
    if (!row.isNegated) return node;
    const NodeId inverted = m_tree.add(NodeKind::inversion, m_tree.at(node).offset);
    ChildList(m_tree, inverted).append(node);
    return inverted;
}

NodeId ExpressionParser::coercion(NodeId left) {
    const NodeId node = take(NodeKind::coercion);
    m_tokens.skipFiller();
    ChildList children(m_tree, node);
    children.append(left);
    if (m_tokens.isAt(TokenKind::leftBrace)) {
        m_tree.nodes[node].value = 1;
        children.append(classNames());
        return node;
    }
    const NodeId type = className();
    m_tree.nodes[node].detail = m_tree.at(type).detail;
    return node;
}

/// A node whose detail is the class.
NodeId ExpressionParser::className() {
    const NodeId node = m_tree.add(NodeKind::coercion, m_tokens.offset());
    if (const std::optional<std::uint8_t> index = m_grammar.names.expectClass()) {
        m_tree.nodes[node].detail = static_cast<std::uint8_t>(predefinedName(*index).type);
        m_tokens.advance();
    }
    return node;
}

NodeId ExpressionParser::classNames() {
    const NodeId node = take(NodeKind::list);
    ChildList children(m_tree, node);
    do {
        children.append(className());
    } while (m_tokens.accept(TokenKind::comma));
    m_tokens.expectListEnd(TokenKind::rightBrace);
    return node;
}

NodeId ExpressionParser::unary() {
    m_tokens.skipFiller();
    if (m_tokens.accept(TokenKind::plus)) return operation(unaryLevel);
    const bool isNegation = m_tokens.isAt(TokenKind::minus);
    if (!isNegation && !m_tokens.isAt(Word::notWord)) return operand();
    const NodeId node = take(isNegation ? NodeKind::negation : NodeKind::inversion);
    ChildList(m_tree, node).append(operation(isNegation ? unaryLevel : notLevel));
    return node;
}

NodeId ExpressionParser::reference() {
    const NestingScope nesting(m_context);
    return operand();
}

NodeId ExpressionParser::operand() {
    NodeId node = m_grammar.primaries.primary();
    while (m_tokens.accept(TokenKind::possessive)) node = m_grammar.names.member(node);
    return node;
}

}  // namespace script
