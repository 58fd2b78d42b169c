// SPDX-License-Identifier: MIT
#include "platform/script/syntax/ExpressionParser.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>

#include "platform/script/source/Literal.h"
#include "platform/script/source/Scoped.h"
#include "platform/script/syntax/PrimaryParser.h"
#include "platform/script/values/Coercion.h"
#include "platform/script/values/MaxInteger.h"
#include "platform/script/values/PredefinedNames.h"

namespace script {

NodeId ExpressionParser::expressionBefore(bool commandHasAs) {
    const Scoped<bool> leaves(m_leavesAs, commandHasAs);
    return expression();
}

/// Reads operators that bind at least as tightly as asked for; what binds looser is left to the caller, and
/// so is a second operator that does not group with the one before it.
NodeId ExpressionParser::operation(int minimumLevel) {
    const Nesting nesting(m_tokens);
    NodeId left = unary();
    int highestLevel = unaryLevel;
    for (;;) {
        if (m_tokens.isAt(Word::as) && coercionLevel >= minimumLevel && !m_leavesAs) {
            left = coercion(left);
            continue;
        }
        const OperatorRow* row = binaryOperator(m_tokens);
        if (row == nullptr || row->level < minimumLevel || row->level > highestLevel) return left;
        NodeId node = m_tree.add(NodeKind::binary, m_tokens.offset());
        m_tree.nodes[node].detail = static_cast<std::uint8_t>(row->operation);
        m_tokens.advance(row->spelling.wordCount());
        ChildList operands(m_tree, node);
        operands.append(left);
        operands.append(operation(row->grouping == Grouping::right ? row->level : row->level + 1));
        if (row->grouping == Grouping::none) highestLevel = row->level - 1;
        if (row->isNegated) {
            const NodeId inverted = m_tree.add(NodeKind::inversion, m_tree.at(node).offset);
            ChildList(m_tree, inverted).append(node);
            node = inverted;
        }
        left = node;
    }
}

/// coercion = expression as ( class | { class {, class} } )
NodeId ExpressionParser::coercion(NodeId left) {
    const NodeId node = m_tree.add(NodeKind::coercion, m_tokens.offset());
    m_tokens.advance();
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
    std::optional<std::uint8_t> name;
    if (m_tokens.isAtPhrase("unicode text")) m_tokens.advance();
    if (m_tokens.isAt(TokenKind::identifier)) name = findPredefinedName(m_tokens.current());
    if (!name || predefinedName(*name).kind != PredefinedName::Kind::type) {
        m_tokens.expected("class name");
        return node;
    }
    m_tree.nodes[node].detail = static_cast<std::uint8_t>(predefinedName(*name).type);
    m_tokens.advance();
    return node;
}

NodeId ExpressionParser::classNames() {
    const NodeId node = m_tree.add(NodeKind::list, m_tokens.offset());
    ChildList children(m_tree, node);
    m_tokens.advance();
    do {
        children.append(className());
    } while (m_tokens.accept(TokenKind::comma));
    if (!m_tokens.accept(TokenKind::rightBrace)) m_tokens.expected("“,” or “}”");
    return node;
}

NodeId ExpressionParser::unary() {
    m_tokens.skipFiller();
    const std::uint32_t offset = m_tokens.offset();
    if (m_tokens.accept(TokenKind::plus)) return operation(unaryLevel);
    if (m_tokens.isAt(TokenKind::minus)) return sign(offset);
    if (!m_tokens.accept(Word::notWord)) return operand();
    const NodeId node = m_tree.add(NodeKind::inversion, offset);
    ChildList(m_tree, node).append(operation(notLevel));
    return node;
}

NodeId ExpressionParser::sign(std::uint32_t offset) {
    m_tokens.advance();
    const NodeId node = m_tree.add(NodeKind::negation, offset);
    ChildList(m_tree, node).append(operation(unaryLevel));
    return node;
}

NodeId ExpressionParser::reference() {
    const Nesting nesting(m_tokens);
    return operand();
}

NodeId ExpressionParser::operand() {
    NodeId node = primary();
    while (m_tokens.accept(TokenKind::possessive)) node = m_primaries.member(node);
    return node;
}

NodeId ExpressionParser::primary() {
    m_tokens.skipFiller();
    switch (m_tokens.current().kind) {
        case TokenKind::number:
            return m_primaries.isAtNumberedOrdinal() ? m_primaries.numberedOrdinal() : number();
        case TokenKind::text:
            return textLiteral();
        case TokenKind::leftParenthesis:
            return parenthesised();
        case TokenKind::leftBrace:
            return listOrRecord();
        case TokenKind::identifier:
            return m_primaries.named();
        default:
            m_tokens.expected("expression");
            return noNode;
    }
}

bool ExpressionParser::isAtIndex() const {
    const Token& token = m_tokens.current();
    switch (token.kind) {
        case TokenKind::number:
        case TokenKind::text:
        case TokenKind::leftParenthesis:
            return true;
        case TokenKind::minus:
            // `item -1 of x`, but not `item - 1`.
            return m_tokens.ahead().is(TokenKind::number) &&
                   m_tokens.ahead().text.data() == token.text.data() + token.text.size();
        case TokenKind::identifier:
            return binaryOperator(m_tokens) == nullptr &&
                   (token.is(Word::none) || token.is(Word::the) || kindOf(token.word) != WordKind::reserved);
        default:
            return false;
    }
}

NodeId ExpressionParser::index() {
    m_tokens.skipFiller();
    const std::uint32_t offset = m_tokens.offset();
    switch (m_tokens.current().kind) {
        case TokenKind::number:
            return number();
        case TokenKind::text:
            return textLiteral();
        case TokenKind::leftParenthesis:
            return parenthesised();
        case TokenKind::minus: {
            const Nesting nesting(m_tokens);
            m_tokens.advance();
            const NodeId node = m_tree.add(NodeKind::negation, offset);
            ChildList(m_tree, node).append(index());
            return node;
        }
        default:
            if (isAtIndex()) return m_primaries.plainName();
            m_tokens.expected("expression");
            return noNode;
    }
}

NodeId ExpressionParser::number() {
    const std::string_view text = m_tokens.current().text;
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    if (!whole || value > maxInteger) return real();
    const NodeId node = m_tree.add(NodeKind::integer, m_tokens.offset(), static_cast<std::uint32_t>(value));
    m_tokens.advance();
    return node;
}

NodeId ExpressionParser::real() {
    const std::optional<double> value = realOf(m_tokens.current().text);
    if (!value) {
        m_tokens.fail(errornumber::tooLarge, "The result of a numeric operation was too large.");
        return noNode;
    }
    const NodeId node = m_tree.add(NodeKind::real, m_tokens.offset(), m_tree.addReal(*value));
    m_tokens.advance();
    return node;
}

NodeId ExpressionParser::textLiteral() {
    const std::string_view literal = m_tokens.current().text;
    if (!m_tokens.isAt(TokenKind::text)) {
        m_tokens.expected("“\"”");
        return noNode;
    }
    const NodeId node = m_tree.add(NodeKind::text, m_tokens.offset());
    const std::string_view spelled = literal.substr(1, literal.size() - 2);
    if (isPlain(spelled)) {
        m_tree.nodes[node].value = m_tree.addText(spelled);
    } else {
        Unescaped unescaped = unescape(spelled);
        if (unescaped.badEscape) {
            m_tokens.fail(errornumber::syntax, "Expected “\"” but found unknown token.",
                          m_tokens.offset() + 1 + *unescaped.badEscape);
        }
        m_tree.nodes[node].value = m_tree.addDecoded(std::move(unescaped.text));
    }
    m_tokens.advance();
    return node;
}

/// Braces with a name and a colon in them hold a record.
NodeId ExpressionParser::listOrRecord() {
    const NodeId node = m_tree.add(NodeKind::list, m_tokens.offset());
    const Scoped<bool> leaves(m_leavesAs, false);
    m_tokens.advance();
    if (m_tokens.accept(TokenKind::rightBrace)) return node;
    if (isAtField()) {
        m_tree.nodes[node].kind = NodeKind::record;
        fields(node);
    } else {
        items(node);
    }
    if (!m_tokens.accept(TokenKind::rightBrace)) m_tokens.expected("“,” or “}”");
    return node;
}

bool ExpressionParser::isAtField() const {
    if (!m_tokens.isAt(TokenKind::identifier)) return false;
    return m_tokens.ahead().is(TokenKind::colon) ||
           (PrimaryParser::longPropertyHere(m_tokens) && m_tokens.peek(2).is(TokenKind::colon));
}

void ExpressionParser::items(NodeId list) {
    ChildList children(m_tree, list);
    std::uint32_t count = 0;
    do {
        if (++count > maxListItems) {
            m_tokens.fail(errornumber::syntax, "Expected at most " + std::to_string(maxListItems) +
                                                   " items in a list but found more.");
        }
        children.append(expression());
    } while (m_tokens.accept(TokenKind::comma));
}

void ExpressionParser::fields(NodeId record) {
    ChildList children(m_tree, record);
    std::vector<std::uint32_t> names;
    do {
        const std::uint32_t offset = m_tokens.offset();
        const std::string spelling(m_tokens.current().text);
        const std::uint32_t name = fieldName();
        if (std::find(names.begin(), names.end(), name) != names.end()) {
            m_tokens.fail(errornumber::propertyTwice,
                          "The " + spelling + " property is specified more than once.", offset);
        }
        names.push_back(name);
        if (names.size() > maxFields) {
            m_tokens.fail(errornumber::syntax, "Expected at most " + std::to_string(maxFields) +
                                                   " properties in a record but found more.");
        }
        const NodeId field = m_tree.add(NodeKind::field, offset, name);
        ChildList(m_tree, field).append(expression());
        children.append(field);
    } while (m_tokens.accept(TokenKind::comma));
}

std::uint32_t ExpressionParser::fieldName() {
    if (!m_tokens.isAt(TokenKind::identifier)) {
        m_tokens.expected("identifier");
        return 0;
    }
    const std::uint32_t name = m_primaries.nameHere();
    if (!m_tokens.accept(TokenKind::colon)) m_tokens.expected("“:”");
    return name;
}

NodeId ExpressionParser::parenthesised() {
    const Scoped<bool> leaves(m_leavesAs, false);
    m_tokens.advance();
    const NodeId node = expression();
    if (!m_tokens.accept(TokenKind::rightParenthesis)) m_tokens.expected("“)”");
    return node;
}

}  // namespace script
