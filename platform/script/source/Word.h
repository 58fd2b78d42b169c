// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace script {

/// The words that the language knows. Case never matters.
enum class Word : std::uint8_t {
    none,
    about,
    above,
    activate,
    after,
    against,
    andWord,
    apart,
    app,
    application,
    around,
    as,
    aside,
    at,
    back,
    beep,
    before,
    begin,
    beginning,
    begins,
    behind,
    below,
    beneath,
    beside,
    between,
    but,
    by,
    code,
    come,
    comes,
    command,
    considering,
    contain,
    contains,
    continueWord,
    control,
    copy,
    delay,
    display,
    div,
    doWord,
    does,
    doesnt,
    down,
    eighth,
    elseWord,
    end,
    ends,
    equal,
    equals,
    error,
    every,
    exit,
    falseWord,
    fifth,
    first,
    forWord,
    fourth,
    from,
    front,
    get,
    given,
    global,
    greater,
    id,
    ifWord,
    ignoring,
    in,
    instead,
    into,
    is,
    isnt,
    it,
    its,
    key,
    keystroke,
    last,
    less,
    linefeed,
    load,
    local,
    log,
    me,
    middle,
    mod,
    my,
    ninth,
    notWord,
    of,
    on,
    onto,
    option,
    orWord,
    out,
    over,
    process,
    prop,
    property,
    put,
    quote,
    ref,
    reference,
    repeat,
    returnWord,
    returning,
    run,
    say,
    script,
    second,
    set,
    seventh,
    shell,
    shift,
    since,
    sixth,
    some,
    space,
    start,
    starts,
    tab,
    tell,
    tenth,
    than,
    that,
    the,
    then,
    third,
    through,
    thru,
    timeout,
    times,
    to,
    transaction,
    trueWord,
    tryWord,
    under,
    until,
    up,
    use,
    usingWord,
    where,
    whileWord,
    whose,
    with,
    without,
};

/// Where a word has its meaning.
enum class WordKind : std::uint8_t {
    /// Everywhere; it is never a name. Words of the language that are not spoken yet are of this kind, so
    /// that
    /// they are refused and not taken for names.
    reserved,
    /// Where the grammar asks for it; a name elsewhere.
    special,
    /// Where the dictionary of System Events is in force; a name elsewhere.
    dictionary,
};

/// A number made from a spelling; case does not matter. Different spellings mostly have different numbers.
class SpellingHash {
  public:
    constexpr SpellingHash() = default;
    constexpr explicit SpellingHash(std::string_view text) {
        for (const char c : text) add(c);
    }

    constexpr void add(char c) { m_value = (m_value ^ folded(c)) * 16777619U; }
    constexpr std::uint32_t value() const { return m_value ^ (m_value >> 16U); }

  private:
    /// Lower case for letters. A few signs fall together, which a hash may do.
    static constexpr std::uint32_t folded(char c) { return static_cast<unsigned char>(c) | 0x20U; }

    std::uint32_t m_value = 2166136261U;
};

/// Whether the spellings differ in the case of ASCII letters at most.
constexpr bool equalIgnoringCase(std::string_view left, std::string_view right) {
    if (left.size() != right.size()) return false;
    for (std::size_t i = 0; i < left.size(); ++i) {
        const char one = left[i];
        const char other = right[i];
        if (one == other) continue;
        const auto letter = static_cast<char>(static_cast<unsigned char>(one) | 0x20U);
        const bool sameLetter = letter == static_cast<char>(static_cast<unsigned char>(other) | 0x20U);
        if (!sameLetter || letter < 'a' || letter > 'z') return false;
    }
    return true;
}

/// The word with this spelling; `none` if the language has none such. The hash is that of the text.
Word wordOf(std::string_view text, std::uint32_t hash);
inline Word wordOf(std::string_view text) { return wordOf(text, SpellingHash(text).value()); }

/// The kind of a word other than `none`.
WordKind kindOf(Word word);

/// The spelling of a word other than `none`, in lower case.
std::string_view spellingOf(Word word);

}  // namespace script
