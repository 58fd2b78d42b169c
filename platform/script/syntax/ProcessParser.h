// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/syntax/SubParser.h"
#include "platform/script/values/Value.h"

namespace script {

/// Reads which of the programs are meant that have a window.
///
/// processes = ( every | first | some | ... ) process [filter] | plural [filter] | process index filter
/// process   = [application] process
/// plural    = [application] processes
/// filter    = ( whose | where ) [it is] condition
///
/// `of application` may stand behind each. In the condition `name`, `frontmost`, `visible`, `background only`
/// and `running` are those of the process that is looked at, and each test has to be of one of these.
class ProcessParser : public SubParser {
  public:
    using SubParser::SubParser;

    /// Whether `[application] process` stands here.
    bool isAtWord() const;
    /// Whether the plural stands here and means processes.
    bool isAtPlural() const;
    bool isAtFilter() const { return m_tokens.isAt(Word::whose) || m_tokens.isAt(Word::where); }

    /// Behind `every`, `first`, ..., or at the filter. The index is `noNode` where the form has none.
    NodeId those(std::uint32_t offset, NodeId index, ElementForm form);
    NodeId plural();
    /// Whether there are as many as it needs to be one of them: a comparison.
    NodeId existence(NodeId processes);

  private:
    NodeId condition();
    void refuseOtherTests(NodeId condition);
    static bool joins(const Node& node);
    bool isTest(NodeId id) const;
    bool isProperty(NodeId id) const;
    void refuse(NodeId test);
};

}  // namespace script
