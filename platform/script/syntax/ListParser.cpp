// SPDX-License-Identifier: MIT
#include "platform/script/syntax/ListParser.h"

#include <algorithm>
#include <string>
#include <vector>

#include "platform/Sentence.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Grammar.h"
#include "platform/script/values/Coercion.h"

namespace script {

/// Braces with a name and a colon in them hold a record.
NodeId ListParser::listOrRecord() {
    const BracketScope scope(m_context);
    const NodeId node = take(NodeKind::list);
    if (m_tokens.accept(TokenKind::rightBrace)) return node;
    if (isAtField()) {
        m_tree.nodes[node].kind = NodeKind::record;
        fields(node);
    } else {
        items(node);
    }
    m_tokens.expectListEnd(TokenKind::rightBrace);
    return node;
}

bool ListParser::isAtField() const {
    if (!m_tokens.isAt(TokenKind::identifier)) return false;
    if (m_tokens.ahead().is(TokenKind::colon)) return true;
    const std::size_t words = NameParser::longPropertyHere(m_tokens);
    return words > 0 && m_tokens.peek(words).is(TokenKind::colon);
}

void ListParser::items(NodeId list) {
    ChildList children(m_tree, list);
    std::uint32_t count = 0;
    do {
        if (++count > maxListItems) {
            m_tokens.fail(errornumber::syntax,
                          sentence("ScriptErrors", "Expected at most %1 items in a list but found more.")
                              .arg(std::to_string(maxListItems)));
        }
        children.append(expression());
    } while (m_tokens.accept(TokenKind::comma));
}

void ListParser::fields(NodeId record) {
    ChildList children(m_tree, record);
    std::vector<NameId> names;
    do {
        const std::uint32_t offset = m_tokens.offset();
        const std::string spelling(m_tokens.current().text);
        const NameId name = fieldName();
        if (std::find(names.begin(), names.end(), name) != names.end()) {
            m_tokens.fail(errornumber::propertyTwice, propertyTwice(spelling), offset);
        }
        names.push_back(name);
        if (names.size() > maxFields) {
            m_tokens.fail(
                errornumber::syntax,
                sentence("ScriptErrors", "Expected at most %1 properties in a record but found more.")
                    .arg(std::to_string(maxFields)));
        }
        const NodeId field = m_tree.add(NodeKind::field, offset, name);
        ChildList(m_tree, field).append(expression());
        children.append(field);
    } while (m_tokens.accept(TokenKind::comma));
}

NameId ListParser::fieldName() {
    if (!m_tokens.isAt(TokenKind::identifier)) {
        m_tokens.expected(part::identifier());
        return 0;
    }
    const NameId name = m_grammar.names.nameHere();
    m_tokens.expect(TokenKind::colon);
    return name;
}

}  // namespace script
