// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "platform/script/source/TokenStream.h"
#include "platform/script/syntax/Node.h"
#include "platform/script/syntax/PrimaryParser.h"
#include "platform/script/syntax/StatementParser.h"

namespace script {

/// Reads a script into a tree.
///
/// script    = { [statement | handler | property] NL }
/// property  = ( property | prop ) name : expression
/// handler   = ( on | to ) name parameters NL statements end [name]
///           | on run [name | { name {, name} }] NL statements end [run]
/// parameters= ( [pattern {, pattern}] )
///           | [preposition pattern] ... [given label : pattern {, label : pattern}]
/// pattern   = name | { pattern {, pattern} }
///
/// The words of the keyboard commands and modifiers are known inside `tell application "System Events"` only;
/// elsewhere they are names. A script nests at most Nesting::maxDepth levels, and maxTells of `tell`.
class Parser {
  public:
    static constexpr int maxTells = 32;

    /// `source` is valid UTF-8, at most 2^32 - 1 bytes, and outlives the tree.
    explicit Parser(std::string_view source);

    /// Reads all; called once. After an error the tree is of no use.
    Tree& parse();
    const std::optional<ScriptError>& error() const { return m_tokens.error(); }

  private:
    NodeId topLevel();
    bool isAtProperty() const;
    bool isAtHandler() const;
    NodeId property();
    NodeId handler();
    bool handlerName(NodeId handler);
    void runParameters(ChildList& children);
    void positionalParameters(ChildList& children);
    void labelledParameters(ChildList& children);
    NodeId parameter(NameId label, std::uint32_t offset);
    NodeId pattern();
    void handlerEnd(std::string_view name);

    Tree m_tree;
    TokenStream m_tokens;
    PrimaryParser m_primaries;
    StatementParser m_statements;
};

}  // namespace script
