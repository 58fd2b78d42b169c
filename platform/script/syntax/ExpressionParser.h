// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/syntax/SubParser.h"

namespace script {

struct OperatorRow;

/// Reads expressions: operators, by the precedence table, and their operands.
///
/// expression = [not] unary { operator unary | as class }
/// unary      = ( + | - ) unary | reference
/// reference  = primary { 's member }
/// class      = one of the predefined names, or { class {, class} }
class ExpressionParser : public SubParser {
  public:
    using SubParser::SubParser;

    NodeId expression() { return operation(0); }
    /// What `of` stands before: an operand without operators.
    NodeId reference();

  private:
    NodeId operation(int minimumLevel);
    NodeId binary(const OperatorRow& row, NodeId left);
    NodeId coercion(NodeId left);
    NodeId className();
    NodeId classNames();
    NodeId unary();
    NodeId operand();
};

}  // namespace script
