// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Node.h"

#include <utility>

namespace script {

std::uint32_t Tree::addText(std::string_view text) {
    texts.push_back(text);
    return static_cast<std::uint32_t>(texts.size() - 1);
}

std::uint32_t Tree::addDecoded(std::string text) {
    decoded.push_back(std::move(text));
    return addText(decoded.back());
}

std::uint32_t Tree::addReal(double value) {
    reals.push_back(value);
    return static_cast<std::uint32_t>(reals.size() - 1);
}

void ChildList::append(NodeId child) {
    if (child == noNode) return;
    NodeId& link = m_last == noNode ? m_tree.nodes[m_parent].firstChild : m_tree.nodes[m_last].nextSibling;
    link = child;
    m_last = child;
}

}  // namespace script
