// SPDX-License-Identifier: MIT
#include "platform/script/Operators.h"

#include <algorithm>
#include <array>

namespace script {
namespace {

constexpr auto table = std::to_array<OperatorRow>({
    {TokenKind::caret, Word::none, BinaryOperator::power, 90, Grouping::right},
    {TokenKind::star, Word::none, BinaryOperator::times, 80, Grouping::left},
    {TokenKind::slash, Word::none, BinaryOperator::over, 80, Grouping::left},
    {TokenKind::identifier, Word::div, BinaryOperator::div, 80, Grouping::left},
    {TokenKind::identifier, Word::mod, BinaryOperator::mod, 80, Grouping::left},
    {TokenKind::plus, Word::none, BinaryOperator::plus, 70, Grouping::left},
    {TokenKind::minus, Word::none, BinaryOperator::minus, 70, Grouping::left},
    {TokenKind::ampersand, Word::none, BinaryOperator::join, 60, Grouping::left},
});

}  // namespace

const OperatorRow* binaryOperator(const Token& token) {
    if (token.is(TokenKind::identifier) && token.is(Word::none)) return nullptr;
    const auto* row = std::find_if(table.begin(), table.end(), [&](const OperatorRow& candidate) {
        return candidate.token == token.kind && candidate.word == token.word;
    });
    return row == table.end() ? nullptr : row;
}

}  // namespace script
