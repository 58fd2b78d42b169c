// SPDX-License-Identifier: MIT
#include "platform/script/syntax/BlockParser.h"

#include <array>

#include "platform/Sentence.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Grammar.h"
#include "platform/script/values/TextRules.h"

namespace script {
namespace {

struct Attribute {
    Phrase words;
    std::uint8_t bit;  ///< 0 for what has no effect
};

constexpr auto textAttributes = std::to_array<Attribute>({{"case", attribute::letterCase},
                                                          {"diacriticals", attribute::diacriticals},
                                                          {"hyphens", attribute::hyphens},
                                                          {"numeric strings", attribute::numericStrings},
                                                          {"punctuation", attribute::punctuation},
                                                          {"white space", attribute::whiteSpace},
                                                          {"application responses", 0}});

Sentence anyAttribute() {
    std::vector<std::string_view> words;
    for (const Attribute& row : textAttributes) words.push_back(row.words.spelling());
    return alternatives(words);
}

}  // namespace

bool BlockParser::isAtBlock() const {
    switch (m_tokens.current().word) {
        case Word::tell:
        case Word::ifWord:
        case Word::repeat:
        case Word::tryWord:
        case Word::considering:
        case Word::ignoring:
        case Word::with:
            return true;
        case Word::usingWord:
            return !m_tokens.ahead().is(Word::to) && !m_tokens.ahead().is(TokenKind::endOfLine);
        default:
            return false;
    }
}

NodeId BlockParser::statement() {
    switch (m_tokens.current().word) {
        case Word::tell:
            return tell();
        case Word::ifWord:
            return ifThen();
        case Word::repeat:
            return repeat();
        case Word::tryWord:
            return tryBlock();
        case Word::with:
            return timeout();
        case Word::usingWord:
            return usingTerms();
        default:
            return considering();
    }
}

/// A block behind its head, whose line ends here.
NodeId BlockParser::body() {
    m_tokens.expectLineEnd();
    return m_grammar.statements.block();
}

NodeId BlockParser::tell() {
    TellScope scope(m_context);
    const NodeId node = take(NodeKind::tell);
    ChildList children(m_tree, node);
    children.append(tellTarget(scope));
    if (m_tokens.accept(Word::to)) {
        children.append(statementBlock());
    } else {
        children.append(body());
        m_grammar.statements.acceptEnd(Word::tell);
    }
    return node;
}

/// An application's own dictionary, or none, is in force behind it.
NodeId BlockParser::tellTarget(TellScope& scope) {
    m_tokens.skipFiller();
    ApplicationParser& applications = m_grammar.applications;
    const bool readsApplication = applications.isAtApplicationWord();
    if (applications.isAtProcessOfSystemEvents()) scope.setKnown(true);
    if (!readsApplication || applications.isAtProcess()) return expression();
    const NodeId target = applications.application();
    if (!m_tokens.failed()) scope.setKnown(m_tree.at(target).detail != 0);
    return target;
}

/// A block of the one statement that stands here.
NodeId BlockParser::statementBlock() {
    const NodeId block = m_tree.add(NodeKind::block, m_tokens.offset());
    ChildList(m_tree, block).append(m_grammar.statements.statement());
    return block;
}

NodeId BlockParser::ifThen() {
    const NodeId node = take(NodeKind::ifThen);
    ChildList children(m_tree, node);
    children.append(expression());
    const bool hasThen = m_tokens.accept(Word::then);
    if (!m_tokens.isAtLineEnd()) {
        if (!hasThen) m_tokens.expected(quoted("then"));
        children.append(statementBlock());
        return node;
    }
    children.append(body());
    elseParts(children);
    m_grammar.statements.acceptEnd(Word::ifWord);
    return node;
}

void BlockParser::elseParts(ChildList& children) {
    while (m_tokens.accept(Word::elseWord)) {
        const bool isLast = !m_tokens.accept(Word::ifWord);
        if (!isLast) {
            children.append(expression());
            m_tokens.accept(Word::then);
        }
        children.append(body());
        if (isLast) return;
    }
}

NodeId BlockParser::repeat() {
    const NodeId node = take(NodeKind::repeat);
    ChildList children(m_tree, node);
    const bool isUntil = m_tokens.isAt(Word::until);
    if (isUntil || m_tokens.isAt(Word::whileWord)) {
        m_tokens.advance();
        m_tree.nodes[node].kind = NodeKind::repeatWhile;
        m_tree.nodes[node].detail = isUntil ? 1 : 0;
        children.append(expression());
    } else if (m_tokens.accept(Word::with)) {
        repeatWith(node, children);
    } else if (!m_tokens.isAtLineEnd()) {
        m_tree.nodes[node].kind = NodeKind::repeatTimes;
        children.append(expression());
        m_tokens.accept(Word::times);
    }
    const LoopScope loop(m_context);
    children.append(body());
    m_grammar.statements.acceptEnd(Word::repeat);
    return node;
}

void BlockParser::repeatWith(NodeId node, ChildList& children) {
    m_tokens.skipFiller();
    if (!m_grammar.names.expectName()) return;
    m_tree.nodes[node].value = m_grammar.names.nameHere();
    if (m_tokens.accept(Word::in)) {
        m_tree.nodes[node].kind = NodeKind::repeatIn;
        children.append(expression());
        return;
    }
    m_tree.nodes[node].kind = NodeKind::repeatRange;
    if (!m_tokens.accept(Word::from)) {
        m_tokens.expected(alternatives({"from", "in"}));
        return;
    }
    children.append(expression());
    m_tokens.expect(Word::to);
    children.append(expression());
    if (m_tokens.accept(Word::by)) children.append(expression());
}

NodeId BlockParser::tryBlock() {
    const NodeId node = take(NodeKind::tryBlock);
    ChildList children(m_tree, node);
    children.append(body());
    if (m_tokens.isAt(Word::on, Word::error)) children.append(onError());
    m_grammar.statements.acceptEnd(m_tokens.ahead().is(Word::error) ? Word::error : Word::tryWord);
    return node;
}

NodeId BlockParser::onError() {
    const NodeId node = m_tree.add(NodeKind::onError, m_tokens.offset());
    m_tokens.accept(Word::on, Word::error);
    ChildList children(m_tree, node);
    m_grammar.statements.errorParts(children, true);
    children.append(body());
    return node;
}

NodeId BlockParser::errorTarget() {
    const bool isValue =
        m_tokens.isAt(TokenKind::number) || m_tokens.isAt(TokenKind::text) || m_tokens.isAt(TokenKind::minus);
    return isValue ? m_grammar.primaries.index() : m_grammar.statements.target();
}

NodeId BlockParser::considering() {
    const NodeId node = m_tree.add(NodeKind::considering, m_tokens.offset());
    const bool considers = m_tokens.isAt(Word::considering);
    const Word word = considers ? Word::considering : Word::ignoring;
    m_tokens.advance();
    const std::uint32_t first = attributes(0);
    std::uint32_t others = 0;
    if (m_tokens.accept(Word::but)) {
        m_tokens.expect(considers ? Word::ignoring : Word::considering);
        others = attributes(first);
    }
    m_tree.nodes[node].value = considers ? first | (others << 8U) : others | (first << 8U);
    ChildList(m_tree, node).append(body());
    m_grammar.statements.acceptEnd(word);
    return node;
}

std::uint32_t BlockParser::attributes(std::uint32_t others) {
    std::uint32_t bits = 0;
    do {
        const Token token = m_tokens.current();
        const std::uint32_t offset = m_tokens.offset();
        const std::uint32_t bit = attributeHere();
        if ((bit & others) != 0) {
            m_tokens.fail(
                errornumber::considerAndIgnore,
                sentence("ScriptErrors", "Can’t both consider and ignore %1.").arg(asciiLowered(token.text)),
                offset);
        }
        bits |= bit;
    } while (m_tokens.accept(TokenKind::comma) || m_tokens.accept(Word::andWord));
    return bits;
}

std::uint32_t BlockParser::attributeHere() {
    for (const Attribute& row : textAttributes) {
        if (m_tokens.acceptPhrase(row.words)) return row.bit;
    }
    m_tokens.expected(anyAttribute());
    return 0;
}

NodeId BlockParser::timeout() {
    const NodeId node = take(NodeKind::timeout);
    m_tokens.expect(Word::timeout);
    m_tokens.accept(Word::of);
    ChildList children(m_tree, node);
    children.append(expression());
    if (!m_tokens.acceptPhrase("second")) m_tokens.expect("seconds");
    children.append(body());
    m_grammar.statements.acceptEnd(Word::timeout);
    return node;
}

/// The block alone: there is nothing to do when it runs.
NodeId BlockParser::usingTerms() {
    m_tokens.advance();
    m_tokens.expect("terms from");
    DictionaryScope scope(m_context);
    m_tokens.skipFiller();
    if (m_grammar.applications.isAtApplicationWord()) {
        const NodeId application = m_grammar.applications.application();
        if (!m_tokens.failed() && m_tree.at(application).detail != 0) scope.setKnown(true);
    } else {
        m_tokens.expected(quoted("application"));
    }
    const NodeId block = body();
    if (m_grammar.statements.acceptEnd(Word::usingWord)) m_tokens.acceptPhrase("terms from");
    return block;
}

}  // namespace script
