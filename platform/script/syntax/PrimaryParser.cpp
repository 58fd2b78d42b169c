// SPDX-License-Identifier: MIT
#include "platform/script/syntax/PrimaryParser.h"

#include "platform/script/source/Wording.h"
#include "platform/script/syntax/Forbidden.h"
#include "platform/script/syntax/Grammar.h"
#include "platform/script/syntax/Operators.h"
#include "platform/script/values/PredefinedNames.h"

namespace script {

NodeId PrimaryParser::primary() {
    m_tokens.skipFiller();
    switch (m_tokens.current().kind) {
        case TokenKind::number:
            return isAtNumberedOrdinal() ? numberedOrdinal() : m_grammar.literals.number();
        case TokenKind::text:
            return m_grammar.literals.text();
        case TokenKind::leftParenthesis:
            return parenthesised();
        case TokenKind::leftBrace:
            return m_grammar.lists.listOrRecord();
        case TokenKind::identifier:
            return word();
        default:
            m_tokens.expected(part::expression());
            return noNode;
    }
}

/// `get` may stand before what is looked at, and means nothing.
NodeId PrimaryParser::parenthesised() {
    const BracketScope scope(m_context);
    m_tokens.advance();
    m_tokens.accept(Word::get);
    const NodeId node = expression();
    m_tokens.expect(TokenKind::rightParenthesis);
    const NodeKind kind = m_tree.at(node).kind;
    if (kind == NodeKind::binary || kind == NodeKind::inversion) m_tree.nodes[node].value = 1;
    return node;
}

bool PrimaryParser::isAtIndex() const {
    const Token& token = m_tokens.current();
    switch (token.kind) {
        case TokenKind::number:
        case TokenKind::text:
        case TokenKind::leftParenthesis:
            return true;
        case TokenKind::minus:
            // `item -1 of x`, but not `item - 1`.
            return m_tokens.ahead().is(TokenKind::number) &&
                   m_tokens.ahead().text.data() == token.text.data() + token.text.size();
        case TokenKind::identifier:
            return binaryOperator(m_tokens) == nullptr &&
                   (token.is(Word::none) || token.is(Word::the) || kindOf(token.word) != WordKind::reserved);
        default:
            return false;
    }
}

NodeId PrimaryParser::index() {
    m_tokens.skipFiller();
    switch (m_tokens.current().kind) {
        case TokenKind::number:
            return m_grammar.literals.number();
        case TokenKind::text:
            return m_grammar.literals.text();
        case TokenKind::leftParenthesis:
            return parenthesised();
        case TokenKind::minus: {
            const NestingScope nesting(m_context);
            const NodeId node = take(NodeKind::negation);
            ChildList(m_tree, node).append(index());
            return node;
        }
        default:
            if (isAtIndex()) return m_grammar.names.plainName();
            m_tokens.expected(part::expression());
            return noNode;
    }
}

/// `1st`, `2nd`
bool PrimaryParser::isAtNumberedOrdinal() const {
    const Token& number = m_tokens.current();
    const Token& suffix = m_tokens.ahead();
    if (!suffix.is(TokenKind::identifier) || suffix.text.data() != number.text.data() + number.text.size()) {
        return false;
    }
    return m_tokens.isAtPhrase("st", 1) || m_tokens.isAtPhrase("nd", 1) || m_tokens.isAtPhrase("rd", 1) ||
           m_tokens.isAtPhrase("th", 1);
}

NodeId PrimaryParser::numberedOrdinal() {
    const std::uint32_t offset = m_tokens.offset();
    const NodeId index = m_grammar.literals.number();
    m_tokens.advance();
    return m_grammar.elements.ordinal(offset, index, ElementForm::index);
}

NodeId PrimaryParser::word() {
    if (m_tokens.current().is(Word::none)) return otherWord();
    if (const NodeId node = m_grammar.literals.constant(); node != noNode) return node;
    if (const NodeId node = pronoun(); node != noNode) return node;
    if (m_grammar.elements.isAtElement()) return m_grammar.elements.element();
    if (m_tokens.failed() || refuseForbiddenCommand(m_tokens)) return noNode;
    return reservedWord();
}

/// Words of the language that begin more than one thing, or are names outside of a dictionary.
NodeId PrimaryParser::reservedWord() {
    if (m_tokens.isAt(Word::ref) || m_tokens.isAt(Word::reference)) return referenceTo();
    if (const auto command = commandHere()) return m_grammar.commands.command(*command);
    if (refuseIncompleteCommand()) return noNode;
    const Word word = m_tokens.current().word;
    if (word == Word::script && !m_context.readsTarget()) return m_grammar.names.predefined(scriptClass());
    if (m_grammar.processes.isAtPlural()) return m_grammar.processes.plural();
    if (m_grammar.applications.isAtApplication()) return m_grammar.applications.application();
    if (m_grammar.applications.isAtProcess()) return m_grammar.applications.process();
    if (!m_tokens.means(word) || kindOf(word) == WordKind::special) return m_grammar.names.nameOrCall();
    if (const NodeId node = m_grammar.literals.modifier(); node != noNode) return node;
    m_tokens.expected(part::expression());
    return noNode;
}

/// `noNode` where none stands; `my` and `its` with their member.
NodeId PrimaryParser::pronoun() {
    switch (m_tokens.current().word) {
        case Word::me:
            return take(NodeKind::me);
        case Word::it:
            return take(NodeKind::it);
        case Word::my:
            return m_grammar.names.memberOf(NodeKind::me);
        case Word::its:
            return m_grammar.names.memberOf(NodeKind::it);
        default:
            return noNode;
    }
}

/// What begins with a word that is no word of the language by itself.
NodeId PrimaryParser::otherWord() {
    if (m_tokens.current().text.front() == '|') return m_grammar.names.nameOrCall();
    if (m_tokens.isAtPhrase("missing value")) return m_grammar.literals.missingValue();
    if (m_tokens.isAtPhrase("text item delimiters")) return m_grammar.names.delimiters();
    if (m_tokens.isAtPhrase("character id") || m_tokens.isAtPhrase("string id"))
        return m_grammar.elements.characterId();
    if (m_tokens.isAtPhrase("a reference") || m_tokens.isAtPhrase("a ref")) return referenceTo();
    if (refuseForbiddenCommand(m_tokens)) return noNode;
    if (m_grammar.processes.isAtPlural()) return m_grammar.processes.plural();
    if (const auto command = commandHere()) return m_grammar.commands.command(*command);
    if (m_grammar.elements.isAtElement()) return m_grammar.elements.element();
    return name();
}

/// A name of the language, if it is not one of the script.
NodeId PrimaryParser::name() {
    NameParser& names = m_grammar.names;
    if (m_tokens.isAtPhrase("unicode text")) m_tokens.advance();
    const bool isOwned = m_tokens.ahead().is(Word::of) || m_tokens.ahead().is(TokenKind::leftParenthesis);
    if (isOwned || NameParser::longPropertyHere(m_tokens) > 0) return names.nameOrCall();
    if (m_tokens.isAtPhrase("date") && m_tokens.ahead().is(TokenKind::text)) return m_grammar.literals.date();
    if (m_tokens.isAtPhrase("applescript")) return take(NodeKind::appleScript);
    if (m_tokens.isAtPhrase("result")) return take(NodeKind::result);
    if (const auto index = findPredefinedName(m_tokens.current())) return names.predefined(*index);
    return names.nameOrCall();
}

NodeId PrimaryParser::referenceTo() {
    const NodeId node = m_tree.add(NodeKind::referenceTo, m_tokens.offset());
    m_tokens.acceptPhrase("a");
    const bool isShort = m_tokens.isAt(Word::ref);
    m_tokens.advance();
    if (isShort) {
        m_tokens.accept(Word::to);
    } else {
        m_tokens.expect(Word::to);
    }
    ChildList(m_tree, node).append(m_grammar.expressions.reference());
    return node;
}

std::optional<std::uint32_t> PrimaryParser::commandHere() const {
    return m_context.readsTarget() ? std::nullopt : m_grammar.commands.commandHere();
}

/// The first word of commands, and none of their second ones behind it.
bool PrimaryParser::refuseIncompleteCommand() {
    const bool isKey = m_tokens.isAt(Word::key);
    if (!isKey && !(m_tokens.isAt(Word::display) && m_tokens.ahead().is(TokenKind::identifier))) return false;
    m_tokens.advance();
    m_tokens.expected(isKey ? alternatives({"code", "down", "up"})
                            : alternatives({"dialog", "alert", "notification"}));
    return true;
}

}  // namespace script
