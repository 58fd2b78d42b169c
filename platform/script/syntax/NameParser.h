// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads names, and what belongs to a name or is owned by something.
///
/// nameOrCall = call [of reference] | property | name
/// property   = name of reference | text item delimiters [of reference]
/// member     = element | call | name, behind 's, my or its
class NameParser : public SubParser {
  public:
    using SubParser::SubParser;

    NodeId nameOrCall();
    /// A name and nothing behind it.
    NodeId plainName();
    NodeId member(NodeId container);
    /// Behind `my` or `its`, which is the owner.
    NodeId memberOf(NodeKind owner);
    NodeId delimiters();
    /// A class, or another predefined name, which stands here.
    NodeId predefined(std::uint8_t index);

    /// The name at the current token, moving behind it; two words for a property that has two.
    NameId nameHere();
    /// How many words the property has that stands here, if it has more than one: `button returned`. 0 if
    /// none does.
    static std::size_t longPropertyHere(const TokenStream& tokens);
    /// Fails where the current token is no name.
    bool expectName();
    /// The index of the class among the predefined names, at its last word: `Unicode text` has two. Fails
    /// where none stands here.
    std::optional<std::uint8_t> expectClass();

  private:
    NodeId property();
    NodeId propertyNode();
    NodeId callTo(NodeId owner, NodeId call);
};

}  // namespace script
