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
    return m_tokens.isAt(Word::process) &&
           (ahead == TokenKind::text || ahead == TokenKind::identifier || ahead == TokenKind::number ||
            ahead == TokenKind::leftParenthesis);
}

NodeId ApplicationParser::process() {
    const std::uint32_t offset = m_tokens.offset();
    m_tokens.accept(Word::application);
    m_tokens.advance();
    const NodeId name = m_grammar.expressions.reference();
    if (m_grammar.processes.isAtFilter()) return m_grammar.processes.those(offset, name, ElementForm::index);
    const NodeId node = m_tree.add(NodeKind::process, offset);
    ChildList(m_tree, node).append(name);
    skipOwner();
    return node;
}

void ApplicationParser::skipOwner() {
    if (!m_tokens.isAt(Word::of) || !isApplicationWord(m_tokens.ahead())) return;
    m_tokens.advance();
    application();
}

bool ApplicationParser::isAtState(NodeId target) const {
    const NodeKind kind = m_tree.at(target).kind;
    const bool isTarget = kind == NodeKind::application || kind == NodeKind::process ||
                          kind == NodeKind::processes || kind == NodeKind::it;
    if (!isTarget) return false;
    return m_tokens.isAtPhrase("is running") || m_tokens.isAtPhrase("is not running") ||
           m_tokens.isAtPhrase("isn't running") || m_tokens.isAtPhrase("exists") ||
           m_tokens.isAtPhrase("does not exist") || m_tokens.isAtPhrase("doesn't exist");
}

NodeId ApplicationParser::state(NodeId target) {
    const NodeId node = runningOf(target);
    const bool holds = m_tokens.acceptPhrase("is running") || m_tokens.acceptPhrase("exists");
    if (holds) return node;
    const NodeId inverted = m_tree.add(NodeKind::inversion, m_tokens.offset());
    ChildList(m_tree, inverted).append(node);
    if (!m_tokens.acceptPhrase("is not running") && !m_tokens.acceptPhrase("does not exist"))
        m_tokens.advance(2);
    return inverted;
}

NodeId ApplicationParser::runningOf(NodeId target) {
    if (m_tree.at(target).kind == NodeKind::processes) return m_grammar.processes.existence(target);
    const NodeId node = m_tree.add(NodeKind::propertyOf, m_tokens.offset(), m_tree.names.intern("running"));
    ChildList(m_tree, node).append(target);
    return node;
}

bool ApplicationParser::isAtProcessOfSystemEvents() const {
    const std::size_t start = m_tokens.current().is(Word::application) ? 1 : 0;
    if (!m_tokens.peek(start).is(Word::process) || !m_tokens.peek(start + 2).is(Word::of)) return false;
    const Token owner = m_tokens.peek(start + 3);
    const std::string_view name = m_tokens.peek(start + 4).text;
    return isApplicationWord(owner) && name.size() > 2 &&
           isSystemEvents(name.substr(1, name.size() - 2), false);
}

}  // namespace script
