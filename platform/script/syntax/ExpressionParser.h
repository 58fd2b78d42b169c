// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/source/TokenStream.h"
#include "platform/script/syntax/Node.h"
#include "platform/script/syntax/Operators.h"

namespace script {

class PrimaryParser;

/// Reads expressions into a tree. After an error the node returned is any node.
///
/// expression = [not] unary { operator unary | as class }, by the precedence table
/// unary      = ( + | - ) unary | reference
/// reference  = primary { 's member }
/// primary    = number | text | ( expression ) | list | record | named
/// list       = { [expression {, expression}] }
/// record     = { name : expression {, name : expression} }
///
/// What begins with a word is `named`, which PrimaryParser reads.
class ExpressionParser {
  public:
    ExpressionParser(TokenStream& tokens, Tree& tree, PrimaryParser& primaries)
        : m_tokens(tokens), m_tree(tree), m_primaries(primaries) {}

    /// The longest expression that begins here.
    NodeId expression() { return operation(0); }

    /// An expression in which `as` with one of the words that a command asks for behind it is left alone.
    NodeId expressionBefore(bool commandHasAs);

    /// What `of` stands before: an operand without operators.
    NodeId reference();

    /// What stands behind `item`: a number, a text, a name, or an expression in parentheses.
    NodeId index();
    bool isAtIndex() const;

    /// A text literal and nothing else.
    NodeId textLiteral();
    NodeId number();
    NodeId parenthesised();

  private:
    NodeId operand();
    NodeId operation(int minimumLevel);
    NodeId coercion(NodeId left);
    NodeId className();
    NodeId classNames();
    NodeId unary();
    NodeId sign(std::uint32_t offset);
    NodeId primary();
    NodeId real();
    NodeId listOrRecord();
    bool isAtField() const;
    void items(NodeId list);
    void fields(NodeId record);
    std::uint32_t fieldName();

    TokenStream& m_tokens;
    Tree& m_tree;
    PrimaryParser& m_primaries;
    bool m_leavesAs = false;
};

}  // namespace script
