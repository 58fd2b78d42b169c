// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/Node.h"
#include "platform/script/Operators.h"
#include "platform/script/TokenStream.h"

namespace script {

/// The most items that a list may have.
inline constexpr std::uint32_t maxListItems = 100000;

/// Reads expressions into a tree. After an error the node returned is any node.
///
/// expression = unary { operator unary }, by the precedence table
/// unary      = ( + | - ) unary | primary
/// primary    = number | text | name | ( expression ) | list | constant
/// list       = { [expression {, expression}] }
/// constant   = return | tab | space | linefeed | quote
///            | ( command | control | option | shift ) [down], where the dictionary is in force
class ExpressionParser {
  public:
    ExpressionParser(TokenStream& tokens, Tree& tree) : m_tokens(tokens), m_tree(tree) {}

    /// The longest expression that begins here.
    NodeId expression() { return operation(0); }

    /// A text literal and nothing else.
    NodeId textLiteral();

  private:
    NodeId operation(int minimumLevel);
    NodeId unary();
    NodeId primary();
    NodeId wordPrimary();
    NodeId number();
    NodeId real();
    NodeId list();
    NodeId parenthesised();
    NodeId name();
    NodeId textConstant();
    NodeId modifierConstant();

    TokenStream& m_tokens;
    Tree& m_tree;
};

}  // namespace script
