// SPDX-License-Identifier: MIT
#include "platform/script/syntax/NameParser.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Grammar.h"
#include "platform/script/values/PredefinedNames.h"

namespace script {
namespace {

constexpr auto longProperties =
    std::to_array<Phrase>({"button returned", "text returned", "gave up", "date string", "time string",
                           "short date string", "background only"});

/// What stands between bars.
std::string unbarred(std::string_view text) {
    std::string name;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] == '\\') ++i;
        name += text[i];
    }
    return name;
}

/// What may stand behind the name of a handler that is not called with parentheses.
bool beginsLabelledArguments(const Token& token) {
    return CallParser::isLabelWord(token.word) || token.is(Word::given) || token.is(Word::of) ||
           token.is(Word::with) || token.is(Word::without);
}

}  // namespace

NodeId NameParser::nameOrCall() {
    if (m_tokens.ahead().is(TokenKind::leftParenthesis)) {
        const NodeId node = m_grammar.calls.positional();
        if (!m_tokens.accept(Word::of)) return node;
        return callTo(m_grammar.expressions.reference(), node);
    }
    if (beginsLabelledArguments(m_tokens.ahead()) && m_grammar.calls.isLabelledHandler(m_tokens.current())) {
        return m_grammar.calls.labelled();
    }
    if (m_tokens.ahead().is(Word::of) || longPropertyHere(m_tokens) > 0) return property();
    return plainName();
}

NodeId NameParser::plainName() {
    const NodeId node = m_tree.add(NodeKind::name, m_tokens.offset());
    m_tree.nodes[node].value = nameHere();
    return node;
}

NodeId NameParser::memberOf(NodeKind owner) { return member(take(owner)); }

/// `my f()` is `f() of me`.
NodeId NameParser::member(NodeId container) {
    m_tokens.skipFiller();
    if (!m_tokens.isAt(TokenKind::identifier)) {
        m_tokens.expected(part::identifier());
        return noNode;
    }
    if (m_tokens.isAtPhrase("text item delimiters")) return delimiters();
    if (m_grammar.elements.isAtElement()) return m_grammar.elements.elementOf(container);
    if (m_tokens.ahead().is(TokenKind::leftParenthesis)) {
        return callTo(container, m_grammar.calls.positional());
    }
    if (m_grammar.calls.isLabelledHandler(m_tokens.current())) {
        return callTo(container, m_grammar.calls.labelled());
    }
    const NodeId node = propertyNode();
    ChildList(m_tree, node).append(container);
    return node;
}

NodeId NameParser::callTo(NodeId owner, NodeId call) {
    const NodeId node = m_tree.add(NodeKind::callTo, m_tree.at(call).offset);
    ChildList children(m_tree, node);
    children.append(owner);
    children.append(call);
    return node;
}

NodeId NameParser::property() {
    const NodeId node = propertyNode();
    const NodeId owner = m_tokens.accept(Word::of) ? m_grammar.expressions.reference()
                                                   : m_tree.add(NodeKind::it, m_tokens.offset());
    ChildList(m_tree, node).append(owner);
    return node;
}

/// Its name alone, without what it belongs to.
NodeId NameParser::propertyNode() {
    const NodeId node = m_tree.add(
        m_tokens.isAtPhrase("contents") ? NodeKind::contentsOf : NodeKind::propertyOf, m_tokens.offset());
    m_tree.nodes[node].value = nameHere();
    return node;
}

NodeId NameParser::delimiters() {
    const NodeId node = m_tree.add(NodeKind::delimiters, m_tokens.offset());
    m_tokens.acceptPhrase("text item delimiters");
    if (m_tokens.accept(Word::of)) m_grammar.expressions.reference();
    return node;
}

NodeId NameParser::predefined(std::uint8_t index) {
    const NodeId node = m_tree.add(NodeKind::predefined, m_tokens.offset());
    m_tree.nodes[node].detail = index;
    m_tree.nodes[node].value = nameHere();
    return node;
}

NameId NameParser::nameHere() {
    const Token token = m_tokens.current();
    const std::string_view text = token.text;
    if (const std::size_t count = longPropertyHere(m_tokens); count > 0) {
        std::string all(text);
        for (std::size_t i = 1; i < count; ++i) all += " " + std::string(m_tokens.peek(i).text);
        m_tokens.advance(count);
        return m_tree.names.intern(all);
    }
    m_tokens.advance();
    if (token.hash != 0 && text.front() != '|') return m_tree.names.intern(text, token.hash);
    return m_tree.names.intern(unbarred(text));
}

std::size_t NameParser::longPropertyHere(const TokenStream& tokens) {
    if (!tokens.current().is(Word::none) || !tokens.ahead().is(TokenKind::identifier)) return 0;
    const auto* found = std::find_if(longProperties.begin(), longProperties.end(),
                                     [&](const Phrase& name) { return tokens.isAtPhrase(name); });
    return found == longProperties.end() ? 0 : found->wordCount();
}

bool NameParser::expectName() {
    const Token& token = m_tokens.current();
    const bool isName =
        token.is(TokenKind::identifier) &&
        (token.is(Word::none) || !m_tokens.means(token.word) || kindOf(token.word) == WordKind::special);
    if (!isName) m_tokens.expected(part::identifier());
    return isName;
}

std::optional<std::uint8_t> NameParser::expectClass() {
    if (m_tokens.isAtPhrase("unicode text")) m_tokens.advance();
    const std::optional<std::uint8_t> index =
        m_tokens.isAt(TokenKind::identifier) ? findPredefinedName(m_tokens.current()) : std::nullopt;
    if (index && predefinedName(*index).kind == PredefinedName::Kind::type) return index;
    m_tokens.expected(part::className());
    return std::nullopt;
}

}  // namespace script
