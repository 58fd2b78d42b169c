// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "platform/script/ExpressionParser.h"
#include "platform/script/Node.h"
#include "platform/script/TokenStream.h"

namespace script {

/// Reads a script into a tree.
///
/// script    = { [statement] NL }
/// statement = tell | key code | keystroke | key down | key up | delay | repeat | exit | expression
/// block     = NL { [statement] NL } end [word of the block]
///
/// The words of the keyboard commands and modifiers are known inside `tell application "System Events"` only;
/// elsewhere they are names. A script nests at most Nesting::maxDepth levels, and maxTells of `tell`.
class Parser {
  public:
    static constexpr int maxTells = 32;

    /// `source` is valid UTF-8, at most 2^32 - 1 bytes, and outlives the tree.
    explicit Parser(std::string_view source);

    /// Reads all; called once. After an error the tree is of no use.
    const Tree& parse();
    const std::optional<ScriptError>& error() const { return m_tokens.error(); }

  private:
    NodeId statement();
    NodeId tell();
    NodeId target();
    NodeId application();
    NodeId process();
    void tellBody(ChildList& children);
    NodeId keyCode();
    NodeId keystroke();
    NodeId holding(NodeKind kind);
    void usingClause(ChildList& children);
    NodeId delay();
    NodeId repeat();
    NodeId exitRepeat();
    NodeId evaluate();
    bool refuseForbidden();
    void block(ChildList& children, Word word);
    void statementsToEnd(ChildList& children);
    void endOf(Word word);
    void endStatement();

    Tree m_tree;
    TokenStream m_tokens;
    ExpressionParser m_expressions;
    int m_tells = 0;
    int m_loops = 0;
};

}  // namespace script
