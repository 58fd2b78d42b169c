// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>

#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads primary expressions: operands with nothing behind them.
///
/// primary   = literal | "(" expression ")" | list | record | element | command | application | process
///           | ( my | its ) member | me | it | referenceTo | nameOrCall | predefined name | result |
///           AppleScript
/// referenceTo = ( a reference to | a ref to | reference to | ref [to] ) reference
/// index     = [-] number | text | name | "(" expression ")"
class PrimaryParser : public SubParser {
  public:
    using SubParser::SubParser;

    NodeId primary();

    /// What stands behind `item`.
    NodeId index();
    bool isAtIndex() const;

  private:
    NodeId parenthesised();
    bool isAtNumberedOrdinal() const;
    NodeId numberedOrdinal();
    NodeId word();
    NodeId reservedWord();
    NodeId pronoun();
    NodeId otherWord();
    NodeId name();
    NodeId referenceTo();
    std::optional<std::uint32_t> commandHere() const;
    bool refuseIncompleteCommand();
};

}  // namespace script
