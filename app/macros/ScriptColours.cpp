// SPDX-License-Identifier: MIT
#include "app/macros/ScriptColours.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/script/source/Lexer.h"

namespace {

using script::Token;
using script::TokenKind;

constexpr ScriptLineState inText = 1;

/// What stands before the line, so that the lexer reads it as it is meant.
std::string leadOf(ScriptLineState state) {
    if (state == inText) return "\"";
    std::string lead;
    for (int depth = inText; depth < state; ++depth) lead += "(*";
    return lead;
}

/// In how many comments the end of a comment that never ends is.
int depthOf(std::string_view comment) {
    int depth = 0;
    for (std::size_t i = 0; i + 1 < comment.size(); ++i) {
        const std::string_view sign = comment.substr(i, 2);
        if (sign != "(*" && sign != "*)") continue;
        depth += sign == "(*" ? 1 : -1;
        ++i;
    }
    return depth;
}

std::optional<ScriptPart> partOf(const Token& token) {
    switch (token.kind) {
        case TokenKind::identifier:
            if (token.word == script::Word::none) return std::nullopt;
            return script::kindOf(token.word) == script::WordKind::reserved ? ScriptPart::keyword
                                                                            : ScriptPart::command;
        case TokenKind::number:
            return ScriptPart::number;
        case TokenKind::text:
        case TokenKind::openText:
            return ScriptPart::text;
        case TokenKind::openComment:
            return ScriptPart::comment;
        case TokenKind::unknown:
        case TokenKind::rawCode:
        case TokenKind::strayContinuation:
            return ScriptPart::fault;
        default:
            return std::nullopt;
    }
}

/// Turns bytes of the line with its lead into spans.
class SpanWriter {
  public:
    SpanWriter(std::string_view source, std::size_t lead, bool isAscii)
        : m_source(source), m_lead(lead), m_isAscii(isAscii) {}

    void add(std::size_t begin, std::size_t end, ScriptPart part) {
        begin = std::max(begin, m_lead);
        if (begin >= end) return;
        const int from = unitsBefore(begin);
        spans.push_back({from, unitsBefore(end) - from, part});
    }

    std::vector<ScriptSpan> spans;

  private:
    int unitsBefore(std::size_t byte) const {
        const std::size_t bytes = byte - m_lead;
        if (m_isAscii) return static_cast<int>(bytes);
        return static_cast<int>(
            QString::fromUtf8(m_source.data() + m_lead, static_cast<qsizetype>(bytes)).size());
    }

    std::string_view m_source;
    std::size_t m_lead;
    bool m_isAscii;
};

/// The comments between two tokens, from the first to the last.
void addComments(SpanWriter& writer, std::string_view source, std::size_t begin, std::size_t end) {
    const std::string_view gap = source.substr(begin, end - begin);
    const std::size_t first = gap.find_first_of("-#(");
    const std::size_t last = gap.find_last_not_of(" \t\r");
    if (first != std::string_view::npos) writer.add(begin + first, begin + last + 1, ScriptPart::comment);
}

}  // namespace

ScriptLine readScriptLine(const QString& line, ScriptLineState begin) {
    const std::string lead = leadOf(begin);
    const QByteArray bytes = line.toUtf8();
    const std::string source = lead + bytes.toStdString();
    SpanWriter writer(source, lead.size(), bytes.size() == line.size());
    script::Lexer lexer(source);
    std::size_t behind = 0;
    ScriptLineState end = 0;
    for (Token token = lexer.next();; token = lexer.next()) {
        const auto at = static_cast<std::size_t>(token.text.data() - source.data());
        addComments(writer, source, behind, at);
        if (token.kind == TokenKind::endOfScript) break;
        const std::size_t gap = std::exchange(behind, at + token.text.size());
        if (const auto part = partOf(token)) writer.add(at, behind, *part);
        if (token.kind == TokenKind::openText) end = inText;
        if (token.kind == TokenKind::openComment)
            end = inText + depthOf(std::string_view(source).substr(gap));
    }
    return {std::move(writer.spans), end};
}
