// SPDX-License-Identifier: MIT
#include "platform/script/syntax/StatementParser.h"

#include <algorithm>
#include <array>

#include "platform/Sentence.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Forbidden.h"
#include "platform/script/syntax/Grammar.h"
#include "platform/script/syntax/Operators.h"

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

/// `end of x` is no end.
bool StatementParser::isAtBlockEnd() const {
    if (m_tokens.isAt(TokenKind::endOfScript) || m_tokens.isAt(Word::elseWord)) return true;
    if (m_tokens.isAt(Word::end)) return !m_tokens.ahead().is(Word::of);
    return m_tokens.isAt(Word::on) || m_tokens.isAt(Word::to);
}

NodeId StatementParser::block() {
    const NodeId node = m_tree.add(NodeKind::block, m_tokens.offset());
    const BlockScope scope(m_context);
    ChildList children(m_tree, node);
    while (!isAtBlockEnd()) {
        if (m_tokens.accept(TokenKind::endOfLine)) continue;
        children.append(statement());
        endStatement();
    }
    return node;
}

void StatementParser::endStatement() {
    m_tokens.expectLineEnd();
    m_tokens.accept(TokenKind::endOfLine);
}

bool StatementParser::acceptEnd(Word word) {
    const bool isNamed = m_tokens.ahead().is(TokenKind::identifier);
    const bool isOfOther =
        isNamed && !m_tokens.ahead().is(word) && TokenStream::namesBlock(m_tokens.ahead().word);
    if (!m_tokens.isAt(Word::end) || isOfOther) {
        m_tokens.expected(quoted("end"));
        return false;
    }
    m_tokens.advance();
    if (word != Word::none && !m_tokens.accept(word) && isNamed)
        m_tokens.expected(script::quoted("end " + std::string(spellingOf(word))));
    return !m_tokens.failed();
}

NodeId StatementParser::statement() {
    const NestingScope nesting(m_context);
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
            return use();
        case Word::script:
        case Word::transaction:
            if (refuseForbiddenStatement(m_tokens)) return noNode;
            return evaluate();
        default:
            if (m_grammar.blocks.isAtBlock()) return m_grammar.blocks.statement();
            return evaluate();
    }
}

NodeId StatementParser::set() {
    const std::uint32_t offset = m_tokens.offset();
    m_tokens.advance();
    m_tokens.skipFiller();
    if (m_tokens.isAtPhrase("clipboard to")) return setClipboard(offset);
    const NodeId node = m_tree.add(NodeKind::set, offset);
    ChildList children(m_tree, node);
    children.append(target());
    m_tokens.expect(Word::to);
    children.append(expression());
    return node;
}

/// `set the clipboard to x` is a command of its own.
NodeId StatementParser::setClipboard(std::uint32_t offset) {
    const NodeId statement = m_tree.add(NodeKind::evaluate, offset);
    const NodeId command = m_tree.add(NodeKind::command, offset, *commandHere(m_tokens));
    ChildList(m_tree, statement).append(command);
    m_tree.nodes[command].detail = 1;
    m_tokens.acceptPhrase("clipboard to");
    ChildList(m_tree, command).append(expression());
    return statement;
}

NodeId StatementParser::copy(Word preposition) {
    const NodeId node = take(NodeKind::copy);
    const NodeId value = expression();
    m_tokens.expect(preposition);
    ChildList children(m_tree, node);
    children.append(target());
    children.append(value);
    return node;
}

NodeId StatementParser::target() {
    m_tokens.skipFiller();
    const bool isPattern = m_tokens.isAt(TokenKind::leftBrace);
    const Sentence found = m_tokens.describe();
    const std::uint32_t offset = m_tokens.offset();
    const NodeId node = reference();
    if (m_tokens.failed()) return node;
    if (!isSettable(node)) {
        m_tokens.refuseTarget(found, offset);
    } else if (isPattern) {
        refuseItems(node);
    }
    return node;
}

NodeId StatementParser::reference() {
    const TargetScope scope(m_context);
    return m_grammar.expressions.reference();
}

/// Of a list or record of targets, those that are none.
void StatementParser::refuseItems(NodeId list) {
    for (NodeId item = m_tree.at(list).firstChild; item != noNode; item = m_tree.at(item).nextSibling) {
        const NodeId inner = m_tree.at(item).kind == NodeKind::field ? m_tree.at(item).firstChild : item;
        if (isSettable(inner)) continue;
        const std::uint32_t offset = m_tree.at(inner).offset;
        return m_tokens.refuseTarget(m_tokens.describeAt(offset), offset);
    }
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

/// `return` is the text constant where an operator follows that begins no expression.
NodeId StatementParser::returnValue() {
    if (isOperatorAhead(m_tokens)) return evaluate();
    const NodeId node = take(NodeKind::returnValue);
    if (!m_tokens.isAtLineEnd()) ChildList(m_tree, node).append(expression());
    return node;
}

NodeId StatementParser::raise() {
    const NodeId node = take(NodeKind::raise);
    ChildList children(m_tree, node);
    errorParts(children, false);
    return node;
}

void StatementParser::errorParts(ChildList& children, bool areTargets) {
    const auto add = [&](ErrorPart part) {
        const NodeId node = m_tree.add(NodeKind::errorPart, m_tokens.offset());
        m_tree.nodes[node].detail = static_cast<std::uint8_t>(part);
        ChildList(m_tree, node).append(areTargets ? m_grammar.blocks.errorTarget() : expression());
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
    if (!m_context.isInLoop()) {
        m_tokens.fail(errornumber::exitOutsideRepeat,
                      sentence("ScriptErrors", "Exit statement was not in a repeat loop."));
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
        if (!m_grammar.names.expectName()) return node;
        names.append(m_grammar.names.plainName());
    } while (m_tokens.accept(TokenKind::comma));
    return node;
}

/// What AppleScript takes from elsewhere is here already, or is not to be had: the line means nothing.
NodeId StatementParser::use() {
    const NodeId node = m_tree.add(NodeKind::declareGlobal, m_tokens.offset());
    while (!m_tokens.isAtLineEnd()) m_tokens.advance();
    return node;
}

NodeId StatementParser::evaluate() {
    const NodeId node = m_tree.add(NodeKind::evaluate, m_tokens.offset());
    ChildList(m_tree, node).append(expression());
    return node;
}

}  // namespace script
