// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads calls of handlers.
///
/// call = name ( [expression {, expression}] )
///      | name [preposition expression] ... [given label : expression {, label : expression}]
///
/// The second form is read behind names of handlers only that are written so.
class CallParser : public SubParser {
  public:
    using SubParser::SubParser;

    /// The most parameters of a handler, and arguments of a call: labels are compared one with another.
    static constexpr std::uint32_t maxParameters = 1000;

    NodeId positional();
    NodeId labelled();
    /// Whether the script has a handler of the name that is not called with parentheses.
    bool isLabelledHandler(const Token& name);

    /// Labels that handlers may have without `given`.
    static bool isLabelWord(Word word);
    /// The label here, moving behind it: a preposition of one or two words.
    NameId labelHere();

    /// Fails where there are more than that.
    void countParameter(std::uint32_t& count);

  private:
    void labelledArguments(NodeId call);
    void truths(ChildList& arguments, std::uint32_t& count);
    NodeId argument(NameId label);
    void findLabelled();
    /// The handlers that are called with labels; read from the source when the first may be met.
    std::optional<NameTable> m_labelled;
};

}  // namespace script
