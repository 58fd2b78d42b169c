// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace script {

/// What a node of the tree stands for. In brackets: its children in order, and what `value` and `detail`
/// hold.
enum class NodeKind : std::uint8_t {
    script,       ///< [statements]
    tell,         ///< [target, statements]
    keyCode,      ///< [codes, modifiers?]
    keystroke,    ///< [text, modifiers?]
    keyDown,      ///< [keys]
    keyUp,        ///< [keys]
    delay,        ///< [seconds?]
    repeat,       ///< [statements] for ever
    repeatTimes,  ///< [count, statements]
    exitRepeat,   ///< []
    evaluate,     ///< [expression] as a statement

    application,  ///< [] value: name in texts; detail: 1 if it is System Events
    process,      ///< [name]

    integer,       ///< [] value: the number, at most maxInteger
    real,          ///< [] value: index into reals
    text,          ///< [] value: index into texts
    modifierDown,  ///< [] `command down`; value: bit of platform/Modifiers.h
    modifierKey,   ///< [] `command`; value: likewise
    name,          ///< [] value: index into texts, as spelled
    list,          ///< [items]
    negation,      ///< [operand]
    binary,        ///< [left, right] detail: BinaryOperator
};

/// Whole numbers reach to 2^29 - 1 either way; larger ones are reals.
inline constexpr std::int64_t maxInteger = 536870911;

/// An index into Tree::nodes. The script itself is node 0, which is nobody's child, so 0 also means "none".
using NodeId = std::uint32_t;
inline constexpr NodeId noNode = 0;

/// Small and without an owner: nodes live in the tree's arena and are joined by index.
struct Node {
    NodeKind kind = NodeKind::script;
    std::uint8_t detail = 0;
    std::uint32_t offset = 0;  ///< in bytes, where the node begins in the source
    std::uint32_t value = 0;
    NodeId firstChild = noNode;
    NodeId nextSibling = noNode;
};

/// A script as a tree. Texts are views of the source where they can be; the source outlives the tree.
struct Tree {
    std::vector<Node> nodes;
    std::vector<double> reals;
    std::vector<std::string_view> texts;
    /// Texts that differ from how they are spelled; a deque, because texts holds views of them.
    std::deque<std::string> decoded;

    const Node& at(NodeId id) const { return nodes[id]; }
    NodeId add(NodeKind kind, std::uint32_t offset, std::uint32_t value = 0);
    std::uint32_t addText(std::string_view text);
    std::uint32_t addDecoded(std::string text);
    std::uint32_t addReal(double value);
};

/// Appends children to a node, one after another.
class ChildList {
  public:
    ChildList(Tree& tree, NodeId parent) : m_tree(tree), m_parent(parent) {}

    /// `noNode` is left out.
    void append(NodeId child);

  private:
    Tree& m_tree;
    NodeId m_parent;
    NodeId m_last = noNode;
};

}  // namespace script
