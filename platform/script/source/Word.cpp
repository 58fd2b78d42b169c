// SPDX-License-Identifier: MIT
#include "platform/script/source/Word.h"

#include <array>
#include <cstddef>

#include "platform/script/source/SpellingIndex.h"

namespace script {
namespace {

struct Row {
    Word word;
    WordKind kind;
    std::string_view spelling;
};

constexpr auto words = std::to_array<Row>({
    {Word::about, WordKind::reserved, "about"},
    {Word::above, WordKind::reserved, "above"},
    {Word::activate, WordKind::special, "activate"},
    {Word::after, WordKind::reserved, "after"},
    {Word::against, WordKind::reserved, "against"},
    {Word::andWord, WordKind::reserved, "and"},
    {Word::apart, WordKind::special, "apart"},
    {Word::app, WordKind::special, "app"},
    {Word::application, WordKind::special, "application"},
    {Word::around, WordKind::reserved, "around"},
    {Word::as, WordKind::reserved, "as"},
    {Word::aside, WordKind::special, "aside"},
    {Word::at, WordKind::reserved, "at"},
    {Word::back, WordKind::reserved, "back"},
    {Word::beep, WordKind::reserved, "beep"},
    {Word::before, WordKind::reserved, "before"},
    {Word::begin, WordKind::special, "begin"},
    {Word::beginning, WordKind::reserved, "beginning"},
    {Word::begins, WordKind::special, "begins"},
    {Word::behind, WordKind::reserved, "behind"},
    {Word::below, WordKind::reserved, "below"},
    {Word::beneath, WordKind::reserved, "beneath"},
    {Word::beside, WordKind::reserved, "beside"},
    {Word::between, WordKind::reserved, "between"},
    {Word::but, WordKind::reserved, "but"},
    {Word::by, WordKind::reserved, "by"},
    {Word::code, WordKind::dictionary, "code"},
    {Word::come, WordKind::special, "come"},
    {Word::comes, WordKind::special, "comes"},
    {Word::command, WordKind::dictionary, "command"},
    {Word::considering, WordKind::reserved, "considering"},
    {Word::contain, WordKind::reserved, "contain"},
    {Word::contains, WordKind::reserved, "contains"},
    {Word::continueWord, WordKind::reserved, "continue"},
    {Word::control, WordKind::dictionary, "control"},
    {Word::copy, WordKind::reserved, "copy"},
    {Word::delay, WordKind::special, "delay"},
    {Word::display, WordKind::special, "display"},
    {Word::div, WordKind::reserved, "div"},
    {Word::doWord, WordKind::special, "do"},
    {Word::does, WordKind::reserved, "does"},
    {Word::doesnt, WordKind::reserved, "doesn't"},
    {Word::down, WordKind::dictionary, "down"},
    {Word::eighth, WordKind::reserved, "eighth"},
    {Word::elseWord, WordKind::reserved, "else"},
    {Word::end, WordKind::reserved, "end"},
    {Word::ends, WordKind::special, "ends"},
    {Word::equal, WordKind::reserved, "equal"},
    {Word::equals, WordKind::reserved, "equals"},
    {Word::error, WordKind::reserved, "error"},
    {Word::every, WordKind::reserved, "every"},
    {Word::exit, WordKind::reserved, "exit"},
    {Word::falseWord, WordKind::reserved, "false"},
    {Word::fifth, WordKind::reserved, "fifth"},
    {Word::first, WordKind::reserved, "first"},
    {Word::forWord, WordKind::reserved, "for"},
    {Word::fourth, WordKind::reserved, "fourth"},
    {Word::from, WordKind::reserved, "from"},
    {Word::front, WordKind::reserved, "front"},
    {Word::get, WordKind::reserved, "get"},
    {Word::given, WordKind::reserved, "given"},
    {Word::global, WordKind::reserved, "global"},
    {Word::greater, WordKind::special, "greater"},
    {Word::id, WordKind::special, "id"},
    {Word::ifWord, WordKind::reserved, "if"},
    {Word::ignoring, WordKind::reserved, "ignoring"},
    {Word::in, WordKind::reserved, "in"},
    {Word::instead, WordKind::special, "instead"},
    {Word::into, WordKind::reserved, "into"},
    {Word::is, WordKind::reserved, "is"},
    {Word::isnt, WordKind::reserved, "isn't"},
    {Word::it, WordKind::reserved, "it"},
    {Word::its, WordKind::reserved, "its"},
    {Word::key, WordKind::dictionary, "key"},
    {Word::keystroke, WordKind::dictionary, "keystroke"},
    {Word::last, WordKind::reserved, "last"},
    {Word::less, WordKind::special, "less"},
    {Word::linefeed, WordKind::special, "linefeed"},
    {Word::load, WordKind::special, "load"},
    {Word::local, WordKind::reserved, "local"},
    {Word::log, WordKind::special, "log"},
    {Word::me, WordKind::reserved, "me"},
    {Word::middle, WordKind::reserved, "middle"},
    {Word::mod, WordKind::reserved, "mod"},
    {Word::my, WordKind::reserved, "my"},
    {Word::ninth, WordKind::reserved, "ninth"},
    {Word::notWord, WordKind::reserved, "not"},
    {Word::of, WordKind::reserved, "of"},
    {Word::on, WordKind::reserved, "on"},
    {Word::onto, WordKind::reserved, "onto"},
    {Word::option, WordKind::dictionary, "option"},
    {Word::orWord, WordKind::reserved, "or"},
    {Word::out, WordKind::special, "out"},
    {Word::over, WordKind::reserved, "over"},
    {Word::process, WordKind::dictionary, "process"},
    {Word::prop, WordKind::reserved, "prop"},
    {Word::property, WordKind::reserved, "property"},
    {Word::put, WordKind::reserved, "put"},
    {Word::quote, WordKind::special, "quote"},
    {Word::ref, WordKind::reserved, "ref"},
    {Word::reference, WordKind::reserved, "reference"},
    {Word::repeat, WordKind::reserved, "repeat"},
    {Word::returnWord, WordKind::reserved, "return"},
    {Word::returning, WordKind::reserved, "returning"},
    {Word::run, WordKind::special, "run"},
    {Word::say, WordKind::special, "say"},
    {Word::script, WordKind::reserved, "script"},
    {Word::second, WordKind::reserved, "second"},
    {Word::set, WordKind::reserved, "set"},
    {Word::seventh, WordKind::reserved, "seventh"},
    {Word::shell, WordKind::special, "shell"},
    {Word::shift, WordKind::dictionary, "shift"},
    {Word::since, WordKind::reserved, "since"},
    {Word::sixth, WordKind::reserved, "sixth"},
    {Word::some, WordKind::reserved, "some"},
    {Word::space, WordKind::special, "space"},
    {Word::start, WordKind::special, "start"},
    {Word::starts, WordKind::special, "starts"},
    {Word::tab, WordKind::special, "tab"},
    {Word::tell, WordKind::reserved, "tell"},
    {Word::tenth, WordKind::reserved, "tenth"},
    {Word::than, WordKind::special, "than"},
    {Word::that, WordKind::reserved, "that"},
    {Word::the, WordKind::reserved, "the"},
    {Word::then, WordKind::reserved, "then"},
    {Word::third, WordKind::reserved, "third"},
    {Word::through, WordKind::reserved, "through"},
    {Word::thru, WordKind::reserved, "thru"},
    {Word::timeout, WordKind::reserved, "timeout"},
    {Word::times, WordKind::reserved, "times"},
    {Word::to, WordKind::reserved, "to"},
    {Word::transaction, WordKind::reserved, "transaction"},
    {Word::trueWord, WordKind::reserved, "true"},
    {Word::tryWord, WordKind::reserved, "try"},
    {Word::under, WordKind::special, "under"},
    {Word::until, WordKind::reserved, "until"},
    {Word::up, WordKind::dictionary, "up"},
    {Word::use, WordKind::reserved, "use"},
    {Word::usingWord, WordKind::special, "using"},
    {Word::where, WordKind::reserved, "where"},
    {Word::whileWord, WordKind::reserved, "while"},
    {Word::whose, WordKind::reserved, "whose"},
    {Word::with, WordKind::reserved, "with"},
    {Word::without, WordKind::reserved, "without"},
});

constexpr bool isSorted() {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (static_cast<std::size_t>(words[i].word) != i + 1) return false;
    }
    return true;
}
static_assert(isSorted(), "a word's row is found by its number");

constexpr SpellingIndex index(words);

const Row& rowOf(Word word) { return words[static_cast<std::size_t>(word) - 1]; }

}  // namespace

Word wordOf(std::string_view text, std::uint32_t hash) {
    const Row* row = index.find(text, hash);
    return row == nullptr ? Word::none : row->word;
}

WordKind kindOf(Word word) { return rowOf(word).kind; }

std::string_view spellingOf(Word word) { return rowOf(word).spelling; }

}  // namespace script
