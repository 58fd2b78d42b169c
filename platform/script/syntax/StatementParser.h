// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads statements.
///
/// statement = block statement (see BlockParser) | set | copy | put | return | error | exit | global | local
///           | get expression | expression
/// set       = set target to expression
/// copy      = copy expression to target,  put expression into target
/// return    = return [expression]
/// error     = error [expression] { number | from | partial result | to  expression }
/// exit      = exit [repeat]
/// use       = use { token }
class StatementParser : public SubParser {
  public:
    using SubParser::SubParser;

    NodeId statement();
    /// Statements up to the word that ends or divides the block, which stays.
    NodeId block();
    void endStatement();
    /// `end`, which has to stand here, and is the end of a block of that word where it has one.
    bool acceptEnd(Word word = Word::none);

    /// The parts of an error behind the message, each with an expression or, to be set, a name.
    void errorParts(ChildList& children, bool areTargets);
    /// What can be set: a variable, a property, an element, or a list or record of these.
    NodeId target();

  private:
    bool isAtBlockEnd() const;
    NodeId set();
    NodeId copy(Word preposition);
    bool isSettable(NodeId node) const;
    void refuseItems(NodeId list);
    NodeId reference();
    NodeId returnValue();
    NodeId raise();
    NodeId exitRepeat();
    NodeId declaration(NodeKind kind);
    NodeId setClipboard(std::uint32_t offset);
    NodeId use();
    NodeId evaluate();
};

}  // namespace script
