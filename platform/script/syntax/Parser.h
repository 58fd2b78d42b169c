// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "platform/script/source/ScriptError.h"
#include "platform/script/syntax/Node.h"

namespace script {

/// Reads a script into a tree.
///
/// script = { [statement | handler | property] NL }
///
/// The words of the keyboard commands and modifiers are known inside `tell application "System Events"` only;
/// elsewhere they are names.
class Parser {
  public:
    /// `source` is valid UTF-8, at most 2^32 - 1 bytes, and outlives the parser and its tree.
    explicit Parser(std::string_view source);
    ~Parser();
    Parser(const Parser&) = delete;
    Parser& operator=(const Parser&) = delete;

    /// Reads all; called once. After an error the tree, which lives as long as the parser, is of no use.
    Tree& parse();
    const std::optional<ScriptError>& error() const;
    /// Whether the words of the keyboard commands were known where the error is.
    bool failedInsideTell() const;

  private:
    struct Parts;
    NodeId topLevel();

    std::unique_ptr<Parts> m_parts;
};

}  // namespace script
