// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads what stands at the top of a script alone.
///
/// property  = ( property | prop ) name : expression
/// handler   = ( on | to ) name parameters NL statements end [name]
///           | on run [name | { name {, name} }] NL statements end [run]
/// parameters= ( [pattern {, pattern}] )
///           | [preposition pattern] ... [given label : pattern {, label : pattern}]
/// pattern   = name | { pattern {, pattern} }
class HandlerParser : public SubParser {
  public:
    using SubParser::SubParser;

    bool isAtProperty() const { return m_tokens.isAt(Word::property) || m_tokens.isAt(Word::prop); }
    bool isAtHandler() const { return m_tokens.isAt(Word::on) || m_tokens.isAt(Word::to); }
    NodeId property();
    NodeId handler();

  private:
    bool handlerName(NodeId handler);
    void parameters(NodeId handler, ChildList& children, bool isRun);
    void runParameters(ChildList& children);
    void positionalParameters(ChildList& children);
    void labelledParameters(ChildList& children);
    NodeId parameter(NameId label, std::uint32_t offset);
    NodeId pattern();
    void handlerEnd(std::string_view name);
};

}  // namespace script
