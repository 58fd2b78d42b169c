// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Parser.h"

#include "platform/script/syntax/Grammar.h"

namespace script {

struct Parser::Parts {
    explicit Parts(std::string_view source) : context(source), grammar(context) {}

    ParseContext context;
    Grammar grammar;
};

Parser::Parser(std::string_view source) : m_parts(std::make_unique<Parts>(source)) {
    constexpr std::size_t bytesANode = 5;  // as macros mostly have
    m_parts->context.tree().nodes.reserve(source.size() / bytesANode);
}

Parser::~Parser() = default;

Tree& Parser::parse() {
    TokenStream& tokens = m_parts->context.tokens();
    Tree& tree = m_parts->context.tree();
    ChildList children(tree, tree.add(NodeKind::script, 0));
    while (!tokens.isAt(TokenKind::endOfScript)) {
        if (tokens.accept(TokenKind::endOfLine)) continue;
        children.append(topLevel());
        m_parts->grammar.statements.endStatement();
    }
    return tree;
}

NodeId Parser::topLevel() {
    HandlerParser& handlers = m_parts->grammar.handlers;
    if (handlers.isAtProperty()) return handlers.property();
    if (handlers.isAtHandler()) return handlers.handler();
    return m_parts->grammar.statements.statement();
}

const std::optional<ScriptError>& Parser::error() const { return m_parts->context.tokens().error(); }

bool Parser::failedInsideTell() const { return m_parts->context.tokens().failedInDictionary(); }

}  // namespace script
