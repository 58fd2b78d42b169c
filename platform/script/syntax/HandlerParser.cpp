// SPDX-License-Identifier: MIT
#include "platform/script/syntax/HandlerParser.h"

#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Grammar.h"

namespace script {

NodeId HandlerParser::property() {
    const NodeId node = take(NodeKind::property);
    m_tree.nodes[node].offset = m_tokens.offset();
    if (!m_grammar.names.expectName()) return node;
    m_tree.nodes[node].value = m_grammar.names.nameHere();
    m_tokens.expect(TokenKind::colon);
    ChildList(m_tree, node).append(expression());
    return node;
}

NodeId HandlerParser::handler() {
    const NodeId node = take(NodeKind::handler);
    m_tree.nodes[node].offset = m_tokens.offset();
    const std::string_view name = m_tokens.current().text;
    const bool isRun = m_tokens.isAt(Word::run);
    if (!handlerName(node)) return node;
    ChildList children(m_tree, node);
    parameters(node, children, isRun);
    m_tokens.expectLineEnd();
    children.append(m_grammar.statements.block());
    handlerEnd(name);
    return node;
}

bool HandlerParser::handlerName(NodeId handler) {
    if (!m_grammar.names.expectName()) return false;
    m_tree.nodes[handler].value = m_grammar.names.nameHere();
    return true;
}

void HandlerParser::parameters(NodeId handler, ChildList& children, bool isRun) {
    if (m_tokens.isAt(TokenKind::leftParenthesis)) return positionalParameters(children);
    if (isRun) return runParameters(children);
    m_tree.nodes[handler].detail = 1;
    labelledParameters(children);
}

/// run takes its arguments as one list.
void HandlerParser::runParameters(ChildList& children) {
    if (!m_tokens.isAtLineEnd()) children.append(parameter(0, m_tokens.offset()));
}

void HandlerParser::positionalParameters(ChildList& children) {
    m_tokens.advance();
    if (m_tokens.accept(TokenKind::rightParenthesis)) return;
    std::uint32_t count = 0;
    do {
        m_grammar.calls.countParameter(count);
        children.append(parameter(0, m_tokens.offset()));
    } while (m_tokens.accept(TokenKind::comma));
    m_tokens.expectListEnd(TokenKind::rightParenthesis);
}

void HandlerParser::labelledParameters(ChildList& children) {
    std::uint32_t count = 0;
    while (m_tokens.isAt(Word::of) || CallParser::isLabelWord(m_tokens.current().word)) {
        m_grammar.calls.countParameter(count);
        const std::uint32_t offset = m_tokens.offset();
        const NameId label = m_grammar.calls.labelHere();
        children.append(parameter(label, offset));
    }
    if (!m_tokens.accept(Word::given)) return;
    do {
        if (!m_grammar.names.expectName()) return;
        m_grammar.calls.countParameter(count);
        const std::uint32_t offset = m_tokens.offset();
        const NameId label = m_grammar.names.nameHere();
        m_tokens.expect(TokenKind::colon);
        children.append(parameter(label, offset));
    } while (m_tokens.accept(TokenKind::comma));
}

NodeId HandlerParser::parameter(NameId label, std::uint32_t offset) {
    m_tokens.skipFiller();
    const NodeId node = m_tree.add(NodeKind::parameter, offset, label);
    ChildList(m_tree, node).append(pattern());
    return node;
}

NodeId HandlerParser::pattern() {
    const NestingScope nesting(m_context);
    if (!m_tokens.isAt(TokenKind::leftBrace)) {
        return m_grammar.names.expectName() ? m_grammar.names.plainName() : noNode;
    }
    const NodeId node = m_tree.add(NodeKind::list, m_tokens.offset());
    ChildList items(m_tree, node);
    m_tokens.advance();
    if (m_tokens.accept(TokenKind::rightBrace)) return node;
    do {
        items.append(pattern());
    } while (m_tokens.accept(TokenKind::comma));
    m_tokens.expectListEnd(TokenKind::rightBrace);
    return node;
}

/// end [name]
void HandlerParser::handlerEnd(std::string_view name) {
    if (!m_grammar.statements.acceptEnd()) return;
    if (m_tokens.isAtLineEnd()) return;
    if (!equalIgnoringCase(m_tokens.current().text, name)) {
        m_tokens.expected(script::quoted("end " + std::string(name)));
    }
    m_tokens.advance();
}

}  // namespace script
