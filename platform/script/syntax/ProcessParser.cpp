// SPDX-License-Identifier: MIT
#include "platform/script/syntax/ProcessParser.h"

#include <vector>

#include "platform/script/source/Name.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Grammar.h"
#include "platform/script/values/BinaryOperator.h"

namespace script {

bool ProcessParser::isAtWord() const {
    const Token& token = m_tokens.current();
    return token.is(Word::process) || (token.is(Word::application) && m_tokens.ahead().is(Word::process));
}

/// Outside of the dictionary it says by itself whose processes these are.
bool ProcessParser::isAtPlural() const {
    const std::size_t place = m_tokens.current().is(Word::application) ? 1 : 0;
    if (m_context.readsTarget() || !m_tokens.isAtPhrase("processes", place)) return false;
    const Token behind = m_tokens.peek(place + 1);
    const Token owner = m_tokens.peek(place + 2);
    const bool isOwned = behind.is(Word::of) && (owner.is(Word::application) || owner.is(Word::app));
    return m_tokens.knowsDictionary() || isOwned || behind.is(Word::whose) || behind.is(Word::where);
}

NodeId ProcessParser::plural() {
    const std::uint32_t offset = m_tokens.offset();
    const bool isLong = m_tokens.accept(Word::application);
    const NameId name = m_grammar.names.nameHere();
    const bool isBare = !isLong && !isAtFilter();
    const NodeId node = those(offset, noNode, ElementForm::every);
    if (!isBare) return node;
    m_tree.nodes[node].value = name;
    m_tree.nodes[node].detail |= processnode::isBare;
    return node;
}

NodeId ProcessParser::those(std::uint32_t offset, NodeId index, ElementForm form) {
    if (isAtWord()) m_tokens.advance(m_tokens.current().is(Word::application) ? 2 : 1);
    const NodeId node = m_tree.add(NodeKind::processes, offset);
    m_tree.nodes[node].detail = static_cast<std::uint8_t>(form);
    ChildList children(m_tree, node);
    children.append(index);
    if (isAtFilter()) {
        m_tree.nodes[node].detail |= processnode::hasCondition;
        children.append(condition());
    }
    m_grammar.applications.skipOwner();
    return node;
}

/// `whose it is frontmost` is the same without `it is`.
NodeId ProcessParser::condition() {
    m_tokens.advance();
    if (m_tokens.isAtPhrase("it is frontmost") || m_tokens.isAtPhrase("it is visible")) m_tokens.advance(2);
    const NodeId condition = expression();
    if (!m_tokens.failed()) refuseOtherTests(condition);
    return condition;
}

/// What is joined by `and`, `or` and `not` is looked at one by one.
void ProcessParser::refuseOtherTests(NodeId condition) {
    std::vector<NodeId> parts{condition};
    while (!parts.empty() && !m_tokens.failed()) {
        const NodeId id = parts.back();
        parts.pop_back();
        if (!joins(m_tree.at(id))) {
            if (!isTest(id)) refuse(id);
            continue;
        }
        for (NodeId part = m_tree.at(id).firstChild; part != noNode; part = m_tree.at(part).nextSibling)
            parts.push_back(part);
    }
}

bool ProcessParser::joins(const Node& node) {
    const auto operation = static_cast<BinaryOperator>(node.detail);
    return node.kind == NodeKind::inversion ||
           (node.kind == NodeKind::binary &&
            (operation == BinaryOperator::both || operation == BinaryOperator::either));
}

/// A property by itself, or compared with something.
bool ProcessParser::isTest(NodeId id) const {
    const Node& node = m_tree.at(id);
    if (node.kind != NodeKind::binary) return isProperty(id);
    return isProperty(node.firstChild) || isProperty(m_tree.at(node.firstChild).nextSibling);
}

bool ProcessParser::isProperty(NodeId id) const {
    while (m_tree.at(id).kind == NodeKind::coercion) id = m_tree.at(id).firstChild;
    const Node& node = m_tree.at(id);
    const bool isOfIt = node.kind == NodeKind::propertyOf && m_tree.at(node.firstChild).kind == NodeKind::it;
    return (isOfIt || node.kind == NodeKind::name) && names::isOfProcess(m_tree.names.at(node.value));
}

void ProcessParser::refuse(NodeId test) {
    while (m_tree.at(test).kind == NodeKind::binary) test = m_tree.at(test).firstChild;
    const std::uint32_t begin = m_tree.at(test).offset;
    m_tokens.fail(errornumber::syntax,
                  expectedButFound(alternatives({"name", "frontmost", "visible", "background only"}),
                                   m_tokens.describeAt(begin)),
                  begin);
}

/// As many are needed as the index says, or one.
NodeId ProcessParser::existence(NodeId processes) {
    const std::uint32_t offset = m_tree.at(processes).offset;
    const bool hasIndex =
        (m_tree.at(processes).detail & processnode::formMask) == static_cast<unsigned>(ElementForm::index);
    NodeId needed = m_tree.add(NodeKind::integer, offset, 1);
    if (hasIndex) {
        needed = m_tree.at(processes).firstChild;
        m_tree.nodes[processes].firstChild = m_tree.at(needed).nextSibling;
        m_tree.nodes[needed].nextSibling = noNode;
        if (m_tree.at(needed).kind == NodeKind::negation) needed = m_tree.at(needed).firstChild;
    }
    std::uint8_t& detail = m_tree.nodes[processes].detail;
    detail = static_cast<std::uint8_t>((detail & ~processnode::formMask) |
                                       static_cast<unsigned>(ElementForm::every));
    const NodeId count = m_tree.add(NodeKind::propertyOf, offset, m_tree.names.intern("length"));
    ChildList(m_tree, count).append(processes);
    const NodeId comparison = m_tree.add(NodeKind::binary, offset);
    m_tree.nodes[comparison].detail = static_cast<std::uint8_t>(BinaryOperator::greaterOrEqual);
    ChildList operands(m_tree, comparison);
    operands.append(count);
    operands.append(needed);
    return comparison;
}

}  // namespace script
