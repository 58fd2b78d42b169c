// SPDX-License-Identifier: MIT
#include "platform/script/syntax/ApplicationParser.h"

#include "platform/script/source/SystemEvents.h"
#include "platform/script/syntax/Grammar.h"

namespace script {

bool ApplicationParser::isAtApplication() const {
    const Token& next = m_tokens.ahead();
    return isAtApplicationWord() && (next.is(TokenKind::text) || m_tokens.isAtPhrase("id", 1) ||
                                     (next.is(TokenKind::identifier) && next.is(Word::none)));
}

NodeId ApplicationParser::application() {
    const std::uint32_t offset = m_tokens.offset();
    m_tokens.advance();
    const bool isName = m_tokens.isAt(TokenKind::identifier) && m_tokens.current().is(Word::none);
    if (isName || m_tokens.isAt(TokenKind::leftParenthesis)) {
        const NodeId node = m_tree.add(NodeKind::application, offset);
        ChildList(m_tree, node).append(m_grammar.primaries.index());
        return node;
    }
    const bool byIdentifier = m_tokens.accept(Word::id);
    const NodeId literal = m_grammar.literals.text();
    if (m_tokens.failed()) return noNode;
    const std::uint32_t name = m_tree.at(literal).value;
    const NodeId node = m_tree.add(NodeKind::application, offset, name);
    m_tree.nodes[node].detail = isSystemEvents(m_tree.texts[name], byIdentifier) ? 1 : 0;
    return node;
}

bool ApplicationParser::isAtProcess() const {
    if (m_tokens.isAt(Word::application, Word::process)) return true;
    const TokenKind ahead = m_tokens.ahead().kind;
    return m_tokens.isAt(Word::process) && (ahead == TokenKind::text || ahead == TokenKind::identifier ||
                                            ahead == TokenKind::leftParenthesis);
}

NodeId ApplicationParser::process() {
    const NodeId node = m_tree.add(NodeKind::process, m_tokens.offset());
    m_tokens.accept(Word::application);
    m_tokens.advance();
    ChildList(m_tree, node).append(m_grammar.expressions.reference());
    if (m_tokens.isAt(Word::of) && isApplicationWord(m_tokens.ahead())) {
        m_tokens.advance();
        application();
    }
    return node;
}

bool ApplicationParser::isAtProcessOfSystemEvents() const {
    const int start = m_tokens.current().is(Word::application) ? 1 : 0;
    if (!m_tokens.peek(start).is(Word::process) || !m_tokens.peek(start + 2).is(Word::of)) return false;
    const Token owner = m_tokens.peek(start + 3);
    const std::string_view name = m_tokens.peek(start + 4).text;
    return isApplicationWord(owner) && name.size() > 2 &&
           isSystemEvents(name.substr(1, name.size() - 2), false);
}

}  // namespace script
