// SPDX-License-Identifier: MIT
#include "platform/script/syntax/CommandParser.h"

#include <algorithm>
#include <string>

#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Grammar.h"
#include "platform/script/syntax/Operators.h"

namespace script {
std::optional<std::uint32_t> CommandParser::commandHere() const {
    const std::optional<std::uint32_t> index = script::commandHere(m_tokens);
    return index && isMeant(*commands()[*index]) ? index : std::nullopt;
}

/// Commands of one word may be names as well.
bool CommandParser::isMeant(const Command& command) const {
    if (command.name.wordCount() > 1) return true;
    const Token& next = m_tokens.ahead();
    if (next.is(TokenKind::colon) || next.is(TokenKind::equal) || next.is(TokenKind::possessive))
        return false;
    if (command.isOfDictionary || command.direct != Command::Direct::required) return true;
    return mayBeginArgument(command, next);
}

/// Of a command whose name might be one of the script as well.
bool CommandParser::mayBeginArgument(const Command& command, const Token& next) {
    switch (next.kind) {
        case TokenKind::identifier:
            return next.is(Word::none) || next.is(Word::notWord) || next.is(Word::my) ||
                   (command.takesOf && next.is(Word::of)) || next.is(Word::the) || next.is(Word::every) ||
                   next.is(Word::first) || next.is(Word::last) || next.is(Word::some) ||
                   kindOf(next.word) != WordKind::reserved || next.is(Word::it) || next.is(Word::me) ||
                   next.is(Word::returnWord) || next.is(Word::trueWord) || next.is(Word::falseWord);
        case TokenKind::number:
        case TokenKind::text:
        case TokenKind::leftParenthesis:
        case TokenKind::leftBrace:
        case TokenKind::minus:
            return !(command.takesOf && next.is(TokenKind::minus));
        default:
            return false;
    }
}

NodeId CommandParser::command(std::uint32_t index) {
    const Command& command = *commands()[index];
    const NodeId node = m_tree.add(NodeKind::command, m_tokens.offset(), index);
    m_tokens.advance(command.name.wordCount());
    ChildList children(m_tree, node);
    if (command.takesOf) m_tokens.accept(Word::of);
    if (const NodeId value = direct(command); value != noNode) {
        if (command.takesReference && m_tree.at(value).kind == NodeKind::processes)
            return m_grammar.processes.existence(value);
        m_tree.nodes[node].detail = 1;
        children.append(value);
    }
    parameters(command, children);
    return node;
}

/// `noNode` where none stands.
NodeId CommandParser::direct(const Command& command) {
    if (command.direct == Command::Direct::none) return noNode;
    if (command.direct == Command::Direct::optional) {
        const TokenKind kind = m_tokens.current().kind;
        const bool ends = m_tokens.isAtLineEnd() || kind == TokenKind::rightParenthesis ||
                          kind == TokenKind::rightBrace || kind == TokenKind::comma ||
                          parameterHere(command) ||
                          (kind != TokenKind::minus && binaryOperator(m_tokens) != nullptr);
        if (ends || m_tokens.isAt(Word::as)) return noNode;
    }
    if (command.isOfDictionary && parameterHere(command)) {
        m_tokens.expected(part::expression());
        return noNode;
    }
    const ArgumentScope scope(m_context,
                              {.in = hasParameter(command, "in"), .as = hasParameter(command, "as")});
    return command.takesReference ? m_grammar.expressions.reference() : expression();
}

bool CommandParser::hasParameter(const Command& command, const Phrase& label) {
    return std::any_of(command.parameters.begin(), command.parameters.end(), [&](const Parameter& parameter) {
        return parameter.label.firstHash() == label.firstHash() &&
               parameter.label.spelling() == label.spelling();
    });
}

std::optional<std::uint32_t> CommandParser::parameterHere(const Command& command, std::size_t from) const {
    for (std::uint32_t i = 0; i < command.parameters.size(); ++i) {
        if (m_tokens.isAtPhrase(command.parameters[i].label, from)) return i;
    }
    return std::nullopt;
}

void CommandParser::parameters(const Command& command, ChildList& children, std::uint32_t given) {
    m_tokens.skipFiller();
    while (const std::optional<std::uint32_t> index = parameterHere(command)) {
        const Parameter& parameter = command.parameters[*index];
        if ((given & (1U << *index)) != 0) failTwice(parameter.label.spelling());
        given |= 1U << *index;
        const NodeId argument = m_tree.add(NodeKind::argument, m_tokens.offset(), *index);
        m_tokens.advance(parameter.label.wordCount());
        ChildList(m_tree, argument).append(parameterValue(parameter, command));
        children.append(argument);
        m_tokens.skipFiller();
    }
    if (!m_tokens.failed() && truth(command, given, children)) return parameters(command, children, given);
    refuseIncompleteLabel(command);
}

/// `with hidden answer`, `without hidden answer`, with further ones behind `and`: true or false for the
/// parameters. False if none stands here.
bool CommandParser::truth(const Command& command, std::uint32_t& given, ChildList& children) {
    if (!m_tokens.isAt(Word::with) && !m_tokens.isAt(Word::without)) return false;
    const std::uint32_t value = m_tokens.isAt(Word::with) ? 1 : 0;
    bool isFound = false;
    do {
        const std::optional<std::uint32_t> index = parameterHere(command, 1);
        if (!index) return isFound;
        const Phrase& label = command.parameters[*index].label;
        if ((given & (1U << *index)) != 0) failTwice(label.spelling());
        given |= 1U << *index;
        const NodeId argument = m_tree.add(NodeKind::argument, m_tokens.offset(), *index);
        ChildList(m_tree, argument).append(m_tree.add(NodeKind::truth, m_tokens.offset(), value));
        children.append(argument);
        m_tokens.advance(label.wordCount() + 1);
        isFound = true;
    } while (m_tokens.isAt(Word::andWord));
    return true;
}

void CommandParser::failTwice(std::string_view label) {
    m_tokens.fail(errornumber::parameterTwice, parameterTwice(label));
}

/// `default 5`: the first word of labels without the second one.
void CommandParser::refuseIncompleteLabel(const Command& command) {
    if (!m_tokens.current().is(Word::none) || !m_tokens.isAt(TokenKind::identifier)) return;
    std::vector<std::string_view> seconds;
    for (const Parameter& parameter : command.parameters) {
        if (parameter.label.wordCount() < 2 || !m_tokens.isAtFirstWordOf(parameter.label)) continue;
        seconds.push_back(parameter.label.rest());
    }
    if (seconds.empty()) return;
    m_tokens.advance();
    m_tokens.expected(alternatives(seconds));
}

NodeId CommandParser::parameterValue(const Parameter& parameter, const Command& command) {
    m_tokens.skipFiller();
    if (parameter.takesClass) return className();
    if (!parameter.choices.empty()) {
        if (const NodeId node = chosen(parameter); node != noNode || m_tokens.failed()) return node;
    }
    const ArgumentScope scope(m_context, {.as = hasParameter(command, "as")});
    return expression();
}

/// One of the words as text; `noNode` where none of them stands and a value may.
NodeId CommandParser::chosen(const Parameter& parameter) {
    const std::uint32_t offset = m_tokens.offset();
    for (const Phrase& words : parameter.choices) {
        if (!m_tokens.acceptPhrase(words)) continue;
        return m_tree.add(NodeKind::text, offset, m_tree.addText(words.spelling()));
    }
    if (parameter.takesValue) return noNode;
    std::vector<std::string_view> spellings;
    for (const Phrase& words : parameter.choices) spellings.push_back(words.spelling());
    m_tokens.expected(alternatives(spellings));
    return noNode;
}

NodeId CommandParser::className() {
    const std::uint32_t offset = m_tokens.offset();
    const std::optional<std::uint8_t> index = m_grammar.names.expectClass();
    if (!index) return noNode;
    const NodeId node = m_grammar.names.predefined(*index);
    m_tree.nodes[node].offset = offset;
    return node;
}

}  // namespace script
