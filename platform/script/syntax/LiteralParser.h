// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads what stands for one value, always the same.
///
/// literal  = number | text | constant | modifier | date text | missing value
/// constant = linefeed | quote | return | space | tab | true | false
/// modifier = ( command | control | option | shift ) [down]
class LiteralParser : public SubParser {
  public:
    using SubParser::SubParser;

    NodeId number();
    /// A text literal and nothing else.
    NodeId text();
    /// `noNode` where none stands, as for the next one.
    NodeId constant();
    NodeId modifier();
    NodeId date();
    NodeId missingValue();

  private:
    NodeId real();
    std::uint32_t textValue(std::string_view spelling);
};

}  // namespace script
