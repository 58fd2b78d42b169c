// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/syntax/ParseContext.h"

namespace script {

struct Grammar;

/// What the parser of one part of the grammar has: where it reads, where it puts what it has read, and the
/// parsers of all other parts. After an error the node that a parser returns is any node.
class SubParser {
  public:
    /// Both outlive the parser.
    SubParser(ParseContext& context, Grammar& grammar)
        : m_context(context), m_tokens(context.tokens()), m_tree(context.tree()), m_grammar(grammar) {}
    SubParser& operator=(const SubParser&) = delete;

  protected:
    ~SubParser() = default;
    SubParser(const SubParser&) = default;

    /// A node at the current token, moving behind that.
    NodeId take(NodeKind kind, std::uint32_t value = 0) {
        const NodeId node = m_tree.add(kind, m_tokens.offset(), value);
        m_tokens.advance();
        return node;
    }
    /// The longest expression that begins here.
    NodeId expression();

    ParseContext& m_context;
    TokenStream& m_tokens;
    Tree& m_tree;
    Grammar& m_grammar;
};

}  // namespace script
