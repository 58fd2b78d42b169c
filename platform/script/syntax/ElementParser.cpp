// SPDX-License-Identifier: MIT
#include "platform/script/syntax/ElementParser.h"

#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Grammar.h"

namespace script {
namespace {

/// The index that an ordinal means, from the end if it is negative; 0 for other words.
int ordinalOf(Word word) {
    switch (word) {
        case Word::first:
        case Word::front:
            return 1;
        case Word::second:
            return 2;
        case Word::third:
            return 3;
        case Word::fourth:
            return 4;
        case Word::fifth:
            return 5;
        case Word::sixth:
            return 6;
        case Word::seventh:
            return 7;
        case Word::eighth:
            return 8;
        case Word::ninth:
            return 9;
        case Word::tenth:
            return 10;
        case Word::last:
        case Word::back:
            return -1;
        default:
            return 0;
    }
}

bool isFormWord(Word word) { return word == Word::some || word == Word::middle || word == Word::every; }

}  // namespace

std::optional<ElementParser::Kind> ElementParser::kindHere() const {
    if (m_tokens.isAtPhrase("text item")) return Kind{ElementKind::textItem, Type::anything, false, 2};
    if (m_tokens.isAtPhrase("text items")) return Kind{ElementKind::textItem, Type::anything, true, 2};
    if (!m_tokens.isAt(TokenKind::identifier)) return std::nullopt;
    const ElementName* name = findElementName(m_tokens.current());
    if (name == nullptr) return std::nullopt;
    return Kind{name->kind, name->type, name->isPlural, 1};
}

bool ElementParser::isAtTextRange() const {
    if (!m_tokens.isAtPhrase("text") || m_tokens.isAtPhrase("text item") || m_tokens.isAtPhrase("text items"))
        return false;
    const Token& next = m_tokens.ahead();
    return next.is(TokenKind::number) || next.is(TokenKind::minus) || next.is(TokenKind::leftParenthesis) ||
           next.is(Word::from) || next.is(Word::of) ||
           (next.is(TokenKind::identifier) && next.is(Word::none) &&
            (m_tokens.peek(2).is(Word::thru) || m_tokens.peek(2).is(Word::through)));
}

bool ElementParser::isAtElement() const {
    const Word word = m_tokens.current().word;
    if (ordinalOf(word) != 0 || isFormWord(word)) return true;
    if (word == Word::beginning || word == Word::end)
        return m_tokens.ahead().is(Word::of) || word == Word::beginning;
    if (word != Word::none) return false;
    if (isAtTextRange()) return true;
    const std::optional<Kind> kind = kindHere();
    if (!kind) return false;
    const Token next = m_tokens.peek(kind->words);
    if (kind->isPlural) return !next.is(TokenKind::leftParenthesis) || kind->kind != ElementKind::typed;
    if (kind->kind == ElementKind::typed) return next.is(TokenKind::number);
    // `item -1`, `item i of x`; by itself it is a class or a name.
    if (next.is(TokenKind::minus)) {
        const Token number = m_tokens.peek(kind->words + 1);
        return number.is(TokenKind::number) && number.text.data() == next.text.data() + 1;
    }
    if (next.is(TokenKind::identifier)) return next.is(Word::none) || kindOf(next.word) != WordKind::reserved;
    return next.is(TokenKind::number) || next.is(TokenKind::text) || next.is(TokenKind::leftParenthesis);
}

NodeId ElementParser::make(std::uint32_t offset, const Kind& kind, ElementForm form) {
    const NodeId node = m_tree.add(NodeKind::element, offset);
    setForm(node, kind, form);
    if (kind.kind == ElementKind::typed) {
        m_tree.nodes[node].value = static_cast<std::uint32_t>(kind.type) << elementnode::nameShift;
    }
    return node;
}

void ElementParser::setForm(NodeId node, const Kind& kind, ElementForm form) {
    m_tree.nodes[node].detail = static_cast<std::uint8_t>(
        (static_cast<unsigned>(kind.kind) << elementnode::kindShift) | static_cast<unsigned>(form));
}

NodeId ElementParser::element() { return withContainer(part()); }

NodeId ElementParser::elementOf(NodeId container) {
    const NodeId node = part();
    if (!m_tokens.failed() && m_tree.at(node).kind != NodeKind::processes) setContainer(node, container);
    return node;
}

NodeId ElementParser::ordinal(std::uint32_t offset, NodeId index, ElementForm form) {
    return withContainer(ordinalPart(offset, index, form));
}

NodeId ElementParser::part() {
    const Word word = m_tokens.current().word;
    if (ordinalOf(word) != 0) return ordinalWord();
    if (word == Word::some) return formWord(ElementForm::some);
    if (word == Word::middle) return formWord(ElementForm::middle);
    if (word == Word::every) return formWord(ElementForm::every);
    if (word == Word::beginning || word == Word::end) return endPart();
    if (isAtTextRange()) return textPart();
    return kindPart(*kindHere());
}

NodeId ElementParser::ordinalWord() {
    const std::uint32_t offset = m_tokens.offset();
    const int number = ordinalOf(m_tokens.current().word);
    m_tokens.advance();
    NodeId index =
        m_tree.add(NodeKind::integer, offset, static_cast<std::uint32_t>(number < 0 ? -number : number));
    if (number < 0) {
        const NodeId negated = m_tree.add(NodeKind::negation, offset);
        ChildList(m_tree, negated).append(index);
        index = negated;
    }
    return ordinalPart(offset, index, ElementForm::index);
}

NodeId ElementParser::formWord(ElementForm form) {
    const std::uint32_t offset = m_tokens.offset();
    m_tokens.advance();
    return ordinalPart(offset, noNode, form);
}

NodeId ElementParser::ordinalPart(std::uint32_t offset, NodeId index, ElementForm form) {
    if (m_grammar.processes.isAtWord()) return m_grammar.processes.those(offset, index, form);
    std::optional<Kind> kind = kindHere();
    if (!kind && m_tokens.isAtPhrase("text")) kind = Kind{ElementKind::typed, Type::text};
    if (!kind) {
        m_tokens.expected(part::className());
        return noNode;
    }
    m_tokens.advance(kind->words);
    const NodeId node = make(offset, *kind, form);
    ChildList(m_tree, node).append(index);
    return node;
}

/// `beginning of x` is item 1 to look at and another thing to set.
NodeId ElementParser::endPart() {
    const NodeId node = m_tree.add(NodeKind::propertyOf, m_tokens.offset());
    m_tree.nodes[node].value = m_grammar.names.nameHere();
    return node;
}

NodeId ElementParser::kindPart(const Kind& kind) { return kind.isPlural ? pluralPart(kind) : onePart(kind); }

/// item 1, item 1 thru 2
NodeId ElementParser::onePart(const Kind& kind) {
    const NodeId node = make(m_tokens.offset(), kind, ElementForm::index);
    m_tokens.advance(kind.words);
    ChildList children(m_tree, node);
    children.append(m_grammar.primaries.index());
    if (acceptThru()) {
        setForm(node, kind, ElementForm::range);
        children.append(m_grammar.primaries.index());
    }
    return node;
}

/// items, items 1 thru 2, items from 1 to 2
NodeId ElementParser::pluralPart(const Kind& kind) {
    const std::string_view word = m_tokens.current().text;
    const NodeId node = make(m_tokens.offset(), kind, ElementForm::every);
    m_tokens.advance(kind.words);
    if (m_tokens.isAt(Word::from) || m_grammar.primaries.isAtIndex()) {
        setForm(node, kind, ElementForm::range);
        range(node);
    } else if (kind.kind != ElementKind::typed && kind.words == 1) {
        m_tree.nodes[node].value =
            elementnode::isBare | (m_tree.names.intern(word) << elementnode::nameShift);
    }
    return node;
}

/// Its two indices: [from] index ( to | thru | through ) index
void ElementParser::range(NodeId node) {
    const bool isLong = m_tokens.accept(Word::from);
    ChildList children(m_tree, node);
    children.append(m_grammar.primaries.index());
    if (isLong) {
        m_tokens.expect(Word::to);
    } else if (!acceptThru()) {
        m_tokens.expect(Word::thru);
    }
    children.append(m_grammar.primaries.index());
}

bool ElementParser::acceptThru() { return m_tokens.accept(Word::thru) || m_tokens.accept(Word::through); }

/// text thru, text from ... to, and `text of x`, which is the text itself
NodeId ElementParser::textPart() {
    const std::uint32_t offset = m_tokens.offset();
    const Kind text{ElementKind::text};
    m_tokens.advance();
    if (m_tokens.isAt(Word::of)) return make(offset, text, ElementForm::every);
    if (m_tokens.accept(Word::from)) return textBetween(offset);
    const NodeId node = make(offset, text, ElementForm::range);
    range(node);
    return node;
}

NodeId ElementParser::textBetween(std::uint32_t offset) {
    const NodeId node = m_tree.add(NodeKind::textBetween, offset);
    ChildList children(m_tree, node);
    children.append(bound());
    m_tokens.expect(Word::to);
    children.append(bound());
    return node;
}

NodeId ElementParser::bound() {
    const std::optional<Kind> kind = kindHere();
    const std::uint32_t offset = m_tokens.offset();
    if (!kind || kind->isPlural) {
        const NodeId node = make(offset, {ElementKind::character}, ElementForm::index);
        ChildList(m_tree, node).append(m_grammar.primaries.index());
        return node;
    }
    return kindPart(*kind);
}

NodeId ElementParser::withContainer(NodeId node) {
    const bool found = m_tokens.isAt(Word::of) || (!m_context.inIsLabel() && m_tokens.isAt(Word::in));
    if (m_tokens.failed() || m_tree.at(node).kind == NodeKind::processes) return node;
    if (found) {
        m_tokens.advance();
        setContainer(node, m_grammar.expressions.reference());
    } else if (m_tree.at(node).kind == NodeKind::propertyOf) {
        m_tokens.expected(quoted("of"));
    }
    return node;
}

/// Elements carry their container behind their indices.
void ElementParser::setContainer(NodeId node, NodeId container) {
    NodeId* last = &m_tree.nodes[node].firstChild;
    while (*last != noNode) last = &m_tree.nodes[*last].nextSibling;
    *last = container;
    if (m_tree.at(node).kind == NodeKind::propertyOf) return;
    std::uint32_t& value = m_tree.nodes[node].value;
    const bool isBare = (value & elementnode::isBare) != 0;
    value = (isBare ? 0 : value) | elementnode::hasContainer;
}

NodeId ElementParser::characterId() {
    const NodeId node = m_tree.add(NodeKind::characterId, m_tokens.offset());
    m_tokens.advance(2);
    const bool isIndex = m_grammar.primaries.isAtIndex();
    ChildList(m_tree, node).append(isIndex ? m_grammar.primaries.index() : m_grammar.expressions.reference());
    return node;
}

}  // namespace script
