// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/script/syntax/SubParser.h"
#include "platform/script/values/ElementNames.h"

namespace script {

/// Reads elements of lists and texts.
///
/// element   = part [( of | in ) reference]
/// part      = kind index | kinds [index ( thru | through ) index] | kinds from index to index
///           | ordinal kind | ( some | middle ) kind | every kind
///           | text index ( thru | through ) index | text from bound to bound | text
///           | ( beginning | end )
/// bound     = kind index | index
/// ordinal   = first ... tenth | last | front | back | NUMBER ( st | nd | rd | th )
class ElementParser : public SubParser {
  public:
    using SubParser::SubParser;

    bool isAtElement() const;
    /// With its container, which is `it` where none stands.
    NodeId element();
    /// Behind 's, whose left side is the container.
    NodeId elementOf(NodeId container);

    /// Behind an ordinal: the kind, and the container.
    NodeId ordinal(std::uint32_t offset, NodeId index, ElementForm form);

    /// characterId = character id expression
    NodeId characterId();

  private:
    struct Kind {
        ElementKind kind = ElementKind::item;
        Type type = Type::anything;
        bool isPlural = false;
        std::size_t words = 1;
    };

    std::optional<Kind> kindHere() const;
    bool isAtTextRange() const;
    NodeId part();
    NodeId ordinalPart(std::uint32_t offset, NodeId index, ElementForm form);
    NodeId ordinalWord();
    NodeId formWord(ElementForm form);
    NodeId kindPart(const Kind& kind);
    NodeId onePart(const Kind& kind);
    NodeId pluralPart(const Kind& kind);
    NodeId endPart();
    NodeId textPart();
    NodeId textBetween(std::uint32_t offset);
    bool acceptThru();
    void range(NodeId node);
    NodeId bound();
    NodeId make(std::uint32_t offset, const Kind& kind, ElementForm form);
    void setForm(NodeId node, const Kind& kind, ElementForm form);
    NodeId withContainer(NodeId node);
    void setContainer(NodeId node, NodeId container);
};

}  // namespace script
