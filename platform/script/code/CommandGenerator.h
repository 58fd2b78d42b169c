// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/script/code/Emitter.h"

namespace script {

struct Command;
class ExpressionGenerator;

/// Emits code for commands: their arguments lie on the stack in the order of the command's table, the direct
/// one first. Notes what a command will type, and warns of what it may not do as meant.
class CommandGenerator {
  public:
    CommandGenerator(Emitter& out, ExpressionGenerator& expressions)
        : m_out(out), m_tree(out.tree()), m_expressions(expressions) {}

    void command(const Node& node);

  private:
    void direct(NodeId value, const Command& command);
    std::uint32_t parameters(NodeId first, const Command& command);
    void planTexts(std::uint32_t from);
    bool joinsModifiers(const Node& node) const;
    void warnOfSwallowed(const Node& argument, const Command& command);
    void warnOfPause(NodeId seconds);
    void warnOfTexts(NodeId codes);
    void warnOfCodes(NodeId codes);
    void warnOfNames(NodeId typed, const Command& command);
    void warnOfModifiers(NodeId modifiers);

    Emitter& m_out;
    const Tree& m_tree;
    ExpressionGenerator& m_expressions;
};

}  // namespace script
