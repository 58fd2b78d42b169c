// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads the statements that hold others. Each is ended by `end` and, or not, its first word.
///
/// tell        = tell target ( to statement | NL block )
/// if          = if expression ( then statement | [then] NL block { else if expression [then] NL block }
///               [else NL block] )
/// repeat      = repeat [ expression [times] | ( while | until ) expression
///               | with name ( from expression to expression [by expression] | in expression ) ] NL block
/// try         = try NL block [on error [target] { number target | from target | ... } NL block]
/// considering = ( considering | ignoring ) attribute { ( , | and ) attribute }
///               [but ( ignoring | considering ) attribute { ( , | and ) attribute }] NL block
/// timeout     = with timeout [of] expression ( seconds | second ) NL block
/// using       = using terms from application NL block
class BlockParser : public SubParser {
  public:
    using SubParser::SubParser;

    bool isAtBlock() const;
    NodeId statement();

    /// What `on error` can do with a part of the error: put it into a variable, or compare it with a value.
    NodeId errorTarget();

  private:
    NodeId tell();
    NodeId tellTarget(TellScope& scope);
    NodeId ifThen();
    void elseParts(ChildList& children);
    NodeId repeat();
    void repeatWith(NodeId node, ChildList& children);
    NodeId tryBlock();
    NodeId onError();
    NodeId considering();
    std::uint32_t attributes(std::uint32_t others);
    std::uint32_t attributeHere();
    NodeId timeout();
    NodeId usingTerms();
    NodeId body();
    NodeId statementBlock();
};

}  // namespace script
