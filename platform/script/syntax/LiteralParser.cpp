// SPDX-License-Identifier: MIT
#include "platform/script/syntax/LiteralParser.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <utility>

#include "platform/script/source/Literal.h"
#include "platform/script/source/Wording.h"
#include "platform/script/values/MaxInteger.h"
#include "platform/script/values/ModifierWords.h"
#include "platform/script/values/Value.h"

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

template <typename Table>
auto find(const Table& table, Word word) -> decltype(table.data()) {
    const auto* row = std::find_if(table.begin(), table.end(), [&](const auto& r) { return r.word == word; });
    return row == table.end() ? nullptr : row;
}

}  // namespace

NodeId LiteralParser::number() {
    const std::string_view text = m_tokens.current().text;
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    if (!whole || value > maxInteger) return real();
    return take(NodeKind::integer, static_cast<std::uint32_t>(value));
}

NodeId LiteralParser::real() {
    const std::optional<double> value = realOf(m_tokens.current().text);
    if (!value) {
        m_tokens.fail(errornumber::tooLarge, standardMessage(errornumber::tooLarge));
        return noNode;
    }
    return take(NodeKind::real, m_tree.addReal(*value));
}

NodeId LiteralParser::text() {
    if (!m_tokens.isAt(TokenKind::text)) {
        m_tokens.expected(quoted("\""));
        return noNode;
    }
    const std::string_view literal = m_tokens.current().text;
    return take(NodeKind::text, textValue(literal.substr(1, literal.size() - 2)));
}

/// The index of the text that is spelled so at the current token, behind its quote.
std::uint32_t LiteralParser::textValue(std::string_view spelling) {
    if (isPlain(spelling)) return m_tree.addText(spelling);
    Unescaped unescaped = unescape(spelling);
    if (unescaped.badEscape) {
        m_tokens.fail(errornumber::syntax, expectedButFound(quoted("\""), part::unknownToken()),
                      m_tokens.offset() + 1 + *unescaped.badEscape);
    }
    return m_tree.addDecoded(std::move(unescaped.text));
}

NodeId LiteralParser::constant() {
    const Word word = m_tokens.current().word;
    if (word == Word::trueWord) return take(NodeKind::truth, 1);
    if (word == Word::falseWord) return take(NodeKind::truth, 0);
    const TextConstant* row = find(textConstants, word);
    return row == nullptr ? noNode : take(NodeKind::text, m_tree.addText(row->text));
}

NodeId LiteralParser::modifier() {
    const ModifierWord* row = find(modifierWords, m_tokens.current().word);
    if (row == nullptr) return noNode;
    const NodeId node = take(NodeKind::modifierKey, row->modifier);
    if (m_tokens.accept(Word::down)) m_tree.nodes[node].kind = NodeKind::modifierDown;
    return node;
}

/// `date "..."` is a text that is made a date.
NodeId LiteralParser::date() {
    const NodeId node = take(NodeKind::coercion);
    m_tree.nodes[node].detail = static_cast<std::uint8_t>(Type::date);
    ChildList(m_tree, node).append(text());
    return node;
}

NodeId LiteralParser::missingValue() {
    const NodeId node = m_tree.add(NodeKind::missingValue, m_tokens.offset());
    m_tokens.acceptPhrase("missing value");
    return node;
}

}  // namespace script
