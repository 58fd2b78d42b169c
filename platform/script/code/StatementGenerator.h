// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/script/code/ExpressionGenerator.h"

namespace script {

/// Emits code for statements. A statement leaves the stack as it found it, but for what the loops around it
/// keep there.
class StatementGenerator {
  public:
    explicit StatementGenerator(Emitter& out) : m_out(out), m_tree(out.tree()), m_expressions(out) {}

    void statements(NodeId first);
    /// Whether something runs behind it, so that its value is nobody's.
    void statement(NodeId id, bool isFollowed);
    ExpressionGenerator& expressions() { return m_expressions; }

  private:
    void statement(NodeId id);
    static bool compares(const Node& node);
    void warnOfComparison(const Node& node);
    void tell(const Node& node);
    void ifThen(const Node& node);
    void block(NodeId id) { statements(m_tree.at(id).firstChild); }
    class LoopScope;
    class UndoneScope;

    void loop(const Node& node, NodeId body, std::uint32_t start);
    void drop(const Node& node, int count);
    void repeatForEver(const Node& node);
    void repeatTimes(const Node& node);
    void repeatWhile(const Node& node);
    void repeatRange(const Node& node);
    NodeId range(const Node& node);
    void repeatIn(const Node& node);
    void wholeNumber(NodeId id);
    void exitRepeat(const Node& node);
    void tryBlock(const Node& node);
    void onError(const Node& node);
    void errorPart(const Node& node, std::vector<std::uint32_t>& mismatches);
    void raise(const Node& node);
    void returnValue(const Node& node);
    void set(const Node& node);
    static Held heldFrom(const Node& value);
    bool isFrontmostOfTarget(const Node& target) const;
    void evaluate(const Node& node);
    void declare(const Node& node);
    void considering(const Node& node);
    void timeout(const Node& node);

    Emitter& m_out;
    const Tree& m_tree;
    ExpressionGenerator m_expressions;
    /// Jumps out of the innermost loop, whose target is not known yet.
    std::vector<std::uint32_t> m_exits;
    /// What is begun here, by the operations that undo it; a jump out of the loop undoes what stands behind
    /// the first so many.
    std::vector<Operation> m_undone;
    std::size_t m_undoneOutsideLoop = 0;
    bool m_isFollowed = false;
    /// Whether the innermost `tell` addresses a process.
    bool m_tellsProcess = false;
    /// Whether it addresses an application that has no words of its own.
    bool m_tellsProgram = false;
};

}  // namespace script
