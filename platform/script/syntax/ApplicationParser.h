// SPDX-License-Identifier: MIT
#pragma once

#include "platform/script/syntax/SubParser.h"

namespace script {

/// Reads whom `tell` may address beside the script itself.
///
/// application = ( application | app ) [id] text | ( application | app ) ( name | "(" expression ")" )
/// process     = [application] process reference [of application]; with a filter behind it see ProcessParser
class ApplicationParser : public SubParser {
  public:
    using SubParser::SubParser;

    /// By itself, and where a sign or a word of the language follows, `application` is a class or a name.
    bool isAtApplication() const;
    bool isAtProcess() const;
    /// Whether the word stands here, whatever follows.
    bool isAtApplicationWord() const { return isApplicationWord(m_tokens.current()); }

    NodeId application();
    /// Whether `is running` or `exists` stands behind an application or a process.
    bool isAtState(NodeId target) const;
    /// `target is running`, `target exists`: the property `running`; of processes, whether there are any.
    NodeId state(NodeId target);
    /// Keys go to whatever is in front, whoever is told.
    NodeId process();
    /// Reads `of application`, if it stands here: it says no more.
    void skipOwner();
    /// `[application] process "X" of application "System Events"`: the dictionary stands behind its word.
    bool isAtProcessOfSystemEvents() const;

  private:
    NodeId runningOf(NodeId target);
    static bool isApplicationWord(const Token& token) {
        return token.is(Word::application) || token.is(Word::app);
    }
};

}  // namespace script
