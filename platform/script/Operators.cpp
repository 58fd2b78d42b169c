// SPDX-License-Identifier: MIT
#include "platform/script/Operators.h"

#include <algorithm>
#include <array>

namespace script {
namespace {

constexpr auto table = std::to_array<OperatorRow>({
    {"^", BinaryOperator::power, false, 90, Grouping::right},
    {"*", BinaryOperator::times, false, 80, Grouping::left},
    {"/", BinaryOperator::over, false, 80, Grouping::left},
    {"÷", BinaryOperator::over, false, 80, Grouping::left},
    {"div", BinaryOperator::div, false, 80, Grouping::left},
    {"mod", BinaryOperator::mod, false, 80, Grouping::left},
    {"+", BinaryOperator::plus, false, 70, Grouping::left},
    {"-", BinaryOperator::minus, false, 70, Grouping::left},
    {"&", BinaryOperator::join, false, 60, Grouping::left},
    {"<", BinaryOperator::less, false, 45, Grouping::none},
    {"less than", BinaryOperator::less, false, 45, Grouping::none},
    {"is less than", BinaryOperator::less, false, 45, Grouping::none},
    {"comes before", BinaryOperator::less, false, 45, Grouping::none},
    {"is not greater than or equal", BinaryOperator::less, false, 45, Grouping::none},
    {"is not greater than or equal to", BinaryOperator::less, false, 45, Grouping::none},
    {"isn't greater than or equal", BinaryOperator::less, false, 45, Grouping::none},
    {"isn't greater than or equal to", BinaryOperator::less, false, 45, Grouping::none},
    {"<=", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"≤", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"less than or equal", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"less than or equal to", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"is less than or equal", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"is less than or equal to", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"is not greater than", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"isn't greater than", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"does not come after", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {"doesn't come after", BinaryOperator::lessOrEqual, false, 45, Grouping::none},
    {">", BinaryOperator::greater, false, 45, Grouping::none},
    {"greater than", BinaryOperator::greater, false, 45, Grouping::none},
    {"is greater than", BinaryOperator::greater, false, 45, Grouping::none},
    {"comes after", BinaryOperator::greater, false, 45, Grouping::none},
    {"is not less than or equal", BinaryOperator::greater, false, 45, Grouping::none},
    {"is not less than or equal to", BinaryOperator::greater, false, 45, Grouping::none},
    {"isn't less than or equal", BinaryOperator::greater, false, 45, Grouping::none},
    {"isn't less than or equal to", BinaryOperator::greater, false, 45, Grouping::none},
    {">=", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"≥", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"greater than or equal", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"greater than or equal to", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"is greater than or equal", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"is greater than or equal to", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"is not less than", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"isn't less than", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"does not come before", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"doesn't come before", BinaryOperator::greaterOrEqual, false, 45, Grouping::none},
    {"=", BinaryOperator::equal, false, 40, Grouping::none},
    {"is", BinaryOperator::equal, false, 40, Grouping::none},
    {"equals", BinaryOperator::equal, false, 40, Grouping::none},
    {"equal", BinaryOperator::equal, false, 40, Grouping::none},
    {"equal to", BinaryOperator::equal, false, 40, Grouping::none},
    {"is equal", BinaryOperator::equal, false, 40, Grouping::none},
    {"is equal to", BinaryOperator::equal, false, 40, Grouping::none},
    {"≠", BinaryOperator::equal, true, 40, Grouping::none},
    {"/=", BinaryOperator::equal, true, 40, Grouping::none},
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

bool isSign(std::string_view spelling) {
    const char first = spelling.front();
    return first < 'a' || first > 'z';
}

/// Whether an operator of words can begin with this one.
bool beginsOperator(Word word) {
    switch (word) {
        case Word::andWord:
        case Word::begin:
        case Word::begins:
        case Word::comes:
        case Word::contain:
        case Word::contains:
        case Word::div:
        case Word::does:
        case Word::doesnt:
        case Word::end:
        case Word::ends:
        case Word::equal:
        case Word::equals:
        case Word::greater:
        case Word::is:
        case Word::isnt:
        case Word::less:
        case Word::mod:
        case Word::orWord:
        case Word::start:
        case Word::starts:
            return true;
        default:
            return false;
    }
}

bool standsHere(const TokenStream& tokens, const OperatorRow& row) {
    if (isSign(row.spelling)) return tokens.current().text == row.spelling;
    return row.spelling.front() == (tokens.current().text.front() | 0x20) && tokens.isAtTerm(row.spelling);
}

/// Kinds of tokens that no operator is, so that most tokens are told at once.
bool isNoOperator(const Token& token) {
    switch (token.kind) {
        case TokenKind::identifier:
            return !beginsOperator(token.word);
        case TokenKind::ampersand:
        case TokenKind::plus:
        case TokenKind::minus:
        case TokenKind::star:
        case TokenKind::slash:
        case TokenKind::caret:
        case TokenKind::equal:
        case TokenKind::notEqual:
        case TokenKind::less:
        case TokenKind::lessEqual:
        case TokenKind::greater:
        case TokenKind::greaterEqual:
            return false;
        default:
            return true;
    }
}

}  // namespace

const OperatorRow* binaryOperator(const TokenStream& tokens) {
    if (isNoOperator(tokens.current())) return nullptr;
    const OperatorRow* longest = nullptr;
    for (const OperatorRow& row : table) {
        if (longest != nullptr && row.spelling.size() <= longest->spelling.size()) continue;
        if (standsHere(tokens, row)) longest = &row;
    }
    return longest;
}

void skipOperator(TokenStream& tokens, const OperatorRow& row) {
    for (auto words = std::count(row.spelling.begin(), row.spelling.end(), ' '); words >= 0; --words) {
        tokens.advance();
    }
}

}  // namespace script
