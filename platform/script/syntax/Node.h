// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "platform/script/source/Name.h"

namespace script {

/// What a node of the tree stands for. In brackets: its children in order, and what `value` and `detail`
/// hold.
enum class NodeKind : std::uint8_t {
    script,         ///< [statements]
    block,          ///< [statements]
    tell,           ///< [target, block]
    ifThen,         ///< [condition, block, condition, block, ..., block of `else`?]
    repeat,         ///< [block] for ever
    repeatTimes,    ///< [count, block]
    repeatWhile,    ///< [condition, block] detail: 1 for `until`
    repeatRange,    ///< [from, to, step?, block] value: name
    repeatIn,       ///< [list, block] value: name
    exitRepeat,     ///< []
    tryBlock,       ///< [block, onError?]
    onError,        ///< [errorPart of names or values, block]
    errorPart,      ///< [expression, or name to set] detail: ErrorPart
    raise,          ///< [errorPart]
    returnValue,    ///< [expression?]
    set,            ///< [target, expression]
    copy,           ///< [target, expression]
    evaluate,       ///< [expression] as a statement
    declareGlobal,  ///< [names]
    declareLocal,   ///< [names]
    property,       ///< [expression] value: name
    handler,        ///< [parameters, block] value: name; detail: 1 if it is labelled
    parameter,      ///< [name or list of names] value: name of the label
    considering,    ///< [block] value: attributes considered, those ignored 8 bits up
    timeout,        ///< [seconds, block]

    integer,       ///< [] value: the number, at most maxInteger
    real,          ///< [] value: index into reals
    text,          ///< [] value: index into texts
    truth,         ///< [] value: 0 or 1
    missingValue,  ///< []
    modifierDown,  ///< [] `command down`; value: bit of platform/Modifiers.h
    modifierKey,   ///< [] `command`; value: likewise
    predefined,    ///< [] value: name; detail: index of its PredefinedName
    name,          ///< [] value: name
    me,            ///< []
    it,            ///< []
    result,        ///< []
    delimiters,    ///< [] text item delimiters
    appleScript,   ///< []
    application,   ///< [] value: name in texts; detail: 1 if it is System Events. Or [name], without both
    process,       ///< [name, or index among all]
    processes,     ///< [index?, condition?] detail: form, and bits of processnode; value: name, if it has one
    list,          ///< [items]
    record,        ///< [fields]
    field,         ///< [expression] value: name
    negation,      ///< [operand]
    inversion,     ///< [operand] `not`; value: 1 if parentheses enclose it
    binary,        ///< [left, right] detail: BinaryOperator; value: 1 if parentheses enclose it
    coercion,      ///< [operand] detail: Type; or [operand, list of coercions] for several, value: 1
    element,       ///< [index?, last index?, container?] detail: kind and form; value: bits of elementnode
    textBetween,   ///< [element, element, container?] the elements without containers
    propertyOf,    ///< [container] value: name
    referenceTo,   ///< [expression]
    contentsOf,    ///< [expression]
    characterId,   ///< [number or list]
    call,          ///< [arguments] value: name; detail: 1 if the arguments have labels
    argument,      ///< [expression] value: name of the label; of a command: index of the parameter
    callTo,        ///< [target, call]
    command,  ///< [arguments, the direct one first] value: index of the Command; detail: 1 with a direct one
};

/// The parts of an error that `error` gives and `on error` takes.
enum class ErrorPart : std::uint8_t { message, number, from, partialResult, to };

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

/// What the nodes of elements hold.
namespace elementnode {
inline constexpr std::uint32_t hasContainer = 1;
/// The plural by itself, which is a name where a variable is called so; the name is 8 bits up.
inline constexpr std::uint32_t isBare = 2;
inline constexpr unsigned nameShift = 8;
/// `detail` holds the form in its lower bits, the kind above, and for the kind `typed` the class is in value
/// above `nameShift`.
inline constexpr unsigned kindShift = 4;
inline constexpr std::uint8_t formMask = 15;
}  // namespace elementnode

/// What `detail` of a node of processes holds beside the form.
namespace processnode {
inline constexpr std::uint8_t hasCondition = 16;
/// The plural by itself, which is a name where a variable is called so.
inline constexpr std::uint8_t isBare = 32;
inline constexpr std::uint8_t formMask = 15;
}  // namespace processnode

/// A place where the lines behind it stand deeper, or less deep again.
struct BlockMark {
    std::uint32_t offset = 0;
    int change = 0;
};

/// A script as a tree. Texts are views of the source where they can be; the source outlives the tree.
struct Tree {
    std::vector<Node> nodes;
    std::vector<double> reals;
    std::vector<std::string_view> texts;
    /// Texts that differ from how they are spelled; a deque, because texts holds views of them.
    std::deque<std::string> decoded;
    NameTable names;
    std::vector<BlockMark> blocks;

    const Node& at(NodeId id) const { return nodes[id]; }
    NodeId add(NodeKind kind, std::uint32_t offset, std::uint32_t value = 0) {
        nodes.push_back({kind, 0, offset, value, noNode, noNode});
        return static_cast<NodeId>(nodes.size() - 1);
    }
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
