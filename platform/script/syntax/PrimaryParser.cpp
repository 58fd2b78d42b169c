// SPDX-License-Identifier: MIT
#include "platform/script/syntax/PrimaryParser.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/Modifiers.h"
#include "platform/script/source/Literal.h"
#include "platform/script/source/SystemEvents.h"
#include "platform/script/values/PredefinedNames.h"

namespace script {
namespace {

struct TextConstant {
    Word word;
    std::string_view text;
};

constexpr auto textConstants = std::to_array<TextConstant>({
    {Word::linefeed, "\n"},
    {Word::quote, "\""},
    {Word::returnWord, "\r"},
    {Word::space, " "},
    {Word::tab, "\t"},
});

struct ModifierWord {
    Word word;
    std::uint32_t modifier;
};

constexpr auto modifierWords = std::to_array<ModifierWord>({
    {Word::command, modifier::command},
    {Word::control, modifier::control},
    {Word::option, modifier::option},
    {Word::shift, modifier::shift},
});

constexpr auto longProperties =
    std::to_array<Phrase>({"button returned", "text returned", "gave up", "date string", "time string"});

constexpr auto refusedCommands = std::to_array<Phrase>(
    {"do shell script", "run script", "load script", "store script", "open location", "say"});

template <typename Table>
auto find(const Table& table, Word word) -> decltype(table.data()) {
    const auto* row = std::find_if(table.begin(), table.end(), [&](const auto& r) { return r.word == word; });
    return row == table.end() ? nullptr : row;
}

}  // namespace

PrimaryParser::PrimaryParser(TokenStream& tokens, Tree& tree, std::string_view source)
    : m_tokens(tokens),
      m_tree(tree),
      m_expressions(tokens, tree, *this),
      m_elements(tokens, tree, *this),
      m_commands(tokens, tree, *this),
      m_calls(tokens, tree, *this, source) {}

NodeId PrimaryParser::leaf(NodeKind kind, std::uint32_t value) {
    const NodeId node = m_tree.add(kind, m_tokens.offset(), value);
    m_tokens.advance();
    return node;
}

NodeId PrimaryParser::named() {
    if (m_tokens.current().is(Word::none)) return namedByScript();
    if (const NodeId node = constant(); node != noNode) return node;
    if (m_elements.isAtElement()) return m_elements.element();
    if (m_tokens.failed() || refuseForbidden()) return noNode;
    if (m_tokens.isAt(Word::ref) || m_tokens.isAt(Word::reference)) return referenceTo();
    if (const auto command = commandHere()) return m_commands.command(*command);
    if (refuseIncompleteCommand()) return noNode;
    const Word word = m_tokens.current().word;
    if (word == Word::script && !m_readsTarget) return predefined(scriptClass());
    if (isAtApplication()) return application();
    if (isAtProcess()) return process();
    if (!m_tokens.means(word) || kindOf(word) == WordKind::special) return nameOrCall();
    if (find(modifierWords, word) != nullptr) return modifierConstant();
    m_tokens.expected("expression");
    return noNode;
}

/// The first word of commands, and none of their second ones behind it.
bool PrimaryParser::refuseIncompleteCommand() {
    const bool isKey = m_tokens.isAt(Word::key);
    if (!isKey && !(m_tokens.isAt(Word::display) && m_tokens.ahead().is(TokenKind::identifier))) return false;
    m_tokens.advance();
    m_tokens.expected(isKey ? "“code”, “down” or “up”" : "“dialog”, “alert” or “notification”");
    return true;
}

std::optional<std::uint32_t> PrimaryParser::commandHere() const {
    return m_readsTarget ? std::nullopt : m_commands.commandHere();
}

/// Words with one meaning of their own; `noNode` for all others.
NodeId PrimaryParser::constant() {
    if (const auto constant = textConstant()) return *constant;
    switch (m_tokens.current().word) {
        case Word::trueWord:
            return leaf(NodeKind::truth, 1);
        case Word::falseWord:
            return leaf(NodeKind::truth, 0);
        case Word::me:
            return leaf(NodeKind::me);
        case Word::it:
            return leaf(NodeKind::it);
        case Word::my:
            return prefixed(NodeKind::me);
        case Word::its:
            return prefixed(NodeKind::it);
        default:
            return noNode;
    }
}

std::optional<NodeId> PrimaryParser::textConstant() {
    const TextConstant* constant = find(textConstants, m_tokens.current().word);
    if (constant == nullptr) return std::nullopt;
    return leaf(NodeKind::text, m_tree.addText(constant->text));
}

/// `my f()` is `f() of me`.
NodeId PrimaryParser::prefixed(NodeKind owner) {
    const NodeId ownerNode = m_tree.add(owner, m_tokens.offset());
    m_tokens.advance();
    return member(ownerNode);
}

NodeId PrimaryParser::member(NodeId container) {
    m_tokens.skipFiller();
    if (!m_tokens.isAt(TokenKind::identifier)) {
        m_tokens.expected("identifier");
        return noNode;
    }
    if (m_tokens.isAtPhrase("text item delimiters")) return delimiters();
    if (m_elements.isAtElement()) return m_elements.elementOf(container);
    const bool isCall = m_tokens.ahead().is(TokenKind::leftParenthesis);
    if (isCall || m_calls.isLabelledHandler(m_tokens.current())) {
        return ofOwner(container, isCall ? m_calls.positional() : m_calls.labelled());
    }
    const NodeId node = m_tree.add(
        m_tokens.isAtPhrase("contents") ? NodeKind::contentsOf : NodeKind::propertyOf, m_tokens.offset());
    m_tree.nodes[node].value = nameHere();
    ChildList(m_tree, node).append(container);
    return node;
}

NodeId PrimaryParser::ofOwner(NodeId owner, NodeId memberNode) {
    const NodeId node = m_tree.add(NodeKind::callTo, m_tree.at(memberNode).offset);
    ChildList children(m_tree, node);
    children.append(owner);
    children.append(memberNode);
    return node;
}

/// referenceTo = ( a reference to | a ref to | reference to | ref [to] ) reference
NodeId PrimaryParser::referenceTo() {
    const NodeId node = m_tree.add(NodeKind::referenceTo, m_tokens.offset());
    m_tokens.acceptPhrase("a");
    const bool isShort = m_tokens.isAt(Word::ref);
    m_tokens.advance();
    if (!m_tokens.accept(Word::to) && !isShort) m_tokens.expected("“to”");
    ChildList(m_tree, node).append(m_expressions.reference());
    return node;
}

NodeId PrimaryParser::modifierConstant() {
    const ModifierWord* row = find(modifierWords, m_tokens.current().word);
    const NodeId node = leaf(NodeKind::modifierKey, row->modifier);
    if (m_tokens.accept(Word::down)) m_tree.nodes[node].kind = NodeKind::modifierDown;
    return node;
}

/// What begins with a word that is no word of the language by itself.
NodeId PrimaryParser::namedByScript() {
    if (m_tokens.current().text.front() == '|') return nameOrCall();
    if (m_tokens.isAtPhrase("missing value")) {
        const NodeId node = leaf(NodeKind::missingValue);
        m_tokens.advance();
        return node;
    }
    if (m_tokens.isAtPhrase("text item delimiters")) return delimiters();
    if (m_tokens.isAtPhrase("character id")) return m_elements.characterId();
    if (m_tokens.isAtPhrase("a reference") || m_tokens.isAtPhrase("a ref")) return referenceTo();
    if (refuseForbidden()) return noNode;
    if (const auto command = commandHere()) return m_commands.command(*command);
    if (m_elements.isAtElement()) return m_elements.element();
    if (m_tokens.isAtPhrase("unicode text")) m_tokens.advance();
    const bool isProperty = m_tokens.ahead().is(Word::of) || m_tokens.ahead().is(TokenKind::leftParenthesis);
    if (isProperty || longPropertyHere(m_tokens)) return nameOrCall();
    if (m_tokens.isAtPhrase("date") && m_tokens.ahead().is(TokenKind::text)) return dateLiteral();
    if (m_tokens.isAtPhrase("applescript")) return leaf(NodeKind::appleScript);
    if (m_tokens.isAtPhrase("result")) return leaf(NodeKind::result);
    if (const auto index = findPredefinedName(m_tokens.current())) return predefined(*index);
    return nameOrCall();
}

NodeId PrimaryParser::predefined(std::uint8_t index) {
    const NodeId node = m_tree.add(NodeKind::predefined, m_tokens.offset());
    m_tree.nodes[node].detail = index;
    m_tree.nodes[node].value = nameHere();
    return node;
}

NodeId PrimaryParser::dateLiteral() {
    const NodeId node = m_tree.add(NodeKind::coercion, m_tokens.offset());
    m_tokens.advance();
    m_tree.nodes[node].detail = static_cast<std::uint8_t>(Type::date);
    ChildList(m_tree, node).append(m_expressions.textLiteral());
    return node;
}

NodeId PrimaryParser::delimiters() {
    const NodeId node = m_tree.add(NodeKind::delimiters, m_tokens.offset());
    m_tokens.acceptPhrase("text item delimiters");
    if (m_tokens.isAt(Word::of)) {
        m_tokens.advance();
        m_expressions.reference();
    }
    return node;
}

/// A name, what it is called with, or a property and what it belongs to.
NodeId PrimaryParser::nameOrCall() {
    if (m_tokens.ahead().is(TokenKind::leftParenthesis)) {
        const NodeId node = m_calls.positional();
        if (!m_tokens.accept(Word::of)) return node;
        return ofOwner(m_expressions.reference(), node);
    }
    const bool mayBeLabelled = CallParser::isLabelWord(m_tokens.ahead().word) ||
                               m_tokens.ahead().is(Word::given) || m_tokens.ahead().is(Word::of) ||
                               m_tokens.ahead().is(Word::with) || m_tokens.ahead().is(Word::without);
    if (mayBeLabelled && m_calls.isLabelledHandler(m_tokens.current())) return m_calls.labelled();
    if (m_tokens.ahead().is(Word::of) || longPropertyHere(m_tokens)) return property();
    return plainName();
}

NodeId PrimaryParser::property() {
    const NodeId node = m_tree.add(
        m_tokens.isAtPhrase("contents") ? NodeKind::contentsOf : NodeKind::propertyOf, m_tokens.offset());
    m_tree.nodes[node].value = nameHere();
    if (!m_tokens.accept(Word::of)) {
        ChildList(m_tree, node).append(m_tree.add(NodeKind::it, m_tokens.offset()));
        return node;
    }
    ChildList(m_tree, node).append(m_expressions.reference());
    return node;
}

NodeId PrimaryParser::plainName() {
    const NodeId node = m_tree.add(NodeKind::name, m_tokens.offset());
    m_tree.nodes[node].value = nameHere();
    return node;
}

bool PrimaryParser::longPropertyHere(const TokenStream& tokens) {
    if (!tokens.current().is(Word::none) || !tokens.ahead().is(TokenKind::identifier)) return false;
    return std::any_of(longProperties.begin(), longProperties.end(),
                       [&](const Phrase& name) { return tokens.isAtPhrase(name); });
}

NameId PrimaryParser::nameHere() {
    const Token token = m_tokens.current();
    const std::string_view text = token.text;
    if (longPropertyHere(m_tokens)) {
        const std::string both = std::string(text) + " " + std::string(m_tokens.ahead().text);
        m_tokens.advance(2);
        return m_tree.names.intern(both);
    }
    m_tokens.advance();
    if (token.hash != 0 && text.front() != '|') return m_tree.names.intern(text, token.hash);
    std::string name;
    for (std::size_t i = 1; i + 1 < text.size(); ++i) {
        if (text[i] == '\\') ++i;
        name += text[i];
    }
    return m_tree.names.intern(name);
}

bool PrimaryParser::expectName() {
    const Token& token = m_tokens.current();
    const bool isName =
        token.is(TokenKind::identifier) &&
        (token.is(Word::none) || !m_tokens.means(token.word) || kindOf(token.word) == WordKind::special);
    if (!isName) m_tokens.expected("identifier");
    return isName;
}

/// By itself, and where a sign or a word of the language follows, it is a class or a name.
bool PrimaryParser::isAtApplication() const {
    const Token& next = m_tokens.ahead();
    return (m_tokens.isAt(Word::application) || m_tokens.isAt(Word::app)) &&
           (next.is(TokenKind::text) || m_tokens.isAtPhrase("id", 1) ||
            (next.is(TokenKind::identifier) && next.is(Word::none)));
}

/// application = ( application | app ) [id] text | ( application | app ) ( name | "(" expression ")" )
NodeId PrimaryParser::application() {
    const std::uint32_t offset = m_tokens.offset();
    m_tokens.advance();
    const bool isName = m_tokens.isAt(TokenKind::identifier) && m_tokens.current().is(Word::none);
    if (isName || m_tokens.isAt(TokenKind::leftParenthesis)) {
        const NodeId node = m_tree.add(NodeKind::application, offset);
        ChildList(m_tree, node).append(m_expressions.index());
        return node;
    }
    const bool byIdentifier = m_tokens.accept(Word::id);
    const NodeId literal = m_expressions.textLiteral();
    if (m_tokens.failed()) return noNode;
    const std::uint32_t name = m_tree.at(literal).value;
    const NodeId node = m_tree.add(NodeKind::application, offset, name);
    m_tree.nodes[node].detail = isSystemEvents(m_tree.texts[name], byIdentifier) ? 1 : 0;
    return node;
}

bool PrimaryParser::isAtProcess() const {
    if (m_tokens.isAt(Word::application, Word::process)) return true;
    const TokenKind ahead = m_tokens.ahead().kind;
    return m_tokens.isAt(Word::process) && (ahead == TokenKind::text || ahead == TokenKind::identifier ||
                                            ahead == TokenKind::leftParenthesis);
}

/// process = [application] process reference [of application]. Keys go to whatever is in front, whoever is
/// told.
NodeId PrimaryParser::process() {
    const NodeId node = m_tree.add(NodeKind::process, m_tokens.offset());
    m_tokens.accept(Word::application);
    m_tokens.advance();
    ChildList(m_tree, node).append(m_expressions.reference());
    const bool isOwned =
        m_tokens.isAt(Word::of) && (m_tokens.ahead().is(Word::application) || m_tokens.ahead().is(Word::app));
    if (isOwned) {
        m_tokens.advance();
        application();
    }
    return node;
}

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
    const NodeId index = m_expressions.number();
    m_tokens.advance();
    return m_elements.ordinal(offset, index, ElementForm::index);
}

/// Why: people pass macros on to each other. A macro presses keys; it does not run programs.
bool PrimaryParser::refuseForbidden() {
    for (const Phrase& command : refusedCommands) {
        if (!m_tokens.isAtPhrase(command)) continue;
        const bool isName = command.wordCount() == 1 && !m_tokens.ahead().is(TokenKind::text) &&
                            !m_tokens.ahead().is(TokenKind::identifier);
        if (isName) continue;
        m_tokens.fail(errornumber::syntax, "“" + std::string(command.spelling()) +
                                               "” is refused: a macro can press keys and nothing else.");
        return true;
    }
    return false;
}

}  // namespace script
