// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/script/commands/Command.h"
#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads commands: their name, the direct argument, and parameters in any order.
///
/// command = name [[of] expression] { label ( expression | one of its words | class ) }
class CommandParser : public SubParser {
  public:
    using SubParser::SubParser;

    /// The index of the command that stands here; empty where a name of the same spelling is meant: `round =
    /// 2`.
    std::optional<std::uint32_t> commandHere() const;
    NodeId command(std::uint32_t index);

  private:
    bool isMeant(const Command& command) const;
    static bool mayBeginArgument(const Command& command, const Token& next);
    NodeId direct(const Command& command);
    std::optional<std::uint32_t> parameterHere(const Command& command, std::size_t from = 0) const;
    void parameters(const Command& command, ChildList& children, std::uint32_t given = 0);
    bool truth(const Command& command, std::uint32_t& given, ChildList& children);
    void failTwice(std::string_view label);
    NodeId parameterValue(const Parameter& parameter, const Command& command);
    NodeId chosen(const Parameter& parameter);
    NodeId className();
    void refuseIncompleteLabel(const Command& command);
    static bool hasParameter(const Command& command, const Phrase& label);
};

}  // namespace script
