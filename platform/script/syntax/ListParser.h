// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads what stands in braces.
///
/// list   = { [expression {, expression}] }
/// record = { name : expression {, name : expression} }
class ListParser : public SubParser {
  public:
    using SubParser::SubParser;

    NodeId listOrRecord();

  private:
    bool isAtField() const;
    void items(NodeId list);
    void fields(NodeId record);
    NameId fieldName();
};

}  // namespace script
