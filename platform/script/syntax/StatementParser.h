// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/source/TokenStream.h"
#include "platform/script/syntax/BlockParser.h"
#include "platform/script/syntax/Node.h"
#include "platform/script/syntax/PrimaryParser.h"

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
class StatementParser {
  public:
    StatementParser(TokenStream& tokens, Tree& tree, PrimaryParser& primaries);

    NodeId statement();
    /// Statements up to the word that ends or divides the block, which stays.
    NodeId block();
    void endStatement();
    /// `end`, which has to stand here, and is the end of a block of that word where it has one.
    bool acceptEnd(Word word = Word::none);

    /// In what statements are read.
    struct Surroundings {
        int tells = 0;
        int loops = 0;
    };
    Surroundings& surroundings() { return m_surroundings; }

    /// A handler's own statements: loops around it, of which there are none, do not count.
    class HandlerScope {
      public:
        explicit HandlerScope(StatementParser& statements)
            : m_statements(statements), m_former(std::exchange(statements.m_surroundings, {})) {}
        ~HandlerScope() { m_statements.m_surroundings = m_former; }
        HandlerScope(const HandlerScope&) = delete;
        HandlerScope& operator=(const HandlerScope&) = delete;

      private:
        StatementParser& m_statements;
        Surroundings m_former;
    };

    /// The parts of an error behind the message, each with an expression or, to be set, a name.
    void errorParts(ChildList& children, bool areTargets);
    /// What can be set: a variable, a property, an element, or a list or record of these.
    NodeId target();

  private:
    bool isAtBlockEnd() const;
    NodeId set();
    NodeId copy(Word preposition);
    bool isSettable(NodeId node) const;
    bool isOperatorAhead() const;
    NodeId returnValue();
    NodeId raise();
    NodeId exitRepeat();
    NodeId declaration(NodeKind kind);
    NodeId setClipboard(std::uint32_t offset);
    NodeId evaluate();
    bool refuseForbidden();

    TokenStream& m_tokens;
    Tree& m_tree;
    PrimaryParser& m_primaries;
    BlockParser m_blocks;
    Surroundings m_surroundings;
};

}  // namespace script
