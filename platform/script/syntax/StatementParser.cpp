// SPDX-License-Identifier: MIT
#include "platform/script/syntax/StatementParser.h"

#include <algorithm>
#include <array>

#include "platform/script/source/Scoped.h"

namespace script {
namespace {

struct PartWord {
    Phrase words;
    ErrorPart part;
};

constexpr auto partWords = std::to_array<PartWord>({{"number", ErrorPart::number},
                                                    {"from", ErrorPart::from},
                                                    {"partial result", ErrorPart::partialResult},
                                                    {"to", ErrorPart::to}});

}  // namespace

StatementParser::StatementParser(TokenStream& tokens, Tree& tree, PrimaryParser& primaries)
    : m_tokens(tokens), m_tree(tree), m_primaries(primaries), m_blocks(tokens, tree, primaries, *this) {}

/// `end of x` is no end.
bool StatementParser::isAtBlockEnd() const {
    if (m_tokens.isAt(TokenKind::endOfScript) || m_tokens.isAt(Word::elseWord)) return true;
    if (m_tokens.isAt(Word::end)) return !m_tokens.ahead().is(Word::of);
    return m_tokens.isAt(Word::on) || m_tokens.isAt(Word::to);
}

NodeId StatementParser::block() {
    const NodeId node = m_tree.add(NodeKind::block, m_tokens.offset());
    m_tree.blocks.push_back({m_tokens.offset(), 1});
    ChildList children(m_tree, node);
    while (!isAtBlockEnd()) {
        if (m_tokens.accept(TokenKind::endOfLine)) continue;
        children.append(statement());
        endStatement();
    }
    m_tree.blocks.push_back({m_tokens.offset(), -1});
    return node;
}

void StatementParser::endStatement() {
    if (m_tokens.isAtLineEnd()) {
        m_tokens.accept(TokenKind::endOfLine);
    } else {
        m_tokens.expected("end of line");
    }
}

bool StatementParser::acceptEnd(Word word) {
    const bool isNamed = m_tokens.ahead().is(TokenKind::identifier);
    if (!m_tokens.isAt(Word::end) || (word != Word::none && isNamed && !m_tokens.ahead().is(word)) ||
        (word == Word::none && isNamed && TokenStream::namesBlock(m_tokens.ahead().word))) {
        m_tokens.expected("“end”");
        return false;
    }
    m_tokens.advance();
    if (word != Word::none) m_tokens.accept(word);
    return !m_tokens.failed();
}

NodeId StatementParser::statement() {
    const Nesting nesting(m_tokens);
    m_tokens.skipFiller();
    switch (m_tokens.current().word) {
        case Word::set:
            return set();
        case Word::copy:
            return copy(Word::to);
        case Word::put:
            return copy(Word::into);
        case Word::returnWord:
            return returnValue();
        case Word::error:
            return raise();
        case Word::exit:
            return exitRepeat();
        case Word::global:
            return declaration(NodeKind::declareGlobal);
        case Word::local:
            return declaration(NodeKind::declareLocal);
        case Word::get:
            m_tokens.advance();
            return evaluate();
        case Word::use:
        case Word::script:
        case Word::transaction:
            if (refuseForbidden()) return noNode;
            return evaluate();
        default:
            if (m_blocks.isAtBlock()) return m_blocks.statement();
            return evaluate();
    }
}

bool StatementParser::refuseForbidden() {
    if (m_tokens.isAt(Word::use)) {
        m_tokens.fail(errornumber::syntax, "“use” is refused: a macro can press keys and nothing else.");
        return true;
    }
    if (m_tokens.isAt(Word::script) && m_tokens.ahead().is(TokenKind::identifier)) {
        m_tokens.fail(errornumber::syntax, "“script” is refused: a macro is one script.");
        return true;
    }
    return false;
}

NodeId StatementParser::set() {
    const std::uint32_t offset = m_tokens.offset();
    m_tokens.advance();
    m_tokens.skipFiller();
    if (m_tokens.isAtPhrase("clipboard to")) return setClipboard(offset);
    const NodeId node = m_tree.add(NodeKind::set, offset);
    ChildList children(m_tree, node);
    children.append(target());
    if (!m_tokens.accept(Word::to)) m_tokens.expected("“to”");
    children.append(m_primaries.expressions().expression());
    return node;
}

/// `set the clipboard to x` is a command of its own.
NodeId StatementParser::setClipboard(std::uint32_t offset) {
    const NodeId statement = m_tree.add(NodeKind::evaluate, offset);
    const NodeId command = m_tree.add(NodeKind::command, offset, *commandHere(m_tokens));
    ChildList(m_tree, statement).append(command);
    m_tree.nodes[command].detail = 1;
    m_tokens.acceptPhrase("clipboard to");
    ChildList(m_tree, command).append(m_primaries.expressions().expression());
    return statement;
}

NodeId StatementParser::copy(Word preposition) {
    const NodeId node = m_tree.add(NodeKind::copy, m_tokens.offset());
    m_tokens.advance();
    const NodeId value = m_primaries.expressions().expression();
    if (!m_tokens.accept(preposition)) m_tokens.expected(preposition == Word::to ? "“to”" : "“into”");
    ChildList children(m_tree, node);
    children.append(target());
    children.append(value);
    return node;
}

NodeId StatementParser::target() {
    m_tokens.skipFiller();
    const Token first = m_tokens.current();
    const std::string found = m_tokens.describe();
    const std::uint32_t offset = m_tokens.offset();
    m_primaries.setReadsTarget(true);
    const NodeId node = m_primaries.expressions().reference();
    m_primaries.setReadsTarget(false);
    if (m_tokens.failed()) return node;
    if (!isSettable(node)) {
        m_tokens.fail(errornumber::syntax, "Expected variable name but found " + found + ".", offset);
    } else if (first.is(TokenKind::leftBrace)) {
        for (NodeId item = m_tree.at(node).firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
            const NodeId inner = m_tree.at(item).kind == NodeKind::field ? m_tree.at(item).firstChild : item;
            if (isSettable(inner)) continue;
            m_tokens.refuseTarget(m_tree.at(inner).offset);
            break;
        }
    }
    return node;
}

bool StatementParser::isSettable(NodeId node) const {
    switch (m_tree.at(node).kind) {
        case NodeKind::name:
        case NodeKind::predefined:
        case NodeKind::element:
        case NodeKind::propertyOf:
        case NodeKind::contentsOf:
        case NodeKind::delimiters:
        case NodeKind::result:
        case NodeKind::list:
        case NodeKind::record:
            return true;
        default:
            return false;
    }
}

bool StatementParser::isOperatorAhead() const {
    constexpr std::array signs{TokenKind::ampersand, TokenKind::equal,        TokenKind::notEqual,
                               TokenKind::less,      TokenKind::lessEqual,    TokenKind::greater,
                               TokenKind::star,      TokenKind::greaterEqual, TokenKind::slash,
                               TokenKind::caret};
    static constexpr std::array<Phrase, 19> words{
        "is",     "isn't",  "as",    "and",  "or",    "contains", "does", "doesn't", "equals", "equal",
        "begins", "starts", "start", "ends", "comes", "div",      "mod",  "greater", "less"};
    const Token& next = m_tokens.ahead();
    if (std::find(signs.begin(), signs.end(), next.kind) != signs.end()) return true;
    return next.is(TokenKind::identifier) && std::any_of(words.begin(), words.end(), [&](const Phrase& word) {
               return m_tokens.isAtPhrase(word, 1);
           });
}

/// `return` is the text constant where an operator follows that begins no expression.
NodeId StatementParser::returnValue() {
    if (isOperatorAhead()) return evaluate();
    const NodeId node = m_tree.add(NodeKind::returnValue, m_tokens.offset());
    m_tokens.advance();
    if (!m_tokens.isAtLineEnd()) ChildList(m_tree, node).append(m_primaries.expressions().expression());
    return node;
}

NodeId StatementParser::raise() {
    const NodeId node = m_tree.add(NodeKind::raise, m_tokens.offset());
    m_tokens.advance();
    ChildList children(m_tree, node);
    errorParts(children, false);
    return node;
}

void StatementParser::errorParts(ChildList& children, bool areTargets) {
    const auto add = [&](ErrorPart part) {
        const NodeId node = m_tree.add(NodeKind::errorPart, m_tokens.offset());
        m_tree.nodes[node].detail = static_cast<std::uint8_t>(part);
        ChildList(m_tree, node)
            .append(areTargets ? m_blocks.errorTarget() : m_primaries.expressions().expression());
        children.append(node);
    };
    const auto partHere = [&] {
        const auto* row = std::find_if(partWords.begin(), partWords.end(), [&](const PartWord& candidate) {
            return m_tokens.isAtPhrase(candidate.words);
        });
        return row == partWords.end() ? nullptr : row;
    };
    if (!m_tokens.isAtLineEnd() && partHere() == nullptr) add(ErrorPart::message);
    while (const PartWord* row = partHere()) {
        m_tokens.acceptPhrase(row->words);
        add(row->part);
    }
}

/// exit = exit [repeat], inside a loop
NodeId StatementParser::exitRepeat() {
    const NodeId node = m_tree.add(NodeKind::exitRepeat, m_tokens.offset());
    if (m_surroundings.loops == 0) {
        m_tokens.fail(errornumber::exitOutsideRepeat, "Exit statement was not in a repeat loop.");
    }
    m_tokens.advance();
    m_tokens.accept(Word::repeat);
    return node;
}

NodeId StatementParser::declaration(NodeKind kind) {
    const NodeId node = m_tree.add(kind, m_tokens.offset());
    m_tokens.advance();
    ChildList names(m_tree, node);
    do {
        if (!m_primaries.expectName()) return node;
        names.append(m_primaries.plainName());
    } while (m_tokens.accept(TokenKind::comma));
    return node;
}

NodeId StatementParser::evaluate() {
    const NodeId node = m_tree.add(NodeKind::evaluate, m_tokens.offset());
    ChildList(m_tree, node).append(m_primaries.expressions().expression());
    return node;
}

}  // namespace script
