// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Parser.h"

namespace script {

Parser::Parser(std::string_view source)
    : m_tokens(source), m_primaries(m_tokens, m_tree, source), m_statements(m_tokens, m_tree, m_primaries) {
    constexpr std::size_t bytesANode = 5;  // as macros mostly have
    m_tree.nodes.reserve(source.size() / bytesANode);
}

Tree& Parser::parse() {
    const NodeId root = m_tree.add(NodeKind::script, 0);
    ChildList children(m_tree, root);
    while (!m_tokens.isAt(TokenKind::endOfScript)) {
        if (m_tokens.accept(TokenKind::endOfLine)) continue;
        children.append(topLevel());
        m_statements.endStatement();
    }
    return m_tree;
}

NodeId Parser::topLevel() {
    if (isAtProperty()) return property();
    if (isAtHandler()) return handler();
    return m_statements.statement();
}

bool Parser::isAtProperty() const { return m_tokens.isAt(Word::property) || m_tokens.isAt(Word::prop); }

bool Parser::isAtHandler() const { return m_tokens.isAt(Word::on) || m_tokens.isAt(Word::to); }

NodeId Parser::property() {
    const NodeId node = m_tree.add(NodeKind::property, m_tokens.offset());
    m_tokens.advance();
    m_tree.nodes[node].offset = m_tokens.offset();
    if (!m_primaries.expectName()) return node;
    m_tree.nodes[node].value = m_primaries.nameHere();
    if (!m_tokens.accept(TokenKind::colon)) m_tokens.expected("“:”");
    ChildList(m_tree, node).append(m_primaries.expressions().expression());
    return node;
}

NodeId Parser::handler() {
    const NodeId node = m_tree.add(NodeKind::handler, m_tokens.offset());
    m_tokens.advance();
    m_tree.nodes[node].offset = m_tokens.offset();
    const std::string_view name = m_tokens.current().text;
    const bool isRun = m_tokens.isAt(Word::run);
    if (!handlerName(node)) return node;
    ChildList children(m_tree, node);
    if (m_tokens.isAt(TokenKind::leftParenthesis)) {
        positionalParameters(children);
    } else if (isRun) {
        runParameters(children);
    } else {
        m_tree.nodes[node].detail = 1;
        labelledParameters(children);
    }
    if (!m_tokens.isAtLineEnd()) m_tokens.expected("end of line");
    const StatementParser::HandlerScope scope(m_statements);
    children.append(m_statements.block());
    handlerEnd(name);
    return node;
}

bool Parser::handlerName(NodeId handler) {
    if (!m_primaries.expectName()) return false;
    m_tree.nodes[handler].value = m_primaries.nameHere();
    return true;
}

/// run takes its arguments as one list.
void Parser::runParameters(ChildList& children) {
    if (!m_tokens.isAtLineEnd()) children.append(parameter(0, m_tokens.offset()));
}

void Parser::positionalParameters(ChildList& children) {
    m_tokens.advance();
    if (m_tokens.accept(TokenKind::rightParenthesis)) return;
    std::uint32_t count = 0;
    do {
        m_primaries.calls().countParameter(count);
        children.append(parameter(0, m_tokens.offset()));
    } while (m_tokens.accept(TokenKind::comma));
    if (!m_tokens.accept(TokenKind::rightParenthesis)) m_tokens.expected("“,” or “)”");
}

void Parser::labelledParameters(ChildList& children) {
    std::uint32_t count = 0;
    while (m_tokens.isAt(Word::of) || CallParser::isLabelWord(m_tokens.current().word)) {
        m_primaries.calls().countParameter(count);
        const std::uint32_t offset = m_tokens.offset();
        const NameId label = m_primaries.calls().labelHere();
        children.append(parameter(label, offset));
    }
    if (!m_tokens.accept(Word::given)) return;
    do {
        if (!m_primaries.expectName()) return;
        m_primaries.calls().countParameter(count);
        const std::uint32_t offset = m_tokens.offset();
        const NameId label = m_primaries.nameHere();
        if (!m_tokens.accept(TokenKind::colon)) m_tokens.expected("“:”");
        children.append(parameter(label, offset));
    } while (m_tokens.accept(TokenKind::comma));
}

NodeId Parser::parameter(NameId label, std::uint32_t offset) {
    m_tokens.skipFiller();
    const NodeId node = m_tree.add(NodeKind::parameter, offset, label);
    ChildList(m_tree, node).append(pattern());
    return node;
}

NodeId Parser::pattern() {
    const Nesting nesting(m_tokens);
    if (!m_tokens.isAt(TokenKind::leftBrace)) {
        return m_primaries.expectName() ? m_primaries.plainName() : noNode;
    }
    const NodeId node = m_tree.add(NodeKind::list, m_tokens.offset());
    ChildList items(m_tree, node);
    m_tokens.advance();
    if (m_tokens.accept(TokenKind::rightBrace)) return node;
    do {
        items.append(pattern());
    } while (m_tokens.accept(TokenKind::comma));
    if (!m_tokens.accept(TokenKind::rightBrace)) m_tokens.expected("“,” or “}”");
    return node;
}

/// end [name]
void Parser::handlerEnd(std::string_view name) {
    if (!m_statements.acceptEnd()) return;
    if (m_tokens.isAtLineEnd()) return;
    if (asciiLowered(m_tokens.current().text) != asciiLowered(name)) {
        m_tokens.expected("“" + std::string(name) + "”");
    }
    m_tokens.advance();
}

}  // namespace script
