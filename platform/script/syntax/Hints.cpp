// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Hints.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "platform/Sentence.h"
#include "platform/script/commands/Advice.h"
#include "platform/script/source/Lexer.h"
#include "platform/script/source/TokenStream.h"
#include "platform/script/source/Trivia.h"
#include "platform/script/source/Wording.h"
#include "platform/script/syntax/ErrorLine.h"
#include "platform/script/syntax/Misspelt.h"
#include "platform/script/syntax/Slips.h"

namespace script {
namespace {

/// The lines in which the blocks begin that are open at a byte of the source, the innermost last.
std::vector<std::uint32_t> openBlockLines(std::size_t offset, const Tree& tree, std::string_view source) {
    std::vector<std::uint32_t> openLines;
    std::uint32_t endLine = 0;
    std::uint32_t ended = 0;
    Locator locator(source);
    for (const BlockMark& mark : tree.blocks) {
        if (mark.offset >= offset) break;
        const std::uint32_t line = locator.at(mark.offset).line;
        if (mark.change > 0) {
            // What begins where another part ends, as behind `else`, belongs to that.
            openLines.push_back(line == endLine ? ended : line);
        } else if (!openLines.empty()) {
            endLine = line;
            ended = openLines.back();
            openLines.pop_back();
        }
    }
    return openLines;
}

/// Whether a block that begins with that line may end with `end WORD`, or go on with `else`.
bool beginsBlock(const std::string& first, const std::string& word) {
    if (word == "else") return first == "if";
    if (word == "error") return first == "try";
    if (word == "timeout") return first == "with";
    return first == word;
}

/// Of an `else`, or of the `end` of a block of that word, where no block at all is open.
std::string noBlockHint(bool isElse, const std::string& word) {
    if (isElse) {
        return sentence("Hints",
                        "No block is open here; an “if” with its statement in one line has no “else”.");
    }
    if (word == "if") {
        return sentence("Hints",
                        "No block is open here; an “if” with its statement in one line has no “end if”.");
    }
    if (word == "tell")
        return sentence("Hints", "No block is open here; a “tell … to” in one line has no “end tell”.");
    return sentence("Hints", "No block is open here; this line is one too many.");
}

/// Likewise where only other blocks are open, the innermost from that line on.
std::string noSuchBlockHint(bool isElse, const std::string& word, std::uint32_t begin) {
    if (isElse) {
        return sentence("Hints",
                        "No “if” is open here; an “if” with its statement in one line has no “else”.");
    }
    if (word == "if") {
        return sentence("Hints",
                        "No “if” is open here; an “if” with its statement in one line has no “end if”.");
    }
    if (word == "tell")
        return sentence("Hints", "No “tell” is open here; a “tell … to” in one line has no “end tell”.");
    //: %1 is the first word of a block, "repeat", %2 a number.
    return sentence("Hints",
                    "No “%1” is open here; the block that begins in line %2 has no “end” of its own.")
        .arg(word)
        .arg(std::to_string(begin));
}

/// The word of a block, by one that may be misspelt; empty if it is near to none.
std::string blockMeant(const std::string& word) {
    if (TokenStream::namesBlock(wordOf(word))) return word;
    return isUnknown(word) ? wordLike(word, WordPlace::block) : "";
}

/// `end tell` or `else`, where no such block is open; empty for what ends one.
std::string strayEndHint(const ScriptError& error, const std::vector<std::uint32_t>& openLines,
                         std::string_view source) {
    const ErrorLine line(source, error.location);
    const bool isElse = line.first() == "else" && line.here() == "else";
    if (!isElse && (line.first() != "end" || line.here() != "end")) return "";
    const std::string word = isElse ? line.first() : blockMeant(line.second());
    if (word.empty() && !openLines.empty()) return "";
    const bool isOpen = std::any_of(openLines.begin(), openLines.end(), [&](std::uint32_t number) {
        return beginsBlock(ErrorLine(source, {number, 1}).first(), word);
    });
    if (isOpen) return "";
    return openLines.empty() ? noBlockHint(isElse, word) : noSuchBlockHint(isElse, word, openLines.back());
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

/// Where the last block ends or begins before that byte.
std::size_t lastMarkBefore(std::size_t offset, const Tree& tree) {
    std::size_t last = 0;
    for (const BlockMark& mark : tree.blocks) {
        if (mark.offset >= offset) break;
        last = mark.offset;
    }
    return last;
}

/// What the block ends with, of an error that another word stands behind its `end`: “end tell”; empty for
/// others.
std::string endExpected(const std::string& message) {
    constexpr std::string_view before = "Expected “end ";
    if (!message.starts_with(before)) return "";
    const std::size_t begin = before.size() - std::string_view("end ").size();
    return message.substr(begin, message.find("” but found ") - begin);
}

/// Whether the line ends the handler that begins in the other one.
bool endsHandler(const ErrorLine& line, const ErrorLine& other) {
    return (other.first() == "on" || other.first() == "to") && line.second() == other.second();
}

std::string blockHint(const ScriptError& error, const Tree& tree, std::string_view source) {
    constexpr std::uint32_t longestBlock = 1000;
    const std::string expected = endExpected(error.message.english());
    std::size_t place = offsetOf(source, error.location);
    if (!expected.empty()) place = lastMarkBefore(place, tree);
    const std::vector<std::uint32_t> openLines = openBlockLines(place, tree, source);
    if (openLines.empty()) return "";
    const ErrorLine line(source, error.location);
    if (isOnErrorMeant(line)) return didYouMean("on error");
    const std::uint32_t begin = openLines.back();
    const std::uint32_t end = std::min(error.location.line, begin + longestBlock);
    std::string_view rest = source.substr(offsetOf(source, {begin, 1}));
    for (std::uint32_t number = begin; number < end; ++number) {
        const std::string_view meant = endMeantBy(lineOf(rest, 1));
        if (!meant.empty()) {
            //: %1 is a number, %2 what the line was meant to be, "end if".
            return sentence("Hints", "In line %1 these are two words: %2.")
                .arg(std::to_string(number))
                .arg(meant);
        }
        rest = rest.substr(offsetOf(rest, {2, 1}));
    }
    std::string stray = strayEndHint(error, openLines, source);
    if (!stray.empty()) return stray;
    if (!expected.empty() && !endsHandler(line, ErrorLine(source, {openLines.front(), 1}))) {
        //: %1 is a number, %2 the last line of a block, "end if".
        return sentence("Hints", "The block that begins in line %1 ends with “%2”.")
            .arg(std::to_string(begin))
            .arg(expected);
    }
    return sentence("Hints", "The block that begins in line %1 has no “end” of its own.")
        .arg(std::to_string(begin));
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

/// Where the comment begins that never ends; it stands behind the last token.
std::size_t openComment(std::string_view source) {
    Lexer lexer(source);
    std::string_view gap = source;
    for (Token token = lexer.next(); !token.is(TokenKind::openComment) && !token.is(TokenKind::endOfScript);
         token = lexer.next()) {
        gap = source.substr(static_cast<std::size_t>(token.text.data() + token.text.size() - source.data()));
    }
    while (!gap.empty()) {
        std::size_t length = beginsLineComment(gap) ? lineLength(gap) : 1;
        if (gap.starts_with("(*")) length = blockCommentLength(gap);
        if (length == std::string_view::npos) break;
        gap.remove_prefix(length);
    }
    return source.size() - gap.size();
}

}  // namespace

ScriptError explained(ScriptError error, const Tree& tree, std::string_view source, bool isInsideTell) {
    if (error.number != errornumber::syntax) return error;
    const auto open = openTextBefore(offsetOf(source, error.location), source);
    if (open) {
        error.message = expectedButFound(quoted("\""), part::endOfLine());
        error.location = locate(source, *open);
        error.hint =
            sentence("Hints", "The text that begins here is not closed by a straight quote in its line.");
        return error;
    }
    const std::string message = error.message.english();
    if (message.starts_with("Expected “*)”")) {
        const std::uint32_t line = locate(source, openComment(source)).line;
        error.hint = sentence("Hints", "The comment that begins in line %1 is not closed by “*)”.")
                         .arg(std::to_string(line));
    } else if (message.starts_with("Expected “end” but") || !endExpected(message).empty()) {
        error.hint = blockHint(error, tree, source);
    } else if (message.starts_with("Expected expression but found “e")) {
        error.hint =
            strayEndHint(error, openBlockLines(offsetOf(source, error.location), tree, source), source);
    }
    if (error.hint.empty()) error.hint = hintOfLine(error, tree, source, isInsideTell);
    return error;
}

}  // namespace script
