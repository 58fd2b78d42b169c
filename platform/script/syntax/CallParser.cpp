// SPDX-License-Identifier: MIT
#include "platform/script/syntax/CallParser.h"

#include <string>

#include "platform/Sentence.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Grammar.h"

namespace script {

NodeId CallParser::positional() {
    const NodeId node = m_tree.add(NodeKind::call, m_tokens.offset());
    m_tree.nodes[node].value = m_grammar.names.nameHere();
    m_tokens.advance();
    const CallScope scope(m_context);
    ChildList arguments(m_tree, node);
    if (!m_tokens.accept(TokenKind::rightParenthesis)) {
        std::uint32_t count = 0;
        do {
            countParameter(count);
            arguments.append(argument(0));
        } while (m_tokens.accept(TokenKind::comma));
        m_tokens.expectListEnd(TokenKind::rightParenthesis);
    }
    return node;
}

NodeId CallParser::argument(NameId label) {
    const NodeId node = m_tree.add(NodeKind::argument, m_tokens.offset(), label);
    ChildList(m_tree, node).append(expression());
    return node;
}

NodeId CallParser::labelled() {
    const NodeId node = m_tree.add(NodeKind::call, m_tokens.offset());
    m_tree.nodes[node].detail = 1;
    m_tree.nodes[node].value = m_grammar.names.nameHere();
    labelledArguments(node);
    return node;
}

void CallParser::labelledArguments(NodeId call) {
    ChildList arguments(m_tree, call);
    std::uint32_t count = 0;
    while (m_tokens.isAt(Word::of) || isLabelWord(m_tokens.current().word)) {
        countParameter(count);
        const NameId label = labelHere();
        arguments.append(argument(label));
    }
    if (m_tokens.accept(Word::given)) {
        do {
            if (!m_grammar.names.expectName()) return;
            countParameter(count);
            const NameId label = m_grammar.names.nameHere();
            m_tokens.expect(TokenKind::colon);
            arguments.append(argument(label));
        } while (m_tokens.accept(TokenKind::comma));
    }
    while (m_tokens.isAt(Word::with) || m_tokens.isAt(Word::without)) truths(arguments, count);
}

/// ( with | without ) label {( , | and ) label}: true or false for each.
void CallParser::truths(ChildList& arguments, std::uint32_t& count) {
    const std::uint32_t truth = m_tokens.isAt(Word::with) ? 1 : 0;
    m_tokens.advance();
    do {
        if (!m_grammar.names.expectName()) return;
        countParameter(count);
        const std::uint32_t offset = m_tokens.offset();
        const NodeId node = m_tree.add(NodeKind::argument, offset, m_grammar.names.nameHere());
        ChildList(m_tree, node).append(m_tree.add(NodeKind::truth, offset, truth));
        arguments.append(node);
    } while (m_tokens.accept(TokenKind::comma) || m_tokens.accept(Word::andWord));
}

void CallParser::countParameter(std::uint32_t& count) {
    if (++count > maxParameters) {
        m_tokens.fail(errornumber::syntax,
                      sentence("ScriptErrors", "Expected at most %1 parameters but found more.")
                          .arg(std::to_string(maxParameters)));
    }
}

bool CallParser::isLabelWord(Word word) {
    switch (word) {
        case Word::about:
        case Word::above:
        case Word::against:
        case Word::apart:
        case Word::around:
        case Word::aside:
        case Word::at:
        case Word::below:
        case Word::beneath:
        case Word::beside:
        case Word::between:
        case Word::by:
        case Word::forWord:
        case Word::from:
        case Word::instead:
        case Word::into:
        case Word::on:
        case Word::onto:
        case Word::out:
        case Word::over:
        case Word::since:
        case Word::through:
        case Word::thru:
        case Word::under:
            return true;
        default:
            return false;
    }
}

NameId CallParser::labelHere() {
    const Token first = m_tokens.current();
    m_tokens.advance();
    if (first.is(Word::thru)) return m_tree.names.intern("through");
    const bool isLong =
        first.is(Word::apart) || first.is(Word::aside) || first.is(Word::instead) || first.is(Word::out);
    if (!isLong) return m_tree.names.intern(first.text);
    const std::string both = std::string(first.text) + " " + std::string(m_tokens.current().text);
    if (!m_tokens.accept(Word::from) && !m_tokens.accept(Word::of))
        m_tokens.expected(alternatives({"from", "of"}));
    return m_tree.names.intern(both);
}

bool CallParser::isLabelledHandler(const Token& name) {
    if (!m_labelled) findLabelled();
    return m_labelled->knows(name.text, name.hash);
}

void CallParser::findLabelled() {
    m_labelled.emplace();
    Lexer lexer(m_context.source());
    Token former;
    former.kind = TokenKind::endOfLine;
    for (Token token = lexer.next(); !token.is(TokenKind::endOfScript); token = lexer.next()) {
        const bool begins = former.is(TokenKind::endOfLine) && (token.is(Word::on) || token.is(Word::to));
        former = token;
        if (!begins) continue;
        const Token handler = lexer.next();
        former = lexer.next();
        const bool isLabelled = former.is(Word::of) || former.is(Word::given) || isLabelWord(former.word);
        if (isLabelled && !handler.is(Word::error)) m_labelled->intern(handler.text, handler.hash);
    }
}

}  // namespace script
