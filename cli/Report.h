// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/Result.h"
#include "platform/script/source/ScriptError.h"

/// What is told on standard error.
///
/// FILE:LINE:COL: syntax error: MESSAGE (NUMBER)
/// FILE:LINE:COL: execution error: MESSAGE (NUMBER)
/// FILE:LINE:COL: warning: MESSAGE
///
/// Behind an error come its line, a caret below the place, and a hint if there is one.
class Report {
  public:
    /// `file` as the user named it. The source outlives the report.
    Report(std::string file, const std::string& source) : m_file(std::move(file)), m_source(source) {}

    void syntaxError(const script::ScriptError& error) const { tell("syntax", error); }
    void executionError(const script::ScriptError& error) const { tell("execution", error); }
    void warning(const script::ScriptWarning& warning) const;

  private:
    void tell(const char* kind, const script::ScriptError& error) const;

    std::string m_file;
    const std::string& m_source;
};

/// "keyrill-script: SUBJECTMESSAGE HINT"
void reportError(const std::string& subject, const Error& error);
