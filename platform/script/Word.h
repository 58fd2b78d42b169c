// SPDX-License-Identifier: MIT
#pragma once

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
    app,
    application,
    around,
    as,
    at,
    back,
    beep,
    before,
    beginning,
    behind,
    below,
    beneath,
    beside,
    between,
    but,
    by,
    code,
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
    down,
    eighth,
    elseWord,
    end,
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
    id,
    ifWord,
    ignoring,
    in,
    into,
    is,
    it,
    its,
    key,
    keystroke,
    last,
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
    tab,
    tell,
    tenth,
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
    term,
};

/// The word with this spelling; `none` if the language has none such. `text` holds ASCII letters, digits and
/// underscores only.
Word wordOf(std::string_view text);

/// The kind of a word other than `none`.
WordKind kindOf(Word word);

/// The spelling of a word other than `none`, in lower case.
std::string_view spellingOf(Word word);

}  // namespace script
