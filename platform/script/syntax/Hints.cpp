// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Hints.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "platform/script/source/Lexer.h"
#include "platform/script/syntax/Slips.h"

namespace script {
namespace {

/// The line in which the innermost block begins that is open where the error is; 0 if all are closed.
std::uint32_t openBlockLine(const ScriptError& error, const Tree& tree, std::string_view source) {
    std::vector<std::uint32_t> openLines;
    Locator locator(source);
    for (const BlockMark& mark : tree.blocks) {
        const Location place = locator.at(mark.offset);
        const bool isBehind = place.line > error.location.line ||
                              (place.line == error.location.line && place.column >= error.location.column);
        if (isBehind) break;
        if (mark.change > 0) {
            openLines.push_back(place.line);
        } else if (!openLines.empty()) {
            openLines.pop_back();
        }
    }
    return openLines.empty() ? 0 : openLines.back();
}

/// What blocks end with, of lines that consist of the same without the blank: `endif`.
std::string_view endMeantBy(std::string_view line) {
    constexpr auto ends = std::to_array<std::string_view>(
        {"end if", "end tell", "end repeat", "end try", "end considering", "end ignoring", "end timeout"});
    const std::size_t first = std::min(line.find_first_not_of(" \t"), line.size());
    line = line.substr(first, line.find_last_not_of(" \t") + 1 - first);
    const auto* found = std::find_if(ends.begin(), ends.end(), [&](std::string_view end) {
        const std::size_t word = line.size() - std::min(line.size(), end.size() - 4);
        const bool joins = word == 3 || (word == 4 && (line[3] == '_' || line[3] == '-'));
        return joins && equalIgnoringCase(line.substr(0, 3), "end") &&
               equalIgnoringCase(line.substr(word), end.substr(4));
    });
    return found == ends.end() ? "" : *found;
}

std::string blockHint(const ScriptError& error, const Tree& tree, std::string_view source) {
    constexpr std::uint32_t longestBlock = 1000;
    const std::uint32_t begin = openBlockLine(error, tree, source);
    if (begin == 0) return "";
    const std::uint32_t end = std::min(error.location.line, begin + longestBlock);
    std::string_view rest = source.substr(offsetOf(source, {begin, 1}));
    for (std::uint32_t number = begin; number < end; ++number) {
        const std::string_view meant = endMeantBy(lineOf(rest, 1));
        if (!meant.empty())
            return "In line " + std::to_string(number) + " these are two words: " + std::string(meant) + ".";
        rest = rest.substr(offsetOf(rest, {2, 1}));
    }
    return "The block that begins in line " + std::to_string(begin) + " has no “end” of its own.";
}

bool isOverLines(const Token& token) {
    return token.is(TokenKind::text) && token.text.find_first_of("\r\n") != std::string_view::npos;
}

/// Where a text begins that is not closed in its line, if the error comes of that: a text over lines stands
/// right before the error, or a word stands against the quote that was taken for its end.
std::optional<std::size_t> openTextBefore(std::size_t error, std::string_view source) {
    Lexer lexer(source);
    Token former;
    for (Token token = lexer.next(); !token.is(TokenKind::endOfScript); token = lexer.next()) {
        const auto begin = static_cast<std::size_t>(token.text.data() - source.data());
        const bool touches = former.text.data() + former.text.size() == token.text.data() &&
                             (token.is(TokenKind::identifier) || token.is(TokenKind::number));
        if (isOverLines(former) && (touches || begin == error))
            return static_cast<std::size_t>(former.text.data() - source.data());
        if (begin >= error) return std::nullopt;
        former = token;
    }
    return std::nullopt;
}

}  // namespace

ScriptError explained(ScriptError error, const Tree& tree, std::string_view source, bool isInsideTell) {
    if (error.number != errornumber::syntax) return error;
    const auto open = openTextBefore(offsetOf(source, error.location), source);
    if (open) {
        error.message = "Expected “\"” but found end of line.";
        error.location = locate(source, *open);
        error.hint = "The text that begins here is not closed by a straight quote in its line.";
        return error;
    }
    if (error.message.starts_with("Expected “end” but")) error.hint = blockHint(error, tree, source);
    if (error.hint.empty()) error.hint = hintOfLine(error, source, isInsideTell);
    return error;
}

}  // namespace script
