// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Operators.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace script {
namespace {

constexpr auto table = std::to_array<OperatorRow>({
    {"^", BinaryOperator::power, false, 90, Grouping::right, TokenKind::caret},
    {"*", BinaryOperator::times, false, 80, Grouping::left, TokenKind::star},
    {"/", BinaryOperator::over, false, 80, Grouping::left, TokenKind::slash},
    {"div", BinaryOperator::div, false, 80, Grouping::left},
    {"mod", BinaryOperator::mod, false, 80, Grouping::left},
    {"+", BinaryOperator::plus, false, 70, Grouping::left, TokenKind::plus},
    {"-", BinaryOperator::minus, false, 70, Grouping::left, TokenKind::minus},
    {"&", BinaryOperator::join, false, 60, Grouping::left, TokenKind::ampersand},
    {"<", BinaryOperator::less, false, 45, Grouping::none, TokenKind::less},
    {"less than", BinaryOperator::less, false, 45, Grouping::none},
    {"is less than", BinaryOperator::less, false, 45, Grouping::none},
    {"comes before", BinaryOperator::less, false, 45, Grouping::none},
    {"is not greater than or equal", BinaryOperator::less, false, 45, Grouping::none},
    {"is not greater than or equal to", BinaryOperator::less, false, 45, Grouping::none},
    {"isn't greater than or equal", BinaryOperator::less, false, 45, Grouping::none},
    {"isn't greater than or equal to", BinaryOperator::less, false, 45, Grouping::none},
    {"<=", BinaryOperator::lessOrEqual, false, 45, Grouping::none, TokenKind::lessEqual},
    {"less than or equal", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"less than or equal to", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"is less than or equal", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"is less than or equal to", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"is not greater than", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"isn't greater than", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"does not come after", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"doesn't come after", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {">", BinaryOperator::greater, false, 45, Grouping::none, TokenKind::greater},
    {"greater than", BinaryOperator::greater, false, 45, Grouping::none},
    {"is greater than", BinaryOperator::greater, false, 45, Grouping::none},
    {"comes after", BinaryOperator::greater, false, 45, Grouping::none},
    {"is not less than or equal", BinaryOperator::greater, false, 45, Grouping::none},
    {"is not less than or equal to", BinaryOperator::greater, false, 45, Grouping::none},
    {"isn't less than or equal", BinaryOperator::greater, false, 45, Grouping::none},
    {"isn't less than or equal to", BinaryOperator::greater, false, 45, Grouping::none},
    {">=", BinaryOperator::greaterOrEqual, false, 45, Grouping::none, TokenKind::greaterEqual},
    {"greater than or equal", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"greater than or equal to", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"is greater than or equal", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"is greater than or equal to", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"is not less than", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"isn't less than", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"does not come before", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"doesn't come before", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"=", BinaryOperator::equal, false, 40, Grouping::none, TokenKind::equal},
    {"is", BinaryOperator::equal, false, 40, Grouping::none},
    {"equals", BinaryOperator::equal, false, 40, Grouping::none},
    {"equal", BinaryOperator::equal, false, 40, Grouping::none},
    {"equal to", BinaryOperator::equal, false, 40, Grouping::none},
    {"is equal", BinaryOperator::equal, false, 40, Grouping::none},
    {"is equal to", BinaryOperator::equal, false, 40, Grouping::none},
    {"≠", BinaryOperator::equal, true, 40, Grouping::none, TokenKind::notEqual},
    {"is not", BinaryOperator::equal, true, 40, Grouping::none},
    {"isn't", BinaryOperator::equal, true, 40, Grouping::none},
    {"is not equal", BinaryOperator::equal, true, 40, Grouping::none},
    {"is not equal to", BinaryOperator::equal, true, 40, Grouping::none},
    {"isn't equal", BinaryOperator::equal, true, 40, Grouping::none},
    {"isn't equal to", BinaryOperator::equal, true, 40, Grouping::none},
    {"does not equal", BinaryOperator::equal, true, 40, Grouping::none},
    {"doesn't equal", BinaryOperator::equal, true, 40, Grouping::none},
    {"contains", BinaryOperator::contains, false, 40, Grouping::none},
    {"contain", BinaryOperator::contains, false, 40, Grouping::none},
    {"does not contain", BinaryOperator::contains, true, 40, Grouping::none},
    {"doesn't contain", BinaryOperator::contains, true, 40, Grouping::none},
    {"starts with", BinaryOperator::startsWith, false, 40, Grouping::none},
    {"start with", BinaryOperator::startsWith, false, 40, Grouping::none},
    {"does not start with", BinaryOperator::startsWith, true, 40, Grouping::none},
    {"doesn't start with", BinaryOperator::startsWith, true, 40, Grouping::none},
    {"begins with", BinaryOperator::startsWith, false, 40, Grouping::none},
    {"begin with", BinaryOperator::startsWith, false, 40, Grouping::none},
    {"does not begin with", BinaryOperator::startsWith, true, 40, Grouping::none},
    {"doesn't begin with", BinaryOperator::startsWith, true, 40, Grouping::none},
    {"ends with", BinaryOperator::endsWith, false, 40, Grouping::none},
    {"end with", BinaryOperator::endsWith, false, 40, Grouping::none},
    {"does not end with", BinaryOperator::endsWith, true, 40, Grouping::none},
    {"doesn't end with", BinaryOperator::endsWith, true, 40, Grouping::none},
    {"is in", BinaryOperator::isIn, false, 40, Grouping::none},
    {"is contained by", BinaryOperator::isIn, false, 40, Grouping::none},
    {"is not in", BinaryOperator::isIn, true, 40, Grouping::none},
    {"isn't in", BinaryOperator::isIn, true, 40, Grouping::none},
    {"is not contained by", BinaryOperator::isIn, true, 40, Grouping::none},
    {"isn't contained by", BinaryOperator::isIn, true, 40, Grouping::none},
    {"and", BinaryOperator::both, false, 20, Grouping::left},
    {"or", BinaryOperator::either, false, 10, Grouping::left},
});

/// The rows by what they begin with: signs by their kind, words by their first one.
class OperatorIndex {
  public:
    constexpr OperatorIndex() {
        for (std::size_t row = table.size(); row > 0; --row) {
            if (table[row - 1].sign != TokenKind::identifier) {
                m_signs[static_cast<std::size_t>(table[row - 1].sign)] = static_cast<std::uint8_t>(row);
            } else {
                addWords(static_cast<std::uint8_t>(row));
            }
        }
    }

    constexpr const OperatorRow* ofSign(TokenKind kind) const {
        return rowOf(m_signs[static_cast<std::size_t>(kind)]);
    }

    /// The rows that may begin with a word of that hash, those of more words first; null behind the last one.
    constexpr const OperatorRow* firstOf(std::uint32_t hash) const {
        return rowOf(m_heads[hash % headCount]);
    }
    constexpr const OperatorRow* nextOf(const OperatorRow& row) const {
        return rowOf(m_next[static_cast<std::size_t>(&row - table.data())]);
    }

  private:
    static constexpr std::size_t headCount = 128;

    static constexpr const OperatorRow* rowOf(std::uint8_t number) {
        return number == 0 ? nullptr : &table[number - std::size_t{1}];
    }

    constexpr void addWords(std::uint8_t number) {
        const Phrase& words = rowOf(number)->spelling;
        std::uint8_t* link = &m_heads[words.firstHash() % headCount];
        while (*link != 0 && rowOf(*link)->spelling.wordCount() > words.wordCount()) {
            link = &m_next[*link - std::size_t{1}];
        }
        m_next[number - std::size_t{1}] = *link;
        *link = number;
    }

    /// Numbers of rows from 1; 0 is none.
    std::array<std::uint8_t, static_cast<std::size_t>(TokenKind::strayContinuation) + 1> m_signs{};
    std::array<std::uint8_t, headCount> m_heads{};
    std::array<std::uint8_t, table.size()> m_next{};
};

constexpr OperatorIndex operatorIndex;

}  // namespace

const OperatorRow* binaryOperator(const TokenStream& tokens) {
    const Token& token = tokens.current();
    if (!token.is(TokenKind::identifier)) return operatorIndex.ofSign(token.kind);
    if (token.is(Word::none)) return nullptr;
    const OperatorRow* row = operatorIndex.firstOf(token.hash);
    while (row != nullptr && !tokens.isAtPhrase(row->spelling)) row = operatorIndex.nextOf(*row);
    return row;
}

std::string_view spellingOf(BinaryOperator operation, bool isNegated) {
    const auto* row = std::find_if(table.begin(), table.end(), [&](const OperatorRow& candidate) {
        return candidate.operation == operation && candidate.isNegated == isNegated;
    });
    return row == table.end() ? "" : row->spelling.spelling();
}

bool isOperatorAhead(const TokenStream& tokens) {
    const Token& token = tokens.ahead();
    if (token.is(Word::as)) return true;
    // What may begin an expression, or is a verb that stands behind others only.
    const bool isDoubtful = token.is(TokenKind::plus) || token.is(TokenKind::minus) || token.is(Word::end) ||
                            token.is(Word::begin) || token.is(Word::contain);
    if (isDoubtful) return false;
    if (!token.is(TokenKind::identifier)) return operatorIndex.ofSign(token.kind) != nullptr;
    const OperatorRow* row = operatorIndex.firstOf(token.hash);
    while (row != nullptr && !row->spelling.hasWord(0, token)) row = operatorIndex.nextOf(*row);
    return row != nullptr;
}

}  // namespace script
