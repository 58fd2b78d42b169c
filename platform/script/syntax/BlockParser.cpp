// SPDX-License-Identifier: MIT
#include "platform/script/syntax/BlockParser.h"

#include <array>

#include "platform/script/source/Scoped.h"
#include "platform/script/source/SystemEvents.h"
#include "platform/script/syntax/Parser.h"
#include "platform/script/syntax/StatementParser.h"
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

constexpr std::string_view attributeList =
    "“case”, “diacriticals”, “hyphens”, “numeric strings”, “punctuation”, “white space” or “application "
    "responses”";

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
    if (!m_tokens.isAtLineEnd()) m_tokens.expected("end of line");
    return m_statements.block();
}

NodeId BlockParser::tell() {
    const NodeId node = m_tree.add(NodeKind::tell, m_tokens.offset());
    const Scoped<int> tells(m_statements.surroundings().tells, m_statements.surroundings().tells + 1);
    if (m_statements.surroundings().tells > Parser::maxTells) {
        m_tokens.fail(errornumber::tellTooDeep, "Tell statements are nested too deeply.");
    }
    m_tokens.advance();
    const bool knewDictionary = m_tokens.knowsDictionary();
    ChildList children(m_tree, node);
    children.append(tellTarget());
    if (m_tokens.accept(Word::to)) {
        const NodeId block = m_tree.add(NodeKind::block, m_tokens.offset());
        ChildList(m_tree, block).append(m_statements.statement());
        children.append(block);
    } else {
        children.append(body());
        m_statements.acceptEnd(Word::tell);
    }
    m_tokens.setKnowsDictionary(knewDictionary);
    return node;
}

/// `tell [application] process "X" of application "System Events"`: the dictionary stands behind its word.
bool BlockParser::namesProcessOfSystemEvents() const {
    const int start = m_tokens.current().is(Word::application) ? 1 : 0;
    if (!m_tokens.peek(start).is(Word::process) || !m_tokens.peek(start + 2).is(Word::of)) return false;
    const Token owner = m_tokens.peek(start + 3);
    const std::string_view name = m_tokens.peek(start + 4).text;
    return (owner.is(Word::application) || owner.is(Word::app)) && name.size() > 2 &&
           isSystemEvents(name.substr(1, name.size() - 2), false);
}

/// An application's own dictionary, or none, is in force behind it.
NodeId BlockParser::tellTarget() {
    m_tokens.skipFiller();
    const bool readsApplication = m_tokens.isAt(Word::application) || m_tokens.isAt(Word::app);
    if (namesProcessOfSystemEvents()) m_tokens.setKnowsDictionary(true);
    if (readsApplication && !m_primaries.isAtProcess()) {
        const NodeId target = m_primaries.application();
        if (!m_tokens.failed()) m_tokens.setKnowsDictionary(m_tree.at(target).detail != 0);
        return target;
    }
    return m_primaries.expressions().expression();
}

NodeId BlockParser::ifThen() {
    const NodeId node = m_tree.add(NodeKind::ifThen, m_tokens.offset());
    m_tokens.advance();
    ChildList children(m_tree, node);
    children.append(m_primaries.expressions().expression());
    const bool hasThen = m_tokens.accept(Word::then);
    if (!m_tokens.isAtLineEnd()) {
        if (!hasThen) m_tokens.expected("“then”");
        const NodeId block = m_tree.add(NodeKind::block, m_tokens.offset());
        ChildList(m_tree, block).append(m_statements.statement());
        children.append(block);
        return node;
    }
    children.append(body());
    elseParts(children);
    m_statements.acceptEnd(Word::ifWord);
    return node;
}

void BlockParser::elseParts(ChildList& children) {
    while (m_tokens.accept(Word::elseWord)) {
        const bool isLast = !m_tokens.accept(Word::ifWord);
        if (!isLast) {
            children.append(m_primaries.expressions().expression());
            m_tokens.accept(Word::then);
        }
        children.append(body());
        if (isLast) return;
    }
}

NodeId BlockParser::repeat() {
    const NodeId node = m_tree.add(NodeKind::repeat, m_tokens.offset());
    m_tokens.advance();
    ChildList children(m_tree, node);
    const bool isUntil = m_tokens.isAt(Word::until);
    if (isUntil || m_tokens.isAt(Word::whileWord)) {
        m_tokens.advance();
        m_tree.nodes[node].kind = NodeKind::repeatWhile;
        m_tree.nodes[node].detail = isUntil ? 1 : 0;
        children.append(m_primaries.expressions().expression());
    } else if (m_tokens.accept(Word::with)) {
        repeatWith(node, children);
    } else if (!m_tokens.isAtLineEnd()) {
        m_tree.nodes[node].kind = NodeKind::repeatTimes;
        children.append(m_primaries.expressions().expression());
        m_tokens.accept(Word::times);
    }
    const Scoped<int> loops(m_statements.surroundings().loops, m_statements.surroundings().loops + 1);
    children.append(body());
    m_statements.acceptEnd(Word::repeat);
    return node;
}

void BlockParser::repeatWith(NodeId node, ChildList& children) {
    m_tokens.skipFiller();
    if (!m_primaries.expectName()) return;
    m_tree.nodes[node].value = m_primaries.nameHere();
    if (m_tokens.accept(Word::in)) {
        m_tree.nodes[node].kind = NodeKind::repeatIn;
        children.append(m_primaries.expressions().expression());
        return;
    }
    m_tree.nodes[node].kind = NodeKind::repeatRange;
    if (!m_tokens.accept(Word::from)) {
        m_tokens.expected("“from” or “in”");
        return;
    }
    children.append(m_primaries.expressions().expression());
    if (!m_tokens.accept(Word::to)) m_tokens.expected("“to”");
    children.append(m_primaries.expressions().expression());
    if (m_tokens.accept(Word::by)) children.append(m_primaries.expressions().expression());
}

NodeId BlockParser::tryBlock() {
    const NodeId node = m_tree.add(NodeKind::tryBlock, m_tokens.offset());
    m_tokens.advance();
    ChildList children(m_tree, node);
    children.append(body());
    if (m_tokens.isAt(Word::on, Word::error)) children.append(onError());
    m_statements.acceptEnd(m_tokens.ahead().is(Word::error) ? Word::error : Word::tryWord);
    return node;
}

NodeId BlockParser::onError() {
    const NodeId node = m_tree.add(NodeKind::onError, m_tokens.offset());
    m_tokens.accept(Word::on, Word::error);
    ChildList children(m_tree, node);
    m_statements.errorParts(children, true);
    children.append(body());
    return node;
}

NodeId BlockParser::errorTarget() {
    const bool isValue =
        m_tokens.isAt(TokenKind::number) || m_tokens.isAt(TokenKind::text) || m_tokens.isAt(TokenKind::minus);
    return isValue ? m_primaries.expressions().index() : m_statements.target();
}

NodeId BlockParser::considering() {
    const NodeId node = m_tree.add(NodeKind::considering, m_tokens.offset());
    const bool considers = m_tokens.isAt(Word::considering);
    const Word word = considers ? Word::considering : Word::ignoring;
    m_tokens.advance();
    const std::uint32_t first = attributes(0);
    std::uint32_t others = 0;
    if (m_tokens.accept(Word::but)) {
        if (!m_tokens.accept(considers ? Word::ignoring : Word::considering)) {
            m_tokens.expected(considers ? "“ignoring”" : "“considering”");
        }
        others = attributes(first);
    }
    m_tree.nodes[node].value = considers ? first | (others << 8U) : others | (first << 8U);
    ChildList(m_tree, node).append(body());
    m_statements.acceptEnd(word);
    return node;
}

std::uint32_t BlockParser::attributes(std::uint32_t others) {
    std::uint32_t bits = 0;
    do {
        const Token token = m_tokens.current();
        const std::uint32_t offset = m_tokens.offset();
        const std::uint32_t bit = attributeHere();
        if ((bit & others) != 0) {
            m_tokens.fail(errornumber::considerAndIgnore,
                          "Can’t both consider and ignore " + asciiLowered(token.text) + ".", offset);
        }
        bits |= bit;
    } while (m_tokens.accept(TokenKind::comma) || m_tokens.accept(Word::andWord));
    return bits;
}

std::uint32_t BlockParser::attributeHere() {
    for (const Attribute& row : textAttributes) {
        if (m_tokens.acceptPhrase(row.words)) return row.bit;
    }
    m_tokens.expected(attributeList);
    return 0;
}

NodeId BlockParser::timeout() {
    const NodeId node = m_tree.add(NodeKind::timeout, m_tokens.offset());
    m_tokens.advance();
    if (!m_tokens.accept(Word::timeout)) m_tokens.expected("“timeout”");
    m_tokens.accept(Word::of);
    ChildList children(m_tree, node);
    children.append(m_primaries.expressions().expression());
    if (!m_tokens.acceptPhrase("seconds") && !m_tokens.acceptPhrase("second")) m_tokens.expected("“seconds”");
    children.append(body());
    m_statements.acceptEnd(Word::timeout);
    return node;
}

/// The block alone: there is nothing to do when it runs.
NodeId BlockParser::usingTerms() {
    m_tokens.advance();
    if (!m_tokens.acceptPhrase("terms from")) m_tokens.expected("“terms from”");
    const bool knewDictionary = m_tokens.knowsDictionary();
    m_tokens.skipFiller();
    if (m_tokens.isAt(Word::application) || m_tokens.isAt(Word::app)) {
        const NodeId application = m_primaries.application();
        if (!m_tokens.failed() && m_tree.at(application).detail != 0) m_tokens.setKnowsDictionary(true);
    } else {
        m_tokens.expected("“application”");
    }
    const NodeId block = body();
    if (m_statements.acceptEnd(Word::usingWord)) m_tokens.acceptPhrase("terms from");
    m_tokens.setKnowsDictionary(knewDictionary);
    return block;
}

}  // namespace script
