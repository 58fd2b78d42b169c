// SPDX-License-Identifier: MIT
#include "platform/script/ExpressionParser.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>

#include "platform/Modifiers.h"
#include "platform/script/Literal.h"

namespace script {
namespace {

struct TextConstant {
    Word word;
    std::string_view text;
};

constexpr auto textConstants = std::to_array<TextConstant>({
    {Word::linefeed, "\n"},
    {Word::quote, "\""},
    {Word::returnWord, "\r"},
    {Word::space, " "},
    {Word::tab, "\t"},
});

struct ModifierWord {
    Word word;
    std::uint32_t modifier;
};

constexpr auto modifierWords = std::to_array<ModifierWord>({
    {Word::command, modifier::command},
    {Word::control, modifier::control},
    {Word::option, modifier::option},
    {Word::shift, modifier::shift},
});

template <typename Table>
auto find(const Table& table, Word word) -> decltype(table.data()) {
    const auto* row = std::find_if(table.begin(), table.end(), [&](const auto& r) { return r.word == word; });
    return row == table.end() ? nullptr : row;
}

}  // namespace

/// Reads operators that bind at least as tightly as asked for; what binds looser is left to the caller.
NodeId ExpressionParser::operation(int minimumLevel) {
    const Nesting nesting(m_tokens);
    NodeId left = unary();
    while (const OperatorRow* row = binaryOperator(m_tokens.current())) {
        if (row->level < minimumLevel) break;
        const NodeId node = m_tree.add(NodeKind::binary, m_tokens.offset());
        m_tree.nodes[node].detail = static_cast<std::uint8_t>(row->operation);
        m_tokens.advance();
        ChildList operands(m_tree, node);
        operands.append(left);
        operands.append(operation(row->grouping == Grouping::left ? row->level + 1 : row->level));
        left = node;
    }
    return left;
}

NodeId ExpressionParser::unary() {
    if (m_tokens.accept(TokenKind::plus)) return operation(unaryLevel);
    const std::uint32_t offset = m_tokens.offset();
    if (!m_tokens.accept(TokenKind::minus)) return primary();
    const NodeId node = m_tree.add(NodeKind::negation, offset);
    ChildList(m_tree, node).append(operation(unaryLevel));
    return node;
}

NodeId ExpressionParser::primary() {
    m_tokens.skipFiller();
    switch (m_tokens.current().kind) {
        case TokenKind::number:
            return number();
        case TokenKind::text:
            return textLiteral();
        case TokenKind::leftParenthesis:
            return parenthesised();
        case TokenKind::leftBrace:
            return list();
        case TokenKind::identifier:
            return wordPrimary();
        default:
            m_tokens.expected("expression");
            return noNode;
    }
}

NodeId ExpressionParser::wordPrimary() {
    const Word word = m_tokens.current().word;
    if (word == Word::none) return name();
    if (find(textConstants, word) != nullptr) return textConstant();
    if (m_tokens.means(word) && find(modifierWords, word) != nullptr) return modifierConstant();
    if (m_tokens.means(word) && kindOf(word) != WordKind::special) {
        m_tokens.expected("expression");
        return noNode;
    }
    return name();
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

NodeId ExpressionParser::list() {
    const NodeId node = m_tree.add(NodeKind::list, m_tokens.offset());
    ChildList items(m_tree, node);
    m_tokens.advance();
    if (m_tokens.accept(TokenKind::rightBrace)) return node;
    std::uint32_t count = 0;
    do {
        if (++count > maxListItems) {
            m_tokens.fail(errornumber::syntax, "Expected at most " + std::to_string(maxListItems) +
                                                   " items in a list but found more.");
        }
        items.append(expression());
    } while (m_tokens.accept(TokenKind::comma));
    if (!m_tokens.accept(TokenKind::rightBrace)) m_tokens.expected("“,” or “}”");
    return node;
}

NodeId ExpressionParser::parenthesised() {
    m_tokens.advance();
    const NodeId node = expression();
    if (!m_tokens.accept(TokenKind::rightParenthesis)) m_tokens.expected("“)”");
    return node;
}

NodeId ExpressionParser::name() {
    const NodeId node =
        m_tree.add(NodeKind::name, m_tokens.offset(), m_tree.addText(m_tokens.current().text));
    m_tokens.advance();
    return node;
}

NodeId ExpressionParser::textConstant() {
    const TextConstant* constant = find(textConstants, m_tokens.current().word);
    const NodeId node = m_tree.add(NodeKind::text, m_tokens.offset(), m_tree.addText(constant->text));
    m_tokens.advance();
    return node;
}

NodeId ExpressionParser::modifierConstant() {
    const ModifierWord* row = find(modifierWords, m_tokens.current().word);
    const NodeId node = m_tree.add(NodeKind::modifierKey, m_tokens.offset(), row->modifier);
    m_tokens.advance();
    if (m_tokens.accept(Word::down)) m_tree.nodes[node].kind = NodeKind::modifierDown;
    return node;
}

}  // namespace script
