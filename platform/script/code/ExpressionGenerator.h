// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/script/code/Emitter.h"

namespace script {

/// Emits code for expressions, which leaves the value on the stack, and for setting, which takes it off.
///
/// A line may chain as many operators, coercions and members as fit into a script. Each holds the one before
/// it as its first part, so first parts are walked down and back, and never descended by recursion; all
/// others lie no deeper than the parser lets them.
class ExpressionGenerator {
  public:
    explicit ExpressionGenerator(Emitter& out) : m_out(out), m_tree(out.tree()) {}

    /// Leaves a value; fails when it runs where there is none.
    void expression(NodeId id);
    /// Leaves a value or nothing: for a statement that is an expression.
    void statementValue(NodeId id);
    /// Takes the value and puts it into what the node names. Errors name the place of the statement.
    void assign(NodeId target, const Node& statement);
    void assignName(NameId name, const Node& node, Held held = Held::other);
    void load(NameId name, const Node& node);
    /// The same as expression(); a name that stands there alone is meant as that.
    void expressionAs(NameRole role, NodeId id);
    /// The same for what is typed, and for the names that it is joined of.
    void typedExpression(NodeId id);
    /// A name that stands at the offset is meant as that.
    void nameAs(NameRole role, std::uint32_t offset);

  private:
    NodeId firstPart(const Node& node) const;
    NodeId containerOf(const Node& element) const;
    void behindFirstPart(const Node& node);
    void requireValue(const Node& node);
    bool leaf(const Node& node);
    bool target(const Node& node);
    void property(const Node& node);
    bool isVariable(const Node& processes) const;
    void processes(const Node& node);
    void filteredProcesses(const Node& node, NodeId condition);
    void items(const Node& node, Operation operation);
    void record(const Node& node);
    bool isNoNumber(const Node& node) const;
    bool addsText(const Node& node) const;
    void noteComparedText(const Node& node);
    void binary(const Node& node);
    void shortCircuit(const Node& node);
    void coercion(const Node& node);
    void predefined(const Node& node);
    void element(const Node& node, Operation operation);
    void textBetween(const Node& node);
    void referenceTo(const Node& node);
    void referenceToVariable(const Node& name);
    void call(const Node& node, bool hasTarget);

    void assignElement(const Node& node, const Node& statement);
    void assignPattern(const Node& node, const Node& statement);

    Emitter& m_out;
    const Tree& m_tree;
    /// The nodes whose first parts are being worked on, the innermost last.
    std::vector<NodeId> m_begun;
    /// What the name at an offset is meant as.
    NameRole m_role = NameRole::value;
    std::uint32_t m_roleOffset = 0xFFFFFFFF;
    /// What all other names are meant as.
    NameRole m_partRole = NameRole::value;
    /// Whether a condition is worked on that is asked of processes, whose properties it names.
    bool m_asksProcess = false;
};

}  // namespace script
