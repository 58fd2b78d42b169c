// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/script/source/TokenStream.h"
#include "platform/script/syntax/CallParser.h"
#include "platform/script/syntax/CommandParser.h"
#include "platform/script/syntax/ElementParser.h"
#include "platform/script/syntax/ExpressionParser.h"
#include "platform/script/syntax/Node.h"

namespace script {

/// Reads what begins with a word where an expression stands.
///
/// named    = constant | target | command | element | my member | its member | [a] reference to reference
///          | call [of reference] | name of reference | name
/// member   = element | call | name
class PrimaryParser {
  public:
    PrimaryParser(TokenStream& tokens, Tree& tree, std::string_view source);

    ExpressionParser& expressions() { return m_expressions; }
    ElementParser& elements() { return m_elements; }

    NodeId named();
    /// Behind 's: a member of the node.
    NodeId member(NodeId container);

    /// A name and nothing behind it.
    NodeId plainName();
    /// The name at the current token, moving behind it; two words for a property that has two.
    NameId nameHere();
    /// Whether a property of two words stands here: `button returned`.
    static bool longPropertyHere(const TokenStream& tokens);
    /// "identifier" is expected where the current token is no name.
    bool expectName();

    NodeId application();
    NodeId process();
    bool isAtProcess() const;
    bool isAtApplication() const;

    /// `1st`, `2nd`
    bool isAtNumberedOrdinal() const;
    NodeId numberedOrdinal();

    /// Whether the container may stand behind `in`, which is not so where a command has a parameter of that
    /// name.
    bool allowsIn() const { return m_allowsIn; }
    void setAllowsIn(bool allows) { m_allowsIn = allows; }
    /// Whether a target is read, in which commands are names.
    void setReadsTarget(bool reads) { m_readsTarget = reads; }

    CallParser& calls() { return m_calls; }

  private:
    std::optional<std::uint32_t> commandHere() const;
    NodeId constant();
    std::optional<NodeId> textConstant();
    NodeId leaf(NodeKind kind, std::uint32_t value = 0);
    NodeId prefixed(NodeKind owner);
    NodeId ofOwner(NodeId owner, NodeId memberNode);
    NodeId referenceTo();
    NodeId modifierConstant();
    NodeId namedByScript();
    NodeId predefined(std::uint8_t index);
    NodeId dateLiteral();
    NodeId nameOrCall();
    NodeId property();
    NodeId contents();
    NodeId delimiters();
    bool refuseForbidden();
    bool refuseIncompleteCommand();

    TokenStream& m_tokens;
    Tree& m_tree;
    ExpressionParser m_expressions;
    ElementParser m_elements;
    CommandParser m_commands;
    CallParser m_calls;
    bool m_allowsIn = true;
    bool m_readsTarget = false;
};

}  // namespace script
