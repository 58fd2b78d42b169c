// SPDX-License-Identifier: MIT
#include "platform/script/syntax/Formatter.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "platform/script/source/Lexer.h"
#include "platform/script/source/Trivia.h"
#include "platform/script/syntax/Parser.h"
#include "platform/script/syntax/Readable.h"

namespace script {
namespace {

/// Something between two tokens that is no blank.
struct Piece {
    enum class Kind { comment, continuation } kind;
    std::string_view text;  ///< of a comment, with its signs
    bool isBehindLineEnd;   ///< which stands between the piece and the former one
};

std::string_view withoutBlanksBehind(std::string_view text) {
    const std::size_t last = text.find_last_not_of(" \t");
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

/// What lies between two tokens, cut up.
std::vector<Piece> piecesOf(std::string_view gap) {
    std::vector<Piece> pieces;
    bool isBehindLineEnd = false;
    const auto add = [&](Piece::Kind kind, std::string_view text) {
        pieces.push_back({kind, text, isBehindLineEnd});
        isBehindLineEnd = false;
    };
    while (!gap.empty()) {
        std::size_t length = 1;
        if (gap.starts_with("(*")) {
            length = std::min(blockCommentLength(gap), gap.size());
            add(Piece::Kind::comment, gap.substr(0, length));
        } else if (beginsLineComment(gap)) {
            length = lineLength(gap);
            add(Piece::Kind::comment, withoutBlanksBehind(gap.substr(0, length)));
        } else if (gap.starts_with(continuationSign)) {
            length = continuationSign.size();
            add(Piece::Kind::continuation, {});
        } else if (gap.starts_with(noBreakSpace)) {
            length = noBreakSpace.size();
        } else if (isLineEnd(gap.front())) {
            isBehindLineEnd = true;
        }
        gap.remove_prefix(length);
    }
    return pieces;
}

bool mayBeSign(const Token& token) { return token.is(TokenKind::minus) || token.is(TokenKind::plus); }

/// Where operators stand between two values, in order, in bytes.
std::vector<std::uint32_t> operatorPlaces(const Tree& tree) {
    std::vector<std::uint32_t> places;
    for (const Node& node : tree.nodes) {
        if (node.kind == NodeKind::binary) places.push_back(node.offset);
    }
    std::sort(places.begin(), places.end());
    return places;
}

std::string_view spellingOfSign(const Token& token) {
    switch (token.kind) {
        case TokenKind::notEqual:
            return "≠";
        case TokenKind::lessEqual:
            return "≤";
        case TokenKind::greaterEqual:
            return "≥";
        default:
            return token.text;
    }
}

std::string canonical(const Token& token) {
    const bool isReserved =
        token.is(TokenKind::identifier) && !token.is(Word::none) && kindOf(token.word) == WordKind::reserved;
    return isReserved ? std::string(spellingOf(token.word)) : std::string(spellingOfSign(token));
}

/// Writes one token after another.
class Layout {
  public:
    Layout(std::string_view source, const Tree& tree)
        : m_source(source), m_blocks(tree.blocks), m_operators(operatorPlaces(tree)), m_lexer(source) {}

    std::string take() {
        for (Token token = m_lexer.next();; token = m_lexer.next()) {
            gap(token);
            if (token.is(TokenKind::endOfScript)) break;
            if (token.is(TokenKind::endOfLine)) {
                endLine();
            } else {
                write(token);
            }
            m_end = offsetOf(token) + token.text.size();
        }
        if (!m_line.empty()) endLine();
        while (m_out.ends_with("\n\n")) m_out.pop_back();
        return m_out == "\n" ? "" : std::move(m_out);
    }

  private:
    std::size_t offsetOf(const Token& token) const {
        return static_cast<std::size_t>(token.text.data() - m_source.data());
    }

    /// Of what begins at the offset.
    int depthAt(std::size_t offset) {
        while (m_mark < m_blocks.size() && m_blocks[m_mark].offset <= offset)
            m_depth += m_blocks[m_mark++].change;
        return std::max(m_depth, 0);
    }

    void begin(std::size_t offset) {
        if (!m_line.empty()) return;
        m_lineDepth = depthAt(offset);
        m_line.assign(static_cast<std::size_t>(m_lineDepth), '\t');
        m_startsLine = true;
    }

    void endLine() {
        // A line that is joined with an empty one stays apart from what follows.
        if (std::exchange(m_isJoined, false)) m_line += '\n';
        // At most one empty line in a row, and none at the beginning.
        const bool isSpare = m_line.empty() && (m_out.empty() || m_out.ends_with("\n\n"));
        if (!isSpare) m_out += m_line + "\n";
        m_line.clear();
        m_former.reset();
        m_isProperty = false;
    }

    void gap(const Token& token) {
        const std::string_view between = m_source.substr(m_end, offsetOf(token) - m_end);
        m_hasGap = !between.empty();
        for (const Piece& piece : piecesOf(between)) {
            begin(static_cast<std::size_t>(between.data() - m_source.data()) +
                  static_cast<std::size_t>(piece.text.empty() ? 0 : piece.text.data() - between.data()));
            if (piece.kind == Piece::Kind::continuation) {
                breakJoined();
                separate();
                m_line += continuationSign;
                m_isJoined = true;
            } else if (m_isJoined && !piece.isBehindLineEnd) {
                m_line += " " + std::string(piece.text);
            } else {
                breakJoined();
                separate();
                m_line += piece.text;
                m_needsBlank = true;
            }
        }
        if (!token.is(TokenKind::endOfLine) && !token.is(TokenKind::endOfScript)) breakJoined();
    }

    /// Behind ¬ the next line begins, one level deeper.
    void breakJoined() {
        if (!m_isJoined) return;
        m_isJoined = false;
        m_line += "\n" + std::string(static_cast<std::size_t>(m_lineDepth) + 1, '\t');
        m_startsLine = true;
        m_needsBlank = false;
    }

    void separate() {
        if (!m_startsLine) m_line += ' ';
        m_startsLine = false;
    }

    void write(const Token& token) {
        const bool isFirst = m_line.empty();
        begin(offsetOf(token));
        if (isFirst) m_isProperty = token.is(Word::property) || token.is(Word::prop);
        if (m_startsLine || !needsBlank(token)) {
            m_startsLine = false;
        } else {
            m_line += ' ';
        }
        // Only the first colon of a property stands between blanks.
        if (m_former && m_former->is(TokenKind::colon)) m_isProperty = false;
        m_needsBlank = false;
        m_isSign = isSign(token);
        m_line += canonical(token);
        m_former = token;
    }

    /// Whether the token is the sign of a value, and not an operator.
    bool isSign(const Token& token) const {
        return mayBeSign(token) &&
               !std::binary_search(m_operators.begin(), m_operators.end(), offsetOf(token));
    }

    bool needsBlank(const Token& token) const {
        if (m_needsBlank) return true;
        if (!m_former) return false;
        if (m_isSign) return m_former->is(token.kind) && token.is(TokenKind::minus);
        if (isWrittenAsItWas(token)) return m_hasGap;
        return wantsBlankBefore(token) && wantsBlankBehind(*m_former);
    }

    /// A call, and what stands directly behind a number.
    bool isWrittenAsItWas(const Token& token) const {
        const bool isCall = token.is(TokenKind::leftParenthesis) && m_former->is(TokenKind::identifier) &&
                            m_former->is(Word::none);
        return isCall || (token.is(TokenKind::identifier) && m_former->is(TokenKind::number));
    }

    bool wantsBlankBefore(const Token& token) const {
        switch (token.kind) {
            case TokenKind::rightParenthesis:
            case TokenKind::rightBrace:
            case TokenKind::comma:
            case TokenKind::possessive:
                return false;
            case TokenKind::colon:
                return m_isProperty;
            default:
                return true;
        }
    }

    bool wantsBlankBehind(const Token& former) const {
        if (former.is(TokenKind::colon)) return m_isProperty;
        return !former.is(TokenKind::leftParenthesis) && !former.is(TokenKind::leftBrace);
    }

    std::string_view m_source;
    const std::vector<BlockMark>& m_blocks;
    const std::vector<std::uint32_t> m_operators;
    Lexer m_lexer;
    std::string m_out;
    std::string m_line;
    std::optional<Token> m_former;
    std::size_t m_end = 0;
    std::size_t m_mark = 0;
    int m_depth = 0;
    int m_lineDepth = 0;
    bool m_startsLine = true;
    bool m_hasGap = false;
    bool m_needsBlank = false;
    bool m_isJoined = false;
    bool m_isSign = false;
    bool m_isProperty = false;
};

}  // namespace

Result<std::string, ScriptError> formatted(std::string_view source) {
    if (auto readable = checkReadable(source); !readable) return std::move(readable).error();
    const std::string_view whole = source;
    if (source.starts_with(byteOrderMark)) source.remove_prefix(byteOrderMark.size());
    // A second mark is no part of a script, which the parser sees where the first one stands.
    Parser parser(source.starts_with(byteOrderMark) ? whole : source);
    const Tree& tree = parser.parse();
    if (parser.error()) return *parser.error();
    return Layout(source, tree).take();
}

}  // namespace script
