// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/script/Command.h"
#include "platform/script/Node.h"
#include "platform/script/TokenStream.h"

namespace script {

class TermParser;

/// Reads commands: their name, the direct argument, and parameters in any order.
///
/// command = name [[of] expression] { label ( expression | one of its words | class ) }
class CommandParser {
  public:
    CommandParser(TokenStream& tokens, Tree& tree, TermParser& terms)
        : m_tokens(tokens), m_tree(tree), m_terms(terms) {}

    /// Not where a name of the same spelling is meant: `round = 2`.
    bool isAtCommand() const;
    NodeId command();

  private:
    NodeId direct(const Command& command);
    std::optional<std::uint32_t> parameterHere(const Command& command) const;
    void parameters(const Command& command, ChildList& children);
    NodeId parameterValue(const Parameter& parameter, const Command& command);
    NodeId chosen(const Parameter& parameter);
    NodeId className();
    bool isIncompleteLabel(const Command& command);
    bool hasParameter(const Command& command, std::string_view label) const;

    TokenStream& m_tokens;
    Tree& m_tree;
    TermParser& m_terms;
};

}  // namespace script
