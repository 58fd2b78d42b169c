// SPDX-License-Identifier: MIT
#include "platform/script/values/TextRules.h"

#include <algorithm>
#include <utility>

#include "platform/Utf8.h"
#include "platform/script/values/Characters.h"

namespace script {
namespace {

bool isIgnored(char32_t character, const TextRules& rules) {
    if (!rules.considers(attribute::hyphens) && isHyphen(character)) return true;
    if (!rules.considers(attribute::punctuation) && isPunctuation(character)) return true;
    return !rules.considers(attribute::whiteSpace) && isWhiteSpace(character);
}

/// Reads a text as it is compared: what is ignored is left out.
class FoldedReader {
  public:
    FoldedReader(std::string_view text, const TextRules& rules) : m_text(text), m_rules(rules) {}

    /// Moves to the next character that counts; false at the end.
    bool next() {
        while (m_position < m_text.size()) {
            m_offset = m_position;
            m_character = takeCharacter(m_text, m_position);
            if (isIgnored(m_character, m_rules)) continue;
            if (!m_rules.considers(attribute::letterCase)) m_character = lowered(m_character);
            if (!m_rules.considers(attribute::diacriticals)) m_character = withoutAccents(m_character);
            if (m_character != 0) return true;
        }
        return false;
    }

    char32_t character() const { return m_character; }
    /// Where it stands in the text.
    std::size_t offset() const { return m_offset; }

  private:
    std::string_view m_text;
    const TextRules& m_rules;
    std::size_t m_position = 0;
    std::size_t m_offset = 0;
    char32_t m_character = 0;
};

/// A whole text as it is compared; each character remembers where it stood.
struct Folded {
    std::u32string characters;
    std::vector<std::size_t> offsets;  ///< one more than characters: the end
};

Folded folded(std::string_view text, const TextRules& rules) {
    Folded result;
    result.characters.reserve(text.size());
    result.offsets.reserve(text.size() + 1);
    FoldedReader reader(text, rules);
    while (reader.next()) {
        result.characters += reader.character();
        result.offsets.push_back(reader.offset());
    }
    result.offsets.push_back(text.size());
    return result;
}

bool isDigit(char32_t character) { return character >= U'0' && character <= U'9'; }

/// The digits that begin at a place, without leading zeros.
std::u32string_view digitsAt(std::u32string_view text, std::size_t& position) {
    while (position < text.size() && text[position] == U'0') ++position;
    const std::size_t start = position;
    while (position < text.size() && isDigit(text[position])) ++position;
    return text.substr(start, position - start);
}

int sign(bool less) { return less ? -1 : 1; }

/// Runs of digits are compared as numbers.
int compareNumeric(std::u32string_view left, std::u32string_view right) {
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < left.size() && j < right.size()) {
        if (isDigit(left[i]) && isDigit(right[j])) {
            const std::u32string_view one = digitsAt(left, i);
            const std::u32string_view other = digitsAt(right, j);
            if (one.size() != other.size()) return sign(one.size() < other.size());
            if (one != other) return sign(one < other);
        } else if (left[i] != right[j]) {
            return sign(left[i] < right[j]);
        } else {
            ++i;
            ++j;
        }
    }
    if (i == left.size() && j == right.size()) return 0;
    return sign(i == left.size());
}

/// For each character of the part, the length of the longest beginning of the part that ends there.
std::vector<std::size_t> borders(std::u32string_view part) {
    std::vector<std::size_t> lengths(part.size(), 0);
    std::size_t length = 0;
    for (std::size_t i = 1; i < part.size(); ++i) {
        while (length > 0 && part[i] != part[length]) length = lengths[length - 1];
        if (part[i] == part[length]) ++length;
        lengths[i] = length;
    }
    return lengths;
}

/// Finds a part in a text again and again without going back: the method of Knuth, Morris and Pratt.
class Finder {
  public:
    explicit Finder(std::u32string part) : m_part(std::move(part)), m_borders(borders(m_part)) {}

    std::size_t length() const { return m_part.size(); }

    /// npos if there is none.
    std::size_t find(std::u32string_view text, std::size_t from) const {
        std::size_t matched = 0;
        if (m_part.empty()) return from <= text.size() ? from : std::u32string_view::npos;
        for (std::size_t i = from; i < text.size(); ++i) {
            while (matched > 0 && text[i] != m_part[matched]) matched = m_borders[matched - 1];
            if (text[i] == m_part[matched]) ++matched;
            if (matched == m_part.size()) return i + 1 - matched;
        }
        return std::u32string_view::npos;
    }

  private:
    std::u32string m_part;
    std::vector<std::size_t> m_borders;
};

/// The nearest of several delimiters: each remembers where it comes next, so that all of them together walk
/// the text once each.
class DelimiterFinder {
  public:
    DelimiterFinder(std::u32string_view text, const TextRules& rules) : m_text(text) {
        for (const std::string& delimiter : rules.delimiters) {
            Finder finder(folded(delimiter, rules).characters);
            if (finder.length() > 0) m_rows.push_back({std::move(finder), 0, false});
        }
    }

    /// Whether there is nothing to be found: no delimiter, or empty ones.
    bool isEmpty() const { return m_rows.empty(); }

    /// Where the next delimiter begins and ends, in characters; false if there is none.
    bool next(std::size_t from, Stretch& found) {
        found.begin = std::u32string_view::npos;
        for (Row& row : m_rows) {
            if (!row.isKnown || row.place < from) row.place = row.finder.find(m_text, from);
            row.isKnown = true;
            if (row.place >= found.begin) continue;
            found = {row.place, row.place + row.finder.length()};
        }
        return found.begin != std::u32string_view::npos;
    }

  private:
    struct Row {
        Finder finder;
        std::size_t place;
        bool isKnown;
    };
    std::u32string_view m_text;
    std::vector<Row> m_rows;
};

}  // namespace

std::vector<Stretch> charactersOf(std::string_view text) {
    std::vector<Stretch> characters;
    characters.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        takeCharacter(text, position);
        characters.push_back({start, position});
    }
    return characters;
}

int compareTexts(std::string_view left, std::string_view right, const TextRules& rules) {
    if (rules.considers(attribute::numericStrings)) {
        return compareNumeric(folded(left, rules).characters, folded(right, rules).characters);
    }
    FoldedReader one(left, rules);
    FoldedReader other(right, rules);
    for (;;) {
        const bool hasOne = one.next();
        const bool hasOther = other.next();
        if (!hasOne || !hasOther) return static_cast<int>(hasOne) - static_cast<int>(hasOther);
        if (one.character() != other.character()) return sign(one.character() < other.character());
    }
}

std::optional<Stretch> findText(std::string_view text, std::string_view part, std::size_t from,
                                const TextRules& rules) {
    const Folded whole = folded(text.substr(from), rules);
    const Finder finder(folded(part, rules).characters);
    const std::size_t place = finder.find(whole.characters, 0);
    if (place == std::u32string_view::npos) return std::nullopt;
    return Stretch{from + whole.offsets[place], from + whole.offsets[place + finder.length()]};
}

bool textStartsWith(std::string_view text, std::string_view part, const TextRules& rules) {
    FoldedReader whole(text, rules);
    FoldedReader beginning(part, rules);
    while (beginning.next()) {
        if (!whole.next() || whole.character() != beginning.character()) return false;
    }
    return true;
}

bool textEndsWith(std::string_view text, std::string_view part, const TextRules& rules) {
    const std::u32string whole = folded(text, rules).characters;
    const std::u32string end = folded(part, rules).characters;
    return whole.size() >= end.size() && whole.compare(whole.size() - end.size(), end.size(), end) == 0;
}

std::vector<Stretch> textItemsOf(std::string_view text, const TextRules& rules) {
    std::vector<Stretch> items;
    if (text.empty()) return items;
    const Folded whole = folded(text, rules);
    DelimiterFinder delimiters(whole.characters, rules);
    if (delimiters.isEmpty()) return charactersOf(text);
    std::size_t start = 0;
    Stretch found;
    for (std::size_t from = 0; delimiters.next(from, found); from = found.end) {
        items.push_back({start, whole.offsets[found.begin]});
        // Behind the delimiter's last character, and not where the next one that counts begins.
        std::size_t last = whole.offsets[found.end - 1];
        takeCharacter(text, last);
        start = last;
    }
    items.push_back({start, text.size()});
    return items;
}

}  // namespace script
